#include "desk/plan/OwnerItem.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "desk/reading/Section.h"

namespace Desk {

namespace {

constexpr double DefaultWidth = 250.0;  // mm, of a beam whose section cannot be read
constexpr double BlockGap = 120.0;      // mm between a beam's edge and the block
constexpr double LeaderReach = 260.0;   // mm that the leader goes beyond the beam's far edge

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
    if (!m_block.empty()) {
        m_bounds.adjust(-FieldLeader * m_block.front().box.height() / TextHeight, 0, 0, 0);
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
        TakeDragged(wall.textsAt);
        m_body.width = wall.thickness > 0 ? wall.thickness : DefaultWidth;
        m_block = BlockOf(wall);
    } else {
        const Beam& beam = project.beams[m_index];
        const int width = WidthOf(beam.section);
        m_body.width = width > 0 ? width : DefaultWidth;
        TakeDragged(beam.textsAt);
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

void OwnerItem::TakeDragged(const PlanPoint& at)
{
    m_dragged = at.x != 0.0 || at.y != 0.0 ? std::optional(QPointF(at.x, -at.y)) : std::nullopt;
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
    const QPointF corner = Block();
    const QPointF anchor = corner.y() > 0.0 ? corner : corner + QPointF(0.0, SizeOf(m_block).height());
    for (const Label& label : m_block) {
        all.push_back(label);
        all.back().box.translate(corner);
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

QRectF OwnerItem::DraggedBox(const FieldRef& ref) const
{
    const std::vector<Label> labels = Labels();
    const auto dragged = std::find_if(labels.begin(), labels.end(), [&](const Label& label) {
        return RefOf(label) == ref && !label.text.isEmpty();
    });
    QRectF box;
    for (auto each = labels.begin(); each != labels.end() && dragged != labels.end(); ++each) {
        if (each == dragged || (dragged->IsInBlock() && each->IsInBlock() && !each->text.isEmpty())) {
            box |= each->Outline().boundingRect();
        }
    }
    return box;
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

}  // namespace Desk
