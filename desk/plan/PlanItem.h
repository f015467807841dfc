// What all that is drawn on the plan has in common: colours, pens and texts.
#pragma once

#include "desk/Toolkit.h"
#include "desk/project/Project.h"

namespace Desk {

struct PlanColors {
    QColor ground;
    QColor axis;
    QColor beam;
    QColor wall;
    QColor text;
    QColor endText;
    QColor chosen;      // of the lit beam
    QColor chosenText;  // ground of the lit text
    QColor backdrop;    // a drawing's own lines
    QColor backdropText;
    QColor mark;             // of texts that wait for a person
    double lineWidth = 0.0;  // mm on the plan; 0 for a pixel of the screen at every scale
};

[[nodiscard]] const PlanColors& ColorsFor(bool dark);
// A line of so many times the usual width.
[[nodiscard]] QPen LinePen(const PlanColors& colors, const QColor& color, double times = 1.0);

inline constexpr double TextHeight = 320.0;  // mm on the plan: 3.2 mm on a sheet of scale 1 to 100
inline constexpr double LineStep = 430.0;    // mm from line to line

// Its pixels are as many as TextHeight is mm.
[[nodiscard]] const QFont& PlanFont();
// How wide a text is, in mm.
[[nodiscard]] double TextWidth(const QString& text, double height = TextHeight);
// Texts are drawn, and found, from a height on that can be read; the scale is pixels a mm.
[[nodiscard]] bool IsReadable(double height, double scale);
// The plan's y goes up, the sheet's down.
[[nodiscard]] inline QPointF OnSheet(const PlanPoint& at) { return {at.x, -at.y}; }
// Draws a text as drawings have it: capital letters are as high as the text is said to be and stand on a
// line from the corner, which is turned by degrees clockwise.
void DrawPlaced(QPainter& painter, const QPointF& corner, double turn, double height, const QString& text);
// From a text's own frame, its corner at 0, 0, to the sheet.
[[nodiscard]] QTransform FrameOf(const TextPlace& place);

class PlanItem : public QGraphicsItem {
public:
    // Borrowed.
    void SetColors(const PlanColors* colors)
    {
        m_colors = colors;
        update();
    }

protected:
    [[nodiscard]] const PlanColors& Colors() const { return *m_colors; }

private:
    const PlanColors* m_colors = &ColorsFor(false);
};

}  // namespace Desk
