// FloorView: the floor plan of a project with every annotation beside its beam or wall.
#pragma once

#include <optional>

#include "desk/Place.h"
#include "desk/shell/Toolkit.h"

namespace Desk {

class FloorView : public QGraphicsView {
    Q_OBJECT

public:
    explicit FloorView(QWidget* parent = nullptr);
    ~FloorView() override;

    // Draws the project anew and fits it; borrowed, null for nothing.
    void SetProject(const Project* project);
    // A text of this beam or wall is not as it was.
    void Refresh(const Place& place);

    // Lights up an annotation and brings it into view; nothing for none. Does not signal.
    void SetChosen(std::optional<Place> place);
    [[nodiscard]] std::optional<Place> Chosen() const;

    // Where an annotation's text shows, in pixels of the screen; where it would stand when it is empty.
    [[nodiscard]] QRect OnScreen(const Place& place) const;

    void Fit();
    void ZoomBy(double factor);  // about the middle of the view
    void SetDark(bool dark);

signals:
    void Picked(const Desk::Place& place);  // a press on an annotation; on a beam or wall itself: its name
    void PanelAsked(const Desk::Place& place);  // a double click
    void NothingPicked();                       // a press on bare ground without a drag
};

}  // namespace Desk
