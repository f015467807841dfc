// PlanTools: beams and walls are drawn, moved and copied by positions that a person presses on the plan or
// types.
#pragma once

#include <optional>

#include "desk/Toolkit.h"
#include "desk/plan/FloorView.h"
#include "desk/window/Editing.h"

namespace Desk {

class PlanTools : public QObject {
    Q_OBJECT

public:
    // Its line for coordinates lies over the plan while a tool is in use.
    PlanTools(Document& document, FloorView& floor, Editing& editing);

    enum class Tool { None, Beam, Label, Wall, Move, Copy };
    // Asks for two positions again and again, for Move once, until it is left. On a drawing Beam is Label,
    // which asks for one.
    void Start(Tool tool);
    [[nodiscard]] bool IsActive() const { return m_tool != Tool::None; }
    // Forgets the first position, or leaves the tool where there is none.
    void StepBack();
    // A key that the plan was typed: a character goes into the line. False for what is not for a tool.
    bool TakeKey(const QKeyEvent& key);
    void Retranslate();

signals:
    void Said(const QString& text);  // for the status bar

private:
    void End();
    void Press(const PlanPoint& at);
    void Take(const PlanPoint& at);
    void TakeTyped();
    void Point(const PlanPoint& at);
    void ShowSketch();
    void Ask();

    Document& m_document;
    FloorView& m_floor;
    Editing& m_editing;
    QFrame* m_box;
    QLabel* m_wanted;
    QLineEdit* m_typed;
    Tool m_tool = Tool::None;
    std::optional<PlanPoint> m_first;
    std::optional<PlanPoint> m_last;  // that was taken, from which typed ones are counted
    PlanPoint m_pointer;
};

}  // namespace Desk
