// FloorView: the floor plan of a project with every annotation beside its beam or wall, or where a drawing
// has it.
#pragma once

#include <optional>
#include <vector>

#include "desk/plan/MarksItem.h"
#include "desk/plan/OwnerItem.h"
#include "desk/plan/PanView.h"
#include "desk/plan/SmallTexts.h"

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

    // Lights up an annotation and brings it into view; nothing for none. Does not signal.
    void SetChosen(std::optional<FieldRef> ref);
    [[nodiscard]] std::optional<FieldRef> Chosen() const { return m_chosen; }

    // Texts that wait for a person, drawn apart from the others, by numbers from 0.
    void SetMarks(std::vector<PlanMark> marks);
    // Makes an annotation as large as is read with ease, where it is not, and the middle of the view where
    // it is out of it.
    void BringClose(const FieldRef& ref);

    // Lights up a mark and brings it into view; nothing for none. Does not signal.
    void LightMark(std::optional<std::size_t> mark);
    // The next press tells a position, whatever is there.
    void SetPointing(bool pointing);
    [[nodiscard]] bool IsPointing() const { return m_isPointing; }

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
    void PanelAsked(const Desk::FieldRef& ref);                        // a double click
    void TipAsked(const Desk::FieldRef& ref, const QPoint& onScreen);  // the pointer rests there
    void MenuAsked(const QPoint& onScreen);  // after a pick where an annotation is there
    void MarkPicked(std::size_t mark);
    void Pointed(const Desk::PlanPoint& at);

protected:
    void Scaled() override;
    bool viewportEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    struct Hit {
        OwnerItem* item = nullptr;
        std::optional<FieldRef> text;  // nothing for the beam or wall itself
        std::optional<std::size_t> mark = std::nullopt;

        [[nodiscard]] FieldRef Ref() const { return text.value_or(item->NameRef()); }
    };

    [[nodiscard]] Hit HitAt(const QPoint& inView) const;
    [[nodiscard]] OwnerItem* ItemOf(const FieldRef& ref) const;
    void Hover(const Hit& hit);
    void BringIntoView(const QRect& inView);

    const Project* m_project = nullptr;
    std::vector<PlanItem*> m_all;     // the scene owns them
    std::vector<OwnerItem*> m_items;  // beams, then walls
    SmallTexts* m_small = nullptr;
    MarksItem* m_marks = nullptr;
    int m_covering = 0;
    std::optional<FieldRef> m_chosen;
    OwnerItem* m_hovered = nullptr;
    std::optional<FieldRef> m_hoveredText;
    double m_leastTextSize = 9.0;
    bool m_isPointing = false;
    bool m_isDark = false;
};

}  // namespace Desk
