// Selection: the annotation in work, and others that are chosen together with it. It is chosen in any part
// of the window and shown in all of them, and its text is taken from any of them, for all that are chosen.
#pragma once

#include <optional>
#include <set>
#include <vector>

#include "desk/Toolkit.h"
#include "desk/plan/FloorView.h"
#include "desk/window/Docks.h"
#include "desk/window/Document.h"
#include "desk/window/Group.h"
#include "desk/window/PanelHost.h"

namespace Desk {

class Selection : public QObject {
    Q_OBJECT

public:
    // Panels open over the window, and messages show over it.
    Selection(Document& document, FloorView& floor, Docks& docks, PanelHost& panels, QWidget& window);

    // Chooses an annotation; nothing for none. Those chosen together go along to another annotation of the
    // same beam, and are let go for another beam.
    void Choose(const std::optional<FieldRef>& ref);
    // Chooses it and makes it as large as is read with ease.
    void GoTo(const std::optional<FieldRef>& ref);
    [[nodiscard]] const std::optional<FieldRef>& Chosen() const { return m_chosen; }
    // All that are chosen.
    [[nodiscard]] std::set<FieldRef> All() const;
    // Chooses together with the one in work what takes part with it; what is chosen already is let go.
    void Join(const FieldRef& pointedAt);
    void JoinAll(const std::vector<FieldRef>& refs);
    void JoinSameText();
    void JoinLikeOwners();

    // To the clipboard the text in work, or all texts of its beam but the name; from it to all chosen ones.
    void Copy();
    void CopyOwner();
    void Paste();
    // Gives the texts that were taken last to all chosen ones.
    void Repeat();
    // From now on a click gives the text in work to what is clicked; of a name, all texts of its beam.
    // Choosing nothing ends it.
    void StartMatching();
    // Asks what to replace in all texts; one step.
    void Replace();

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
    using Texts = NewTexts;

    void Take(const FieldRef& ref, const QString& text) { TakeAll({{ref, text}}); }
    // What was typed is read first, and may be taken back.
    void TakeTyped(const FieldRef& ref, const QString& text, bool goesOn);
    bool TakeAll(const Texts& texts, const QString& reason = QString());
    void TakeFromList(const Texts& texts, const QString& reason);
    [[nodiscard]] Texts ForAll(const Texts& asked) const;
    void Pick(const FieldRef& ref);
    void Give(const Copied& copied, const FieldRef& to);
    void SayChosen();
    void Follow(const Exchanged& exchanged);
    void OpenPanelBeside(const QRect& field);
    void Show();

    Document& m_document;
    FloorView& m_floor;
    Docks& m_docks;
    PanelHost& m_panels;
    QWidget& m_window;
    std::optional<FieldRef> m_chosen;
    std::set<FieldRef> m_others;  // chosen together with it; empty without it
    std::optional<Copied> m_matched;
    Copied m_last;             // texts that were taken
    QString m_told;            // of the last text that was taken
    bool m_isRefused = false;  // the last text to be taken
};

}  // namespace Desk
