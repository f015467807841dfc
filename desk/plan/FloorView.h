// FloorView: the floor plan of a project with every annotation beside its beam or wall, or where a drawing
// has it.
#pragma once

#include <functional>
#include <optional>
#include <set>
#include <vector>

#include "desk/plan/MarksItem.h"
#include "desk/plan/OwnerItem.h"
#include "desk/plan/PanView.h"
#include "desk/plan/SketchItem.h"
#include "desk/plan/SmallTexts.h"
#include "desk/project/Edits.h"

namespace Desk {

class FloorView : public PanView {
    Q_OBJECT

public:
    explicit FloorView(QWidget* parent = nullptr);
    ~FloorView() override;

    // Draws the project anew and fits it; borrowed, null for nothing. What a drawing shows behind it is
    // copied.
    void SetProject(const Project* project, const Backdrop* behind = nullptr);
    // A text of this beam or wall has changed.
    void Refresh(const FieldRef& ref);
    // Beams and walls of the project came, changed or went. Where others have other indices than before,
    // nothing is chosen any more.
    void Exchange(const Exchanged& exchanged);

    // Lights up an annotation and brings it into view; nothing for none. Does not signal.
    void SetChosen(std::optional<FieldRef> ref);
    [[nodiscard]] std::optional<FieldRef> Chosen() const { return m_chosen; }

    // Lights up the annotations that are chosen together with that one.
    void SetTogether(const std::set<FieldRef>& refs);

    // Texts that wait for a person, drawn apart from the others, by numbers from 0.
    void SetMarks(std::vector<PlanMark> marks);
    // Makes an annotation as large as is read with ease, where it is not, and the middle of the view where
    // it is out of it.
    void BringClose(const FieldRef& ref);

    // Lights up a mark and brings it into view; nothing for none. Does not signal.
    void LightMark(std::optional<std::size_t> mark);
    // Annotations that have problems get a sign; one that is not there has none.
    void SetProblems(std::vector<FieldRef> refs);
    // From now on presses of the left button tell their position, whatever is there, and moves where the
    // pointer is.
    using TakePoint = std::function<void(const PlanPoint&)>;
    void StartPointing(TakePoint pressed, TakePoint moved = {});
    void EndPointing();
    [[nodiscard]] bool IsPointing() const { return m_pressed != nullptr; }
    // What a press would make: lines, and the position that it takes.
    void SetSketch(std::vector<PlanLine> lines, const std::optional<PlanPoint>& taken);
    // A position as what is near the pointer catches it.
    [[nodiscard]] PlanPoint CaughtAt(const PlanPoint& at,
                                     const std::optional<PlanPoint>& from = std::nullopt) const;
    // Whether the chosen beam or wall has handles at its ends, by which they are dragged; texts are dragged
    // then too.
    void SetHandles(bool ofBeams, bool ofWalls);

    // Where an annotation's text shows, in pixels of the screen; where it would be when it is empty.
    [[nodiscard]] QRect OnScreen(const FieldRef& ref) const;
    [[nodiscard]] QPoint OnScreen(const PlanPoint& at) const;
    // Blocks of texts that lie on another text for want of room.
    [[nodiscard]] int CoveringBlocks() const { return m_covering; }

    void ZoomBy(double factor);  // about the chosen annotation where it is in view, or else the middle
    void SetDark(bool dark);
    // Pixels of the lowest texts of annotations.
    void SetLeastTextSize(double pixels);
    // What is drawn at the least size at this scale, and where, on the sheet.
    [[nodiscard]] const SmallTexts* Small() const { return m_small; }

signals:
    // A press on an annotation; on a beam or wall itself: its name.
    void Picked(const Desk::FieldRef& ref);
    void Joined(const Desk::FieldRef& ref);                            // the same with Ctrl or Shift
    void PanelAsked(const Desk::FieldRef& ref);                        // a double click
    void TipAsked(const Desk::FieldRef& ref, const QPoint& onScreen);  // the pointer rests there
    void MenuAsked(const QPoint& onScreen);  // after a pick where an annotation is there
    // A drag with Shift: to the right the beams and walls in the frame, to the left those it touches as
    // well, by their names.
    void Framed(const std::vector<Desk::FieldRef>& owners);
    void MarkPicked(std::size_t mark);
    // A text to a position as DraggedTo has it.
    void TextDragged(const Desk::FieldRef& ref, const Desk::PlanPoint& to);
    void EndDragged(const Desk::FieldRef& owner, bool isStart, const Desk::PlanPoint& to);

protected:
    void Scaled() override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void drawForeground(QPainter* painter, const QRectF& exposed) override;

private:
    struct Hit {
        OwnerItem* item = nullptr;
        std::optional<FieldRef> text;  // nothing for the beam or wall itself
        std::optional<std::size_t> mark = std::nullopt;

        [[nodiscard]] FieldRef Ref() const { return text.value_or(item->NameRef()); }
    };

    [[nodiscard]] Hit HitAt(const QPoint& inView);
    void Settle();  // once for all texts that changed
    [[nodiscard]] OwnerItem* ItemOf(const FieldRef& ref) const;
    void Hover(const Hit& hit);
    void Pick(const Hit& hit);
    void BringIntoView(const QRect& inView);
    [[nodiscard]] std::vector<OwnerItem*> ItemsAround(const OwnerItem& item) const;
    void ExchangeItems(const ExchangedIndices& exchanged, bool isWall);
    void ShowHandles();
    void DragHandle(const QPoint& inView);
    // A text that the left button holds follows it, until it is let go.
    void DragText(const QPoint& inView);
    void DropText(const QPoint& inView);
    // Ends of the chosen beam or wall.
    [[nodiscard]] std::vector<PlanPoint> ChosenEnds() const;

    void EndFrame(const QPoint& inView);

    // A handle that the left button holds.
    struct Drag {
        std::size_t handle = 0;
        QPoint pressed;
        bool hasMoved = false;
        PlanPoint to;
    };

    // A text likewise.
    struct TextDrag {
        FieldRef ref;
        QPoint pressed;
        bool hasMoved = false;
    };

    const Project* m_project = nullptr;
    QRectF m_shown;
    double m_readingScale = 1.0;
    std::vector<PlanItem*> m_all;     // the scene owns them
    std::vector<OwnerItem*> m_items;  // beams, then walls
    SmallTexts* m_small = nullptr;
    std::ptrdiff_t m_walls = 0;  // among them
    MarksItem* m_marks = nullptr;
    std::vector<FieldRef> m_problems;
    SketchItem* m_sketch = nullptr;
    int m_covering = 0;
    std::optional<FieldRef> m_chosen;
    OwnerItem* m_lit = nullptr;  // that of the chosen annotation
    OwnerItem* m_hovered = nullptr;
    std::optional<FieldRef> m_hoveredText;
    double m_leastTextSize = 9.0;
    std::vector<OwnerItem*> m_stale;  // whose texts changed since it was found which small ones have room
    TakePoint m_pressed;
    TakePoint m_moved;
    std::optional<Drag> m_drag;
    std::optional<TextDrag> m_textDrag;
    std::optional<QPoint> m_frameFrom;
    QRubberBand* m_frame;
    bool m_hasHandles[2] = {false, false};  // of beams, of walls
    bool m_areTogether = false;             // some items are lit as chosen together
    bool m_isDark = false;
};

}  // namespace Desk
