// Selection: the annotation in work. It is chosen in any part of the window and shown in all of them, and
// its text is taken from any of them.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "desk/Toolkit.h"
#include "desk/plan/FloorView.h"
#include "desk/window/Docks.h"
#include "desk/window/Document.h"
#include "desk/window/PanelHost.h"

namespace Desk {

class Selection : public QObject {
    Q_OBJECT

public:
    // Panels open over the window, and messages show over it.
    Selection(Document& document, FloorView& floor, Docks& docks, PanelHost& panels, QWidget& window);

    // Chooses an annotation, as a click on it does; nothing for none.
    void Choose(const std::optional<FieldRef>& ref);
    // Chooses it and makes it as large as is read with ease.
    void GoTo(const std::optional<FieldRef>& ref);
    [[nodiscard]] const std::optional<FieldRef>& Chosen() const { return m_chosen; }
    // Goes to the next text that contains the wanted one, or the previous one, and says which of how many
    // it is.
    void Find(const QString& wanted, int by);

    // Goes to the next annotation that a text is wanted for.
    void GoOn();

    // Opens the panel for the chosen annotation, beside its text in the drawing where that is in view.
    void OpenPanel();
    // Takes what an open editor of the properties holds; false when it was refused.
    bool EndEdit();

signals:
    void Said(const QString& text);  // for the status bar; empty when the text before is out of date

private:
    using Texts = std::vector<std::pair<FieldRef, QString>>;

    void Take(const FieldRef& ref, const QString& text) { TakeAll({{ref, text}}); }
    // What was typed is read first, and may be taken back.
    void TakeTyped(const FieldRef& ref, const QString& text, bool goesOn);
    bool TakeAll(const Texts& texts, const QString& reason = QString());
    void TakeFromList(const Texts& texts, const QString& reason);
    void Follow(const Exchanged& exchanged);
    void OpenPanelBeside(const QRect& field);
    void Show();

    Document& m_document;
    FloorView& m_floor;
    Docks& m_docks;
    PanelHost& m_panels;
    QWidget& m_window;
    std::optional<FieldRef> m_chosen;
    QString m_told;            // of the last text that was taken
    bool m_isRefused = false;  // the last text to be taken
};

}  // namespace Desk
