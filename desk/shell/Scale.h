// Positions in pixels of the windows and of the toolkit: converted here only.
#pragma once

#include <cmath>

#include "desk/Toolkit.h"
#include "platform/windows/CRect.h"

namespace Desk {

class Scale {
public:
    explicit Scale(double zoom) : m_zoom(zoom) {}

    [[nodiscard]] double Zoom() const { return m_zoom; }

    // Edges are rounded one by one: adjacent rectangles stay adjacent.
    [[nodiscard]] int ToWidget(int pixels) const { return qRound(pixels * m_zoom); }
    [[nodiscard]] QPoint ToWidget(const CPoint& point) const
    {
        return {ToWidget(point.x), ToWidget(point.y)};
    }
    [[nodiscard]] QRect ToWidget(const CRect& rect) const
    {
        return {ToWidget(rect.TopLeft()), QPoint(ToWidget(rect.right) - 1, ToWidget(rect.bottom) - 1)};
    }

    // The pixel that contains a position.
    [[nodiscard]] int FromWidget(double position) const
    {
        return static_cast<int>(std::floor(position / m_zoom));
    }
    [[nodiscard]] CPoint FromWidget(const QPointF& point) const
    {
        return {FromWidget(point.x()), FromWidget(point.y())};
    }

private:
    double m_zoom;
};

}  // namespace Desk
