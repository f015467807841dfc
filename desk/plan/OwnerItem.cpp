#include "desk/plan/OwnerItem.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "desk/reading/Section.h"

namespace Desk {

namespace {

constexpr double DefaultWidth = 250.0;  // mm, of a beam whose section cannot be read
constexpr double BlockGap = 120.0;      // mm between a beam's edge and the block
constexpr double LeaderReach = 260.0;   // mm that the leader goes beyond the beam's far edge
constexpr double FieldLeader = 90.0;    // mm from the leader to the texts

double DegreesOf(double dx, double dy) { return std::atan2(dy, dx) * 180.0 / std::numbers::pi; }

}  // namespace

OwnerItem::OwnerItem(const Project& project, bool isWall, std::size_t index)
    : m_isWall(isWall), m_index(index)
{
    Take(project);
    SetBlock(BlockPositions().front());
}

void OwnerItem::Measure()
{
    const double reach = m_isDrawn ? m_body.width : LeaderReach;
    m_bounds = Body().adjusted(0, -reach, 0, reach);
    for (const Label& label : LabelsAsTheyAre()) {
        m_bounds |= label.Outline().boundingRect();
    }
}

void OwnerItem::Take(const Project& project)
{
    prepareGeometryChange();
    if (m_isWall) {
        Lie(project.walls[m_index].start, project.walls[m_index].end);
    } else {
        Lie(project.beams[m_index].start, project.beams[m_index].end);
    }
    if (m_isWall) {
        const Wall& wall = project.walls[m_index];
        m_body.width = wall.thickness > 0 ? wall.thickness : DefaultWidth;
        m_block = BlockOf(wall);
    } else {
        const Beam& beam = project.beams[m_index];
        const int width = WidthOf(beam.section);
        m_body.width = width > 0 ? width : DefaultWidth;
        m_isDrawn = !beam.places.empty();
        if (m_isDrawn) {  // in units of its own, perhaps
            m_body.width = std::min(m_body.width, 1.5 * HeightOf(beam));
        }
        m_block = BlockOf(beam);
        m_fixed = TextsBeside(beam, m_body);
        for (Label& label : PlacedTexts(beam)) {
            label.box.moveBottomLeft(mapFromScene(label.box.bottomLeft()));
            label.anchor = mapFromScene(label.anchor);
            label.turn = label.turn.value_or(0.0) - rotation();
            m_fixed.push_back(std::move(label));
        }
    }
    Measure();
    update();
}

void OwnerItem::Lie(const PlanPoint& start, const PlanPoint& end)
{
    // The sheet's y goes down, the plan's up. Texts are read from below or from the right.
    double dx = end.x - start.x;
    double dy = start.y - end.y;
    constexpr double Upright = 1e-6;
    m_body.isReversed =
        dx < -Upright * std::abs(dy) || (std::abs(dx) <= Upright * std::abs(dy) && dy > 0.0);
    if (m_body.isReversed) {
        dx = -dx;
        dy = -dy;
    }
    m_body.length = std::hypot(dx, dy);
    setPos((start.x + end.x) / 2.0, -(start.y + end.y) / 2.0);
    setRotation(DegreesOf(dx, dy));
}

std::vector<QPointF> OwnerItem::BlockPositions(double away) const
{
    const QSizeF size = BlockSize();
    const double length = m_body.length;
    const double above = -m_body.width / 2.0 - BlockGap - TextHeight - LineStep - size.height() - away;
    const double below = m_body.width / 2.0 + BlockGap + away;
    std::vector<QPointF> positions;
    for (const double top : {below, above}) {
        for (const double part : {0.5, 0.35, 0.65, 0.2, 0.8, 0.1, 0.9, 0.42, 0.58, 0.28, 0.72}) {
            positions.emplace_back(-length / 2.0 + length * part -
                                       (length < 3.0 * size.width() ? size.width() / 2 : 0.0),
                                   top);
        }
    }
    return positions;
}

void OwnerItem::SetBlock(const QPointF& corner)
{
    prepareGeometryChange();
    m_corner = corner;
    Measure();
}

std::vector<Label> OwnerItem::LabelsAsTheyAre() const
{
    std::vector<Label> all = m_fixed;
    all.reserve(m_fixed.size() + m_block.size());
    const QPointF anchor =
        m_corner.y() > 0.0 ? m_corner : m_corner + QPointF(0.0, SizeOf(m_block).height());
    for (const Label& label : m_block) {
        all.push_back(label);
        all.back().box.translate(m_corner);
        all.back().anchor = anchor;
    }
    return all;
}

std::vector<Label> OwnerItem::Labels() const
{
    std::vector<Label> all = LabelsAsTheyAre();
    for (Label& label : all) {
        label.Grow(m_leastHeight);
    }
    return all;
}

bool OwnerItem::HasSmallTexts() const
{
    const auto isSmall = [this](const Label& label) { return IsSmall(label); };
    return std::any_of(m_block.begin(), m_block.end(), isSmall) ||
           std::any_of(m_fixed.begin(), m_fixed.end(), isSmall);
}

double OwnerItem::OwnHeight(const FieldRef& ref) const
{
    for (const Label& label : LabelsAsTheyAre()) {
        if (RefOf(label) == ref) {
            return label.box.height();
        }
    }
    return TextHeight;
}

std::optional<FieldRef> OwnerItem::RefAt(const QPointF& local) const
{
    for (const Label& label : LabelsAsTheyAre()) {
        if (!label.text.isEmpty() && !IsSmall(label) &&
            label.Outline().containsPoint(local, Qt::OddEvenFill)) {
            return RefOf(label);
        }
    }
    return std::nullopt;
}

bool OwnerItem::IsOnBody(const QPointF& local, double reach) const
{
    return Body().adjusted(-reach, -reach, reach, reach).contains(local);
}

QPolygonF OwnerItem::BoxOf(const FieldRef& ref) const
{
    for (const Label& label : Labels()) {
        if (RefOf(label) == ref) {
            return label.Turned().map(QPolygonF(label.box));
        }
    }
    return Body();
}

QRectF OwnerItem::Body() const
{
    return {-m_body.length / 2.0, -m_body.width / 2.0, m_body.length, m_body.width};
}

std::vector<QRectF> OwnerItem::FixedBoxes() const
{
    std::vector<QRectF> boxes;
    for (const Label& label : m_fixed) {
        if (!label.text.isEmpty()) {
            boxes.push_back(label.Turned().mapRect(label.box));
        }
    }
    return boxes;
}

void OwnerItem::SetLit(const std::optional<FieldRef>& ref)
{
    m_lit = ref;
    setZValue(ref ? 1.0 : 0.0);
    update();
}

void OwnerItem::SetTogether(std::vector<FieldRef> refs)
{
    if (refs != m_together) {
        m_together = std::move(refs);
        update();
    }
}

void OwnerItem::SetHovered(const std::optional<FieldRef>& ref)
{
    m_hovered = ref;
    update();
}

void OwnerItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/)
{
    PaintBody(*painter);
    const auto isSmall = [this](const Label& label) { return IsSmall(label); };
    if (std::all_of(m_block.begin(), m_block.end(), isSmall) &&
        std::all_of(m_fixed.begin(), m_fixed.end(), isSmall)) {
        return;  // a floor seen whole, where this is most of the work
    }
    for (const Label& label : LabelsAsTheyAre()) {
        if (!IsSmall(label)) {
            PaintLeader(*painter, label);
            PaintText(*painter, label);
        }
    }
}

void OwnerItem::PaintBody(QPainter& painter) const
{
    const QRectF body = Body();
    const QColor line = IsChosen() ? Colors().chosen : m_isWall ? Colors().wall : Colors().beam;
    painter.setPen(LinePen(Colors(), line, m_lit ? 2.0 : 1.0));
    if (m_isWall) {
        painter.fillRect(body, line);
        return;
    }
    if (m_isDrawn) {
        if (IsChosen()) {
            painter.drawLine(QPointF(body.left(), 0.0), QPointF(body.right(), 0.0));
        }
        return;
    }
    if (IsChosen()) {
        QColor fill = Colors().chosen;
        fill.setAlpha(60);
        painter.fillRect(body, fill);
    }
    painter.drawLine(body.topLeft(), body.topRight());
    painter.drawLine(body.bottomLeft(), body.bottomRight());
    painter.drawLine(body.topLeft(), body.bottomLeft());
    painter.drawLine(body.topRight(), body.bottomRight());
}

// At the left of the block, by lines that continue each other.
void OwnerItem::PaintLeader(QPainter& painter, const Label& label) const
{
    const bool isInBlock =
        !label.turn && label.inPlace < 0 && label.field != Field::LeftEnd && label.field != Field::RightEnd;
    if (!isInBlock || label.text.isEmpty() || label.box.x() > label.anchor.x()) {
        return;
    }
    painter.setPen(LinePen(Colors(), IsChosen() ? Colors().chosen : Colors().beam));
    const double x = label.anchor.x() - FieldLeader * label.box.height() / TextHeight;
    const bool isBelow = m_corner.y() > 0.0;
    painter.drawLine(QPointF(x, 0.0), QPointF(x, isBelow ? label.box.bottom() : label.box.top()));
}

void OwnerItem::PaintText(QPainter& painter, const Label& label) const
{
    const FieldRef ref = RefOf(label);
    if (m_lit == ref || std::count(m_together.begin(), m_together.end(), ref) != 0) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Colors().chosenText);
        painter.drawPolygon(label.Outline());
    } else if (m_hovered == ref) {
        painter.setPen(LinePen(Colors(), Colors().chosen));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(label.Outline());
    }
    if (label.turn) {
        painter.setPen(Colors().text);
        DrawPlaced(painter, label.box.bottomLeft(), *label.turn, label.box.height(), label.text);
        return;
    }
    const bool end = label.field == Field::LeftEnd || label.field == Field::RightEnd;
    painter.setPen(end && !m_isDrawn ? Colors().endText : Colors().text);
    painter.setFont(PlanFont());
    const double unit = label.box.height() / TextHeight;
    const QTransform before = painter.transform();
    painter.translate(label.box.topLeft());
    painter.scale(unit, unit);
    painter.drawText(QRectF(0, -TextHeight, label.box.width() / unit + TextHeight, 3.0 * TextHeight),
                     Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, label.text);
    painter.setTransform(before);
}

}  // namespace Desk
