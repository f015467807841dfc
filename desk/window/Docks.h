// Docks: beside the drawing the texts for the chosen annotation, its beam's or wall's properties, and the
// beam's section.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "desk/Toolkit.h"
#include "desk/plan/SectionSketch.h"
#include "desk/window/ChoiceBox.h"
#include "desk/window/Document.h"
#include "desk/window/Offers.h"
#include "desk/window/PropertyGrid.h"

namespace Desk {

class Docks : public QObject {
    Q_OBJECT

public:
    Docks(QMainWindow& window, const Document& document);

    // Shows what belongs to an annotation of the document, which must exist; nothing for none.
    void Show(const std::optional<FieldRef>& chosen);
    // Draws all anew, for another language or other colours.
    void Redraw();

    // Show a dock, wherever it is, and give it the keyboard: the texts, which a first character may
    // narrow already, or the marked property. The key of a proposal in view takes it instead.
    void StartTyping(const QString& first = QString());
    void StartEditing();
    // Ends editing in place and signals at once what it made.
    void CommitEdit() { m_properties->CommitEdit(); }

    // Where an annotation's value is in the properties, in pixels of the screen; null when it is not.
    [[nodiscard]] QRect OnScreen(const FieldRef& ref) const { return m_properties->OnScreen(ref); }
    // Show and hide the docks.
    [[nodiscard]] QList<QAction*> Toggles() const;

signals:
    void Picked(const Desk::FieldRef& ref);
    void Taken(const Desk::FieldRef& ref, const QString& text);
    void DataEdited(const Desk::FieldRef& owner, Desk::Datum datum, const QString& text);
    // A proposal for an annotation, or for several of its beam.
    void ProposalTaken(const std::vector<std::pair<Desk::FieldRef, QString>>& texts, const QString& reason);
    void Edited(const Desk::FieldRef& ref, const QString& text);
    void GoOn();                                       // to the next annotation without a text
    void PanelAsked(const Desk::FieldRef& ref);        // for the drawing's text
    void PanelAskedInGrid(const Desk::FieldRef& ref);  // for the value in the properties
    void Left();                                       // the keyboard goes back to the drawing
    void Failed(const QString& why);                   // there are no texts

private:
    QDockWidget* AddDock(QMainWindow& window, QWidget* inside, const char* name);
    void ShowProperties();
    void ShowChoices();
    void ShowSection();
    void TakeForBeam();

    const Document& m_document;
    std::optional<FieldRef> m_chosen;
    Offers m_offers;
    ChoiceBox* m_choices;
    PropertyGrid* m_properties;
    SectionSketch* m_sketch;
    QDockWidget* m_choiceDock;
    QDockWidget* m_propertyDock;
    QDockWidget* m_sketchDock;
};

}  // namespace Desk
