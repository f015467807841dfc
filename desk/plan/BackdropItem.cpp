#include "desk/plan/BackdropItem.h"

#include <algorithm>

namespace Desk {

namespace {

constexpr std::size_t MostInTile = 500;
constexpr double LeastLength = 0.4;     // pixels of a line that is drawn
constexpr double TextStep = 5.0 / 3.0;  // text heights from line to line of a longer text

// Also of a level or upright line, which other rectangles have to meet.
QRectF RectAround(const QLineF& line)
{
    return QRectF(line.p1(), line.p2()).normalized().adjusted(-1, -1, 1, 1);
}

double SquareOf(const QLineF& line) { return line.dx() * line.dx() + line.dy() * line.dy(); }

QRectF BoundsOf(const Backdrop& backdrop)
{
    QPolygonF ends;
    ends.reserve(static_cast<qsizetype>(2 * backdrop.lines.size() + backdrop.texts.size()));
    for (const PlanLine& line : backdrop.lines) {
        ends << OnSheet(line.from) << OnSheet(line.to);
    }
    for (const PlanText& text : backdrop.texts) {
        ends << OnSheet(text.place.at);
    }
    return ends.boundingRect();
}

}  // namespace

BackdropItem::BackdropItem(const Backdrop& backdrop)
{
    const QPointF middle = BoundsOf(backdrop).center();
    setPos(middle);
    setFlag(ItemUsesExtendedStyleOption);  // for the exposed rectangle
    setZValue(-2.0);
    m_lines.reserve(backdrop.lines.size());
    for (const PlanLine& line : backdrop.lines) {
        m_lines.emplace_back(OnSheet(line.from) - middle, OnSheet(line.to) - middle);
    }
    Tiles(0, m_lines.size());
    for (const PlanText& text : backdrop.texts) {
        AddText(text);
    }
    for (const Tile& tile : m_tiles) {
        m_all |= tile.bounds;
    }
    for (const Text& text : m_texts) {
        m_all |= text.bounds;
    }
}

// Parts the lines in two halves, side by side, until they are few.
void BackdropItem::Tiles(std::size_t first, std::size_t last)
{
    const auto begin = m_lines.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = m_lines.begin() + static_cast<std::ptrdiff_t>(last);
    if (last - first <= MostInTile) {
        std::sort(begin, end, [](const QLineF& a, const QLineF& b) { return SquareOf(a) > SquareOf(b); });
        Tile tile{{}, first, last};
        std::for_each(begin, end, [&](const QLineF& line) { tile.bounds |= RectAround(line); });
        m_tiles.push_back(tile);
        return;
    }
    QPointF least = begin->center();
    QPointF most = least;
    for (auto line = begin; line != end; ++line) {
        const QPointF at = line->center();
        least = {std::min(least.x(), at.x()), std::min(least.y(), at.y())};
        most = {std::max(most.x(), at.x()), std::max(most.y(), at.y())};
    }
    const bool wide = most.x() - least.x() > most.y() - least.y();
    const std::size_t half = first + (last - first) / 2;
    std::nth_element(begin, m_lines.begin() + static_cast<std::ptrdiff_t>(half), end,
                     [wide](const QLineF& a, const QLineF& b) {
                         return wide ? a.center().x() < b.center().x() : a.center().y() < b.center().y();
                     });
    Tiles(first, half);
    Tiles(half, last);
}

void BackdropItem::AddText(const PlanText& text)
{
    const double height = text.place.height;
    const QTransform toItem = FrameOf(text.place) * QTransform::fromTranslate(-x(), -y());
    double down = 0.0;
    for (const QString& line : QString::fromStdString(text.text).split(QLatin1Char('\n'))) {
        const QRectF box(0.0, down - height, TextWidth(line, height), height);
        const double room = height / 2.0;
        m_texts.push_back({line, toItem.map(QPointF(0.0, down)), -text.place.angle, height,
                           toItem.mapRect(box.adjusted(-room, -room, room, room))});
        down += TextStep * height;
    }
}

void BackdropItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* /*widget*/)
{
    const double scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    const bool onScreen = Colors().lineWidth <= 0.0;
    const bool smooth = painter->testRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::Antialiasing, smooth && !onScreen);  // it is most of the time
    painter->setPen(LinePen(Colors(), Colors().backdrop));
    const double least = LeastLength * LeastLength / (scale * scale);
    for (const Tile& tile : m_tiles) {
        if (!tile.bounds.intersects(option->exposedRect)) {
            continue;
        }
        const auto begin = m_lines.begin() + static_cast<std::ptrdiff_t>(tile.first);
        const auto end =
            std::partition_point(begin, m_lines.begin() + static_cast<std::ptrdiff_t>(tile.last),
                                 [&](const QLineF& line) { return SquareOf(line) >= least; });
        painter->drawLines(&*begin, static_cast<int>(end - begin));
    }
    painter->setRenderHint(QPainter::Antialiasing, smooth);
    painter->setPen(Colors().backdropText);
    for (const Text& text : m_texts) {
        if (IsReadable(text.height, scale) && text.bounds.intersects(option->exposedRect)) {
            DrawPlaced(*painter, text.corner, text.turn, text.height, text.text);
        }
    }
}

}  // namespace Desk
