#include "desk/plan/OwnerItem.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "desk/reading/Section.h"

namespace Desk {

namespace {

constexpr double DefaultWidth = 250.0;  // mm, of a beam whose section cannot be read
constexpr double TextGap = 120.0;       // mm between a beam's edge and a text
constexpr double EndInset = 350.0;      // mm from a beam's end to its text
constexpr double LeaderReach = 260.0;   // mm that the leader goes beyond the beam's far edge
constexpr double ReadableHeight = 4.0;  // pixels; lower texts are not drawn
constexpr double HitMargin = 50.0;      // mm around a text
constexpr double FieldLeader = 90.0;    // mm from the leader to the texts

double DegreesOf(double dx, double dy) { return std::atan2(dy, dx) * 180.0 / std::numbers::pi; }

}  // namespace

const PlanColors& ColorsFor(bool dark)
{
    static const PlanColors onDark = {QColor(0x14, 0x18, 0x1E), QColor(0x9C, 0x4A, 0x46),
                                      QColor(0x4A, 0xC6, 0xD8), QColor(0x8A, 0x93, 0xA0),
                                      QColor(0xD8, 0xE4, 0xD0), QColor(0xF0, 0xC6, 0x74),
                                      QColor(0xFF, 0xB3, 0x00), QColor(0x1F, 0x5F, 0xB0)};
    static const PlanColors onLight = {QColor(0xFF, 0xFF, 0xFF), QColor(0xD9, 0x8C, 0x86),
                                       QColor(0x0B, 0x72, 0x85), QColor(0x6B, 0x74, 0x80),
                                       QColor(0x1B, 0x1F, 0x24), QColor(0x8A, 0x4B, 0x08),
                                       QColor(0xE0, 0x7B, 0x00), QColor(0xFF, 0xE0, 0x8A)};
    return dark ? onDark : onLight;
}

OwnerItem::OwnerItem(const Project& project, bool isWall, std::size_t index)
    : m_isWall(isWall), m_index(index), m_colors(&ColorsFor(false))
{
    const PlanPoint start = isWall ? project.walls[index].start : project.beams[index].start;
    const PlanPoint end = isWall ? project.walls[index].end : project.beams[index].end;
    // The sheet's y goes down, the plan's up. Texts are read from below or from the right.
    double dx = end.x - start.x;
    double dy = start.y - end.y;
    constexpr double Upright = 1e-6;
    if (dx < -Upright * std::abs(dy) || (std::abs(dx) <= Upright * std::abs(dy) && dy > 0.0)) {
        dx = -dx;
        dy = -dy;
    }
    m_length = std::hypot(dx, dy);
    setPos((start.x + end.x) / 2.0, -(start.y + end.y) / 2.0);
    setRotation(DegreesOf(dx, dy));
    TakeTexts(project);
    SetBlock(BlockPositions().front());
}

QRectF OwnerItem::boundingRect() const
{
    QRectF all = Body().adjusted(0, -LeaderReach, 0, LeaderReach);
    for (const Label& label : AllLabels()) {
        all |= label.box;
    }
    return all.adjusted(-HitMargin, -HitMargin, HitMargin, HitMargin);
}

void OwnerItem::TakeTexts(const Project& project)
{
    prepareGeometryChange();
    if (m_isWall) {
        const Wall& wall = project.walls[m_index];
        m_width = wall.thickness > 0 ? wall.thickness : DefaultWidth;
        m_block = BlockOf(wall);
    } else {
        const Beam& beam = project.beams[m_index];
        const int width = WidthOf(beam.section);
        m_width = width > 0 ? width : DefaultWidth;
        m_block = BlockOf(beam);
        m_ends = {EndLabel(Field::LeftEnd, beam.leftEnd), EndLabel(Field::RightEnd, beam.rightEnd)};
    }
    update();
}

// At the ends above the beam, where the supports' bars are told. A short beam has them in its halves.
Label OwnerItem::EndLabel(Field field, const std::string& text) const
{
    const QString drawn = QString::fromStdString(text);
    constexpr double EmptyWidth = 900.0;
    const double width = drawn.isEmpty() ? EmptyWidth : TextWidth(drawn);
    const double inset = std::min(EndInset, std::max(0.0, m_length / 2.0 - width));
    const double x = field == Field::LeftEnd ? -m_length / 2.0 + inset : m_length / 2.0 - inset - width;
    return {field, drawn, QRectF(x, -m_width / 2.0 - TextGap - TextHeight, width, TextHeight)};
}

std::vector<QPointF> OwnerItem::BlockPositions() const
{
    const QSizeF size = BlockSize();
    const double above = -m_width / 2.0 - TextGap - TextHeight - LineStep - size.height();
    const double below = m_width / 2.0 + TextGap;
    std::vector<QPointF> positions;
    for (const double top : {below, above}) {
        for (const double part : {0.5, 0.35, 0.65, 0.2, 0.8, 0.1, 0.9, 0.42, 0.58, 0.28, 0.72}) {
            positions.emplace_back(-m_length / 2.0 + m_length * part -
                                       (m_length < 3.0 * size.width() ? size.width() / 2 : 0.0),
                                   top);
        }
    }
    return positions;
}

void OwnerItem::SetBlock(const QPointF& corner)
{
    prepareGeometryChange();
    m_corner = corner;
}

std::vector<Label> OwnerItem::AllLabels() const
{
    std::vector<Label> all = m_ends;
    for (Label label : m_block) {
        label.box.translate(m_corner);
        all.push_back(std::move(label));
    }
    return all;
}

bool OwnerItem::IsReadable(double scale) { return scale * TextHeight >= ReadableHeight; }

std::optional<Field> OwnerItem::FieldAt(const QPointF& local) const
{
    for (const Label& label : AllLabels()) {
        if (!label.text.isEmpty() &&
            label.box.adjusted(-HitMargin, -HitMargin, HitMargin, HitMargin).contains(local)) {
            return label.field;
        }
    }
    return std::nullopt;
}

bool OwnerItem::IsOnBody(const QPointF& local, double reach) const
{
    return Body().adjusted(-reach, -reach, reach, reach).contains(local);
}

QRectF OwnerItem::BoxOf(Field field) const
{
    for (const Label& label : AllLabels()) {
        if (label.field == field) {
            return label.box;
        }
    }
    return Body();
}

QRectF OwnerItem::Body() const { return {-m_length / 2.0, -m_width / 2.0, m_length, m_width}; }

std::vector<QRectF> OwnerItem::EndBoxes() const
{
    std::vector<QRectF> boxes;
    for (const Label& label : m_ends) {
        if (!label.text.isEmpty()) {
            boxes.push_back(label.box);
        }
    }
    return boxes;
}

void OwnerItem::SetLit(std::optional<Field> field)
{
    m_lit = field;
    setZValue(field ? 1.0 : 0.0);
    update();
}

void OwnerItem::SetHovered(std::optional<Field> field)
{
    m_hovered = field;
    update();
}

void OwnerItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* /*option*/, QWidget* /*widget*/)
{
    PaintBody(*painter);
    const double scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    if (IsReadable(scale)) {
        PaintTexts(*painter);
    }
}

void OwnerItem::PaintBody(QPainter& painter) const
{
    const QRectF body = Body();
    QPen pen(m_lit ? m_colors->chosen : m_isWall ? m_colors->wall : m_colors->beam, m_lit ? 2.0 : 1.0);
    pen.setCosmetic(true);
    painter.setPen(pen);
    if (m_isWall) {
        painter.fillRect(body, m_lit ? m_colors->chosen : m_colors->wall);
        return;
    }
    if (m_lit) {
        QColor fill = m_colors->chosen;
        fill.setAlpha(60);
        painter.fillRect(body, fill);
    }
    painter.drawLine(body.topLeft(), body.topRight());
    painter.drawLine(body.bottomLeft(), body.bottomRight());
    painter.drawLine(body.topLeft(), body.bottomLeft());
    painter.drawLine(body.topRight(), body.bottomRight());
}

void OwnerItem::PaintTexts(QPainter& painter) const
{
    // The leader: from the beam along the left of the block's lines.
    const QSizeF size = BlockSize();
    if (!size.isEmpty()) {
        QPen pen(m_lit ? m_colors->chosen : m_colors->beam, 1.0);
        pen.setCosmetic(true);
        painter.setPen(pen);
        const double x = m_corner.x() - FieldLeader;
        const double far = m_corner.y() > 0.0 ? m_corner.y() + size.height() : m_corner.y();
        painter.drawLine(QPointF(x, 0.0), QPointF(x, far));
    }
    painter.setFont(PlanFont());
    for (const Label& label : AllLabels()) {
        const bool lit = m_lit == label.field;
        if (lit) {
            painter.fillRect(label.box.adjusted(-HitMargin, -HitMargin, HitMargin, HitMargin),
                             m_colors->chosenText);
        } else if (m_hovered == label.field) {
            QPen pen(m_colors->chosen, 1.0);
            pen.setCosmetic(true);
            painter.setPen(pen);
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(label.box.adjusted(-HitMargin, -HitMargin, HitMargin, HitMargin));
        }
        const bool end = label.field == Field::LeftEnd || label.field == Field::RightEnd;
        painter.setPen(end ? m_colors->endText : m_colors->text);
        painter.drawText(QRectF(label.box.left(), label.box.top() - TextHeight,
                                label.box.width() + TextHeight, 3.0 * TextHeight),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, label.text);
    }
}

}  // namespace Desk
