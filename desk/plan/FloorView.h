// FloorView: the floor plan of a project with every annotation beside its beam or wall.
#pragma once

#include <optional>
#include <vector>

#include "desk/plan/OwnerItem.h"
#include "desk/plan/PanView.h"

namespace Desk {

class FloorView : public PanView {
    Q_OBJECT

public:
    explicit FloorView(QWidget* parent = nullptr);
    ~FloorView() override;

    // Draws the project anew and fits it; borrowed, null for nothing.
    void SetProject(const Project* project);
    // A text of this beam or wall has changed.
    void Refresh(const FieldRef& ref);

    // Lights up an annotation and brings it into view; nothing for none. Does not signal.
    void SetChosen(std::optional<FieldRef> ref);
    [[nodiscard]] std::optional<FieldRef> Chosen() const { return m_chosen; }

    // Where an annotation's text shows, in pixels of the screen; where it would be when it is empty.
    [[nodiscard]] QRect OnScreen(const FieldRef& ref) const;
    // Blocks of texts that lie on another text for want of room.
    [[nodiscard]] int CoveringBlocks() const { return m_covering; }

    void ZoomBy(double factor);  // about the chosen annotation where it is in view, or else the middle
    void SetDark(bool dark);

signals:
    // A press on an annotation; on a beam or wall itself: its name.
    void Picked(const Desk::FieldRef& ref);
    void PanelAsked(const Desk::FieldRef& ref);  // a double click

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    struct Hit {
        OwnerItem* item = nullptr;
        Field field = Field::Name;
        bool onText = false;
    };

    [[nodiscard]] Hit HitAt(const QPoint& inView) const;
    [[nodiscard]] OwnerItem* ItemOf(const FieldRef& ref) const;
    void AddAxes();
    void Hover(const Hit& hit);

    const Project* m_project = nullptr;
    std::vector<OwnerItem*> m_items;  // beams, then walls; the scene owns them
    int m_covering = 0;
    std::optional<FieldRef> m_chosen;
    OwnerItem* m_hovered = nullptr;
    bool m_isDark = false;
};

}  // namespace Desk
