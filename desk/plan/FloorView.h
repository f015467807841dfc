// FloorView: the floor plan of a project with every annotation beside its beam or wall.
#pragma once

#include <optional>
#include <vector>

#include "desk/plan/OwnerItem.h"

namespace Desk {

class FloorView : public QGraphicsView {
    Q_OBJECT

public:
    explicit FloorView(QWidget* parent = nullptr);
    ~FloorView() override;

    // Draws the project anew and fits it; borrowed, null for nothing.
    void SetProject(const Project* project);
    // A text of this beam or wall is not as it was.
    void Refresh(const FieldRef& place);

    // Lights up an annotation and brings it into view; nothing for none. Does not signal.
    void SetChosen(std::optional<FieldRef> place);
    [[nodiscard]] std::optional<FieldRef> Chosen() const { return m_chosen; }

    // Where an annotation's text shows, in pixels of the screen; where it would stand when it is empty.
    [[nodiscard]] QRect OnScreen(const FieldRef& place) const;
    // Blocks of texts that lie on another text for want of room.
    [[nodiscard]] int CoveringBlocks() const { return m_covering; }

    void Fit();
    void ZoomBy(double factor);  // about the chosen annotation where it is in view, or else the middle
    void SetDark(bool dark);

signals:
    // A press on an annotation; on a beam or wall itself: its name.
    void Picked(const Desk::FieldRef& place);
    void PanelAsked(const Desk::FieldRef& place);  // a double click
    void NothingPicked();                          // a press on bare ground without a drag

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;  // moves the floor; other keys are the window's
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Hit {
        OwnerItem* item = nullptr;
        Field field = Field::Name;
        bool onText = false;
    };

    [[nodiscard]] Hit HitAt(const QPoint& inView) const;
    [[nodiscard]] OwnerItem* ItemOf(const FieldRef& place) const;
    void AddAxes();
    void ZoomTo(double scale);
    void ZoomAbout(const QPoint& inView, double factor);
    void PanBy(const QPoint& pixels);
    void Hover(const Hit& hit);

    const Project* m_project = nullptr;
    std::vector<OwnerItem*> m_items;  // beams, then walls; the scene owns them
    int m_covering = 0;
    std::optional<FieldRef> m_chosen;
    OwnerItem* m_hovered = nullptr;
    bool m_isDark = false;
    bool m_isFitted = true;  // until the person zooms or pans
    bool m_isPanning = false;
    bool m_mayPan = false;
    QPoint m_pressed;  // in the view
    QPoint m_panned;
};

}  // namespace Desk
