// FloorView: beams and walls that come and go, positions that a person points to, and handles.
#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "desk/plan/FloorView.h"
#include "desk/plan/PlaceBlocks.h"
#include "desk/plan/Points.h"
#include "desk/project/Making.h"

namespace Desk {

namespace {

constexpr double CatchReach = 10.0;           // pixels
constexpr std::size_t MostAmongOthers = 200;  // new items whose blocks find a position among all others
constexpr double Neighbourhood = 4000;        // mm around a new item in which others can be in its way

}  // namespace

void FloorView::Exchange(const Exchanged& exchanged)
{
    if (m_project == nullptr) {
        return;
    }
    m_hovered = nullptr;
    m_drag.reset();
    m_textDrag.reset();
    if (exchanged.Renumbers()) {
        SetChosen(std::nullopt);
    }
    ExchangeItems(exchanged.beams, false);
    ExchangeItems(exchanged.walls, true);
    ShowHandles();
    if (!sceneRect().contains(m_shown)) {
        setSceneRect(sceneRect() | m_shown.adjusted(-m_shown.width(), -m_shown.height(), m_shown.width(),
                                                    m_shown.height()));
    }
    SetContent(m_shown, m_readingScale);
    Scaled();
}

std::vector<OwnerItem*> FloorView::ItemsAround(const OwnerItem& item) const
{
    std::vector<OwnerItem*> around;
    for (QGraphicsItem* const each : scene()->items(item.sceneBoundingRect().adjusted(
             -Neighbourhood, -Neighbourhood, Neighbourhood, Neighbourhood))) {
        if (auto* const owner = qgraphicsitem_cast<OwnerItem*>(each)) {
            around.push_back(owner);
        }
    }
    return around;
}

void FloorView::ExchangeItems(const ExchangedIndices& exchanged, bool isWall)
{
    // Beams come first; the walls' items are those after as many beams as there are now.
    const auto begin = m_items.begin() + (isWall ? std::ssize(m_project->beams) : 0);
    const auto end = isWall ? m_items.end() : m_items.end() - m_walls;
    std::set<PlanItem*> gone;
    std::vector<OwnerItem*> came;
    if (!exchanged.Renumbers()) {
        for (const std::size_t index : exchanged.in) {
            came.push_back(*(begin + static_cast<std::ptrdiff_t>(index)));
            came.back()->Take(*m_project);
        }
    } else {
        const std::size_t count = isWall ? m_project->walls.size() : m_project->beams.size();
        std::vector<OwnerItem*> items;
        std::size_t before = 0;
        for (auto at = begin; at != end; ++at, ++before) {
            if (std::binary_search(exchanged.out.begin(), exchanged.out.end(), before)) {
                gone.insert(*at);
            }
        }
        auto at = begin;
        for (std::size_t i = 0; i < count; ++i) {
            if (std::binary_search(exchanged.in.begin(), exchanged.in.end(), i)) {
                came.push_back(new OwnerItem(*m_project, isWall, i));
                came.back()->SetColors(&ColorsFor(m_isDark));
                items.push_back(came.back());
                continue;
            }
            at = std::find_if(at, end, [&](OwnerItem* item) { return !gone.contains(item); });
            items.push_back(*at++);
            items.back()->SetIndex(i);
        }
        items.insert(isWall ? items.begin() : items.end(), isWall ? m_items.begin() : end,
                     isWall ? begin : m_items.end());
        m_items = std::move(items);
        m_walls = isWall ? static_cast<std::ptrdiff_t>(count) : m_walls;
        std::erase_if(m_all, [&](PlanItem* item) { return gone.contains(item); });
        qDeleteAll(gone);
        if (came.size() > MostAmongOthers) {
            PlaceBlocks(came);
        }
        for (OwnerItem* const item : came) {
            if (came.size() <= MostAmongOthers) {
                PlaceBlock(*item, ItemsAround(*item));
            }
            scene()->addItem(item);
            m_all.push_back(item);
        }
    }
    for (const OwnerItem* const item : came) {
        m_shown |= item->sceneBoundingRect();
    }
}

void FloorView::StartPointing(TakePoint pressed, TakePoint moved)
{
    m_pressed = std::move(pressed);
    m_moved = std::move(moved);
    viewport()->setCursor(Qt::CrossCursor);
}

void FloorView::EndPointing()
{
    m_pressed = nullptr;
    m_moved = nullptr;
    SetSketch({}, std::nullopt);
    viewport()->setCursor(Qt::ArrowCursor);
}

void FloorView::SetSketch(std::vector<PlanLine> lines, const std::optional<PlanPoint>& taken)
{
    if (m_sketch != nullptr) {
        m_sketch->SetLines(std::move(lines), taken);
    }
}

PlanPoint FloorView::CaughtAt(const PlanPoint& at, const std::optional<PlanPoint>& from) const
{
    return m_project != nullptr ? Caught(*m_project, at, CatchReach / transform().m11(), from) : at;
}

void FloorView::SetHandles(bool ofBeams, bool ofWalls)
{
    m_hasHandles[0] = ofBeams;
    m_hasHandles[1] = ofWalls;
    ShowHandles();
}

std::vector<PlanPoint> FloorView::ChosenEnds() const
{
    if (!m_chosen) {
        return {};
    }
    if (m_chosen->isWall) {
        const Wall& wall = m_project->walls[m_chosen->index];
        return {wall.start, wall.end};
    }
    const Beam& beam = m_project->beams[m_chosen->index];
    return {beam.start, beam.end};
}

void FloorView::ShowHandles()
{
    if (m_sketch != nullptr) {
        const bool shown = m_chosen && m_hasHandles[m_chosen->isWall ? 1 : 0];
        m_sketch->SetHandles(shown ? ChosenEnds() : std::vector<PlanPoint>());
    }
}

void FloorView::DragHandle(const QPoint& inView)
{
    m_drag->hasMoved = m_drag->hasMoved ||
                       (inView - m_drag->pressed).manhattanLength() >= QApplication::startDragDistance();
    const std::vector<PlanPoint> ends = ChosenEnds();
    if (m_drag->hasMoved && !ends.empty()) {
        const QPointF at = mapToScene(inView);
        const PlanPoint& other = ends[1 - m_drag->handle];
        m_drag->to = CaughtAt({at.x(), -at.y()}, other);
        SetSketch({{other, m_drag->to}}, m_drag->to);
    }
}

void FloorView::DragText(const QPoint& inView)
{
    const OwnerItem* const item = ItemOf(m_textDrag->ref);
    const QRectF box = item != nullptr ? item->DraggedBox(m_textDrag->ref) : QRectF();
    const QPoint by = inView - m_textDrag->pressed;
    m_textDrag->hasMoved =
        m_textDrag->hasMoved || by.manhattanLength() >= QApplication::startDragDistance();
    if (!m_textDrag->hasMoved || box.isEmpty()) {
        return;
    }
    viewport()->setCursor(Qt::ClosedHandCursor);
    const QPolygonF frame =
        item->mapToScene(box).translated(mapToScene(inView) - mapToScene(m_textDrag->pressed));
    std::vector<PlanLine> lines;
    for (qsizetype i = 0; i + 1 < frame.size(); ++i) {
        lines.push_back({{frame[i].x(), -frame[i].y()}, {frame[i + 1].x(), -frame[i + 1].y()}});
    }
    SetSketch(std::move(lines), std::nullopt);
}

void FloorView::DropText(const QPoint& inView)
{
    const TextDrag drag = *std::exchange(m_textDrag, std::nullopt);
    SetSketch({}, std::nullopt);
    const OwnerItem* const item = ItemOf(drag.ref);
    if (!drag.hasMoved || item == nullptr) {
        return;
    }
    const QPointF from = mapToScene(drag.pressed);
    const QPointF to = mapToScene(inView);
    const QPointF along = item->mapFromScene(to) - item->mapFromScene(from);
    Beam beam = drag.ref.isWall ? Beam() : m_project->beams[drag.ref.index];
    const PlanPoint& before = DraggedTo(beam, drag.ref);
    const bool hasPosition = drag.ref.inPlace >= 0 &&
                             beam.inPlace[static_cast<std::size_t>(drag.ref.inPlace)].place.height > 0.0;
    const QPointF by = hasPosition ? to - from : along;
    const QPointF start = &before == &beam.textsAt ? item->Block() : OnSheet(before);
    emit TextDragged(drag.ref, {std::round(start.x() + by.x()), std::round(-start.y() - by.y())});
}

}  // namespace Desk
