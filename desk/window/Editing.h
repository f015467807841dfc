// Editing: what a person does to beams and walls as a whole. Each is one step that can be taken back, and
// says what it did or why it was refused.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "desk/Toolkit.h"
#include "desk/project/Data.h"
#include "desk/window/Selection.h"

namespace Desk {

class Editing : public QObject {
    Q_OBJECT

public:
    // Messages show over the window. Before each step the selection takes what an open editor holds.
    Editing(Document& document, Selection& selection, QWidget& window);

    // A new beam or wall between two positions, with a name and the data of the last one. The annotation
    // that it needs next is chosen.
    void AddBeam(const PlanPoint& start, const PlanPoint& end);
    void AddWall(const PlanPoint& start, const PlanPoint& end);
    // On a drawing: a label for the outline there.
    void AddLabel(const PlanPoint& at);

    // These are for the chosen beams and walls.
    [[nodiscard]] std::vector<FieldRef> Owners() const;
    void Move(const PlanPoint& by);
    void Copy(const PlanPoint& by);  // under new names
    void TurnRound();
    // On a drawing: its label with all texts; the outline stays.
    void Remove();

    void SetEnd(const FieldRef& owner, bool isStart, const PlanPoint& to);
    // A text that was dragged, to a position as DraggedTo has it.
    void MoveText(const FieldRef& ref, const PlanPoint& to);
    void SetData(const FieldRef& owner, Datum datum, const QString& text);
    // A text in place of the chosen beam, still empty, at a support or span that is asked for.
    void AddInPlace();
    // The chosen annotation becomes empty; of a project's own texts in place it goes.
    void Clear();

signals:
    void Said(const QString& text);  // for the status bar

private:
    using EditBeam = std::function<void(Beam&)>;
    using EditWall = std::function<void(Wall&)>;
    void AddNamed(Beam beam, const QString& what);
    // Answers whether it was done.
    bool Do(const QString& what, Edits edits);
    bool ChangeEach(const QString& what, const std::vector<FieldRef>& owners, const EditBeam& beam,
                    const EditWall& wall);
    // "KL1(7)", "3 beams and walls"
    [[nodiscard]] QString Name(const std::vector<FieldRef>& owners) const;

    Document& m_document;
    Selection& m_selection;
    QWidget& m_window;
};

}  // namespace Desk
