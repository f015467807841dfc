// FloorView: the signs of annotations with problems.
#include <algorithm>
#include <cmath>
#include <utility>

#include "desk/plan/FloorView.h"

namespace Desk {

namespace {

constexpr double LeastSign = 9.0;  // pixels
constexpr double LeastBeam = 6.0;  // pixels of a beam's length from which on its signs are drawn

// A triangle with an exclamation mark after the text, and a line under the text. The box's corners go round
// from its upper left one.
void DrawSign(QPainter& painter, const QPolygonF& box, double least, const PlanColors& colors)
{
    const QLineF side(box[0], box[3]);
    const QLineF foot(box[3], box[2]);
    const double size = std::max(side.length(), least);
    const double turn = std::atan2(side.dx(), side.dy());
    const QPointF down(size * std::sin(turn), size * std::cos(turn));
    const QPointF along(down.y(), -down.x());
    const QPointF corner = foot.p2() + along * 0.25;
    const QPointF top = corner + along * 0.5 - down;
    painter.setPen(LinePen(colors, colors.mark, 2.0));
    painter.drawLine(foot);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.mark);
    painter.drawPolygon(QPolygonF({corner, corner + along, top}));
    QPen pen(colors.ground, size * 0.12);
    pen.setCapStyle(Qt::RoundCap);
    painter.setPen(pen);
    painter.drawLine(top + down * 0.4, top + down * 0.65);
    painter.drawPoint(top + down * 0.85);
}

}  // namespace

void FloorView::SetProblems(std::vector<FieldRef> refs)
{
    const bool showsSigns = !m_problems.empty() || !refs.empty();
    m_problems = std::move(refs);
    if (showsSigns) {
        viewport()->update();  // a sign lies beside its text, which may be another now
    }
}

void FloorView::drawForeground(QPainter* painter, const QRectF& exposed)
{
    const double scale = transform().m11();
    for (const FieldRef& ref : m_problems) {
        const OwnerItem* const item = ItemOf(ref);
        if (item == nullptr || item->Body().width() * scale < LeastBeam) {
            continue;
        }
        const QPolygonF box = item->mapToScene(item->BoxOf(ref));
        const double room = 2.0 * (QLineF(box[0], box[3]).length() + LeastSign / scale);
        if (exposed.intersects(box.boundingRect().adjusted(-room, -room, room, room))) {
            DrawSign(*painter, box, LeastSign / scale, ColorsFor(m_isDark));
        }
    }
}

}  // namespace Desk
