#include "desk/plan/SmallTexts.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace Desk {

namespace {

constexpr double RoomAround = 0.15;     // heights around a text
constexpr double CellHeights = 4.0;     // the side of a cell
constexpr double MostOfText = 4'000.0;  // cells
constexpr std::size_t Lists = std::size_t{1} << 16;

using Piece = SmallTexts::Piece;

// Rectangles by the cells that they meet. Cells share lists, by their hash, which costs a few comparisons
// and no more.
class Taken {
public:
    explicit Taken(double cell) : m_cell(cell), m_heads(Lists, None) {}

    // Takes it unless it meets another.
    bool Take(const QRectF& rect)
    {
        const bool isFree = IsOrdinary(rect) &&
                            !AnyCell(rect, [&](std::size_t head) { return Meets(rect, m_heads[head]); });
        if (isFree) {
            AnyCell(rect, [&](std::size_t head) {
                m_entries.push_back({rect, m_heads[head]});
                m_heads[head] = m_entries.size() - 1;
                return false;
            });
        }
        return isFree;
    }

private:
    static constexpr std::size_t None = static_cast<std::size_t>(-1);
    struct Entry {
        QRectF rect;
        std::size_t next;
    };

    // Not so long that its cells would take all the time.
    [[nodiscard]] bool IsOrdinary(const QRectF& rect) const
    {
        return (rect.width() / m_cell + 1.0) * (rect.height() / m_cell + 1.0) <= MostOfText;
    }
    [[nodiscard]] bool Meets(const QRectF& rect, std::size_t entry) const
    {
        while (entry != None && !m_entries[entry].rect.intersects(rect)) {
            entry = m_entries[entry].next;
        }
        return entry != None;
    }
    template <class Use>
    bool AnyCell(const QRectF& rect, Use use) const
    {
        const auto index = [this](double at) { return static_cast<std::int64_t>(std::floor(at / m_cell)); };
        const std::int64_t right = index(rect.right());
        const std::int64_t bottom = index(rect.bottom());
        for (std::int64_t y = index(rect.top()); y <= bottom; ++y) {
            for (std::int64_t x = index(rect.left()); x <= right; ++x) {
                const auto mixed = static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15U +
                                   static_cast<std::uint64_t>(y) * 0xC2B2AE3D27D4EB4FU;
                if (use(static_cast<std::size_t>(mixed >> 48U))) {
                    return true;
                }
            }
        }
        return false;
    }

    double m_cell;
    std::vector<std::size_t> m_heads;
    std::vector<Entry> m_entries;
};

QRectF RectOf(const OwnerItem& owner, const Label& label)
{
    const double room = RoomAround * label.box.height();
    return owner.mapRectToScene(label.Turned().mapRect(label.box).adjusted(-room, -room, room, room));
}

bool IsBeside(const Label& label)
{
    return label.inPlace >= 0 || label.field == Field::LeftEnd || label.field == Field::RightEnd;
}

// "2B25" and ";4B25" are nothing without each other.
bool IsSameLine(const Label& a, const Label& b)
{
    return !IsBeside(a) && !IsBeside(b) && a.anchor == b.anchor &&
           (a.turn.has_value() || std::abs(a.box.top() - b.box.top()) < a.box.height() / 2.0);
}

}  // namespace

SmallTexts::SmallTexts()
{
    setFlag(ItemUsesExtendedStyleOption);  // for the exposed rectangle
    setZValue(1.5);                        // above the lit beam
}

std::vector<SmallTexts::Ranked> SmallTexts::PiecesOf(OwnerItem& owner)
{
    std::vector<Ranked> pieces;
    const std::vector<Label> labels = owner.Labels();
    for (std::size_t i = 0; i < labels.size();) {
        const std::size_t first = i++;
        if (labels[first].text.isEmpty()) {
            continue;
        }
        const QRectF alone = RectOf(owner, labels[first]);
        QRectF rect = alone;
        for (; i < labels.size() && IsSameLine(labels[first], labels[i]); ++i) {
            rect |= labels[i].text.isEmpty() ? QRectF() : RectOf(owner, labels[i]);
        }
        const Rank rank = !owner.IsSmall(labels[first])        ? Rank::Large
                          : IsBeside(labels[first])            ? Rank::Beside
                          : labels[first].field == Field::Name ? Rank::Name
                                                               : Rank::Line;
        pieces.push_back({rank, {&owner, first, i, rect}, alone});
    }
    return pieces;
}

void SmallTexts::Choose(const std::vector<OwnerItem*>& owners, double height)
{
    m_owners = owners;
    m_height = height;
    bool anySmall = false;
    for (OwnerItem* const owner : owners) {
        owner->SetLeastHeight(height);
        anySmall = anySmall || owner->HasSmallTexts();
    }
    m_pieces.resize(anySmall ? owners.size() : 0);
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        m_pieces[i] = PiecesOf(*owners[i]);
    }
    Arrange();
}

void SmallTexts::Renew(const std::vector<OwnerItem*>& changed)
{
    const auto isSmall = [](const OwnerItem* owner) { return owner->HasSmallTexts(); };
    if (m_pieces.empty() && std::any_of(changed.begin(), changed.end(), isSmall)) {
        Choose(std::vector(m_owners), m_height);
        return;
    }
    for (OwnerItem* const owner : changed) {
        const auto found = std::find(m_owners.begin(), m_owners.end(), owner);
        if (const auto at = static_cast<std::size_t>(found - m_owners.begin()); at < m_pieces.size()) {
            m_pieces[at] = PiecesOf(*owner);
        }
    }
    Arrange();
}

void SmallTexts::Arrange()
{
    prepareGeometryChange();
    m_shown.clear();
    Taken taken(CellHeights * m_height);
    std::vector<bool> ended(m_pieces.size());  // a line without those above it would seem another beam's
    const auto take = [&](const Piece& piece) {
        const bool isFree = taken.Take(piece.rect);
        if (isFree) {
            m_shown.push_back(piece);
        }
        return isFree;
    };
    const auto place = [&](const Ranked& each, std::size_t owner) {
        const Piece& piece = each.piece;
        switch (each.rank) {
        case Rank::Large: taken.Take(piece.rect); break;
        case Rank::Name:
            ended[owner] = !take(piece) && (piece.first + 1 == piece.last ||
                                            !take({piece.owner, piece.first, piece.first + 1, each.alone}));
            break;
        case Rank::Line: ended[owner] = ended[owner] || !take(piece); break;
        case Rank::Beside: take(piece); break;
        }
    };
    for (const Rank rank : {Rank::Large, Rank::Name, Rank::Line, Rank::Beside}) {
        for (std::size_t i = 0; i < m_pieces.size(); ++i) {
            for (const Ranked& each : m_pieces[i]) {
                if (each.rank == rank) {
                    place(each, i);
                }
            }
        }
    }
    m_all = QRectF();
    for (const Piece& piece : m_shown) {
        m_all |= piece.rect;
    }
    FindLit();
}

void SmallTexts::SetLit(OwnerItem* owner, const std::optional<FieldRef>& ref)
{
    update(m_lit.rect);
    m_lit = {ref ? owner : nullptr, 0, 0, {}};
    m_litRef = ref;
    FindLit();
}

void SmallTexts::Touch(const FieldRef& ref, const OwnerItem& owner)
{
    const QRectF box = owner.mapRectToScene(owner.BoxOf(ref).boundingRect());
    const double room = std::max(box.width(), box.height());
    update(box.adjusted(-room, -room, room, room));
}

// The lit text may have another length, or be large enough by now.
void SmallTexts::FindLit()
{
    m_lit.last = m_lit.first = 0;
    if (m_lit.owner != nullptr) {
        const std::vector<Label> labels = m_lit.owner->Labels();
        for (std::size_t i = 0; i < labels.size(); ++i) {
            if (m_lit.owner->RefOf(labels[i]) == m_litRef && m_lit.owner->IsSmall(labels[i])) {
                m_lit = {m_lit.owner, i, i + 1, RectOf(*m_lit.owner, labels[i])};
            }
        }
    }
    if (m_lit.last > m_lit.first) {
        const double room = m_lit.rect.height() + m_lit.rect.width();  // its leader too
        m_lit.rect.adjust(-room, -room, room, room);
        if (!m_all.contains(m_lit.rect)) {
            prepareGeometryChange();
            m_all |= m_lit.rect;
        }
        update(m_lit.rect);
    }
}

std::optional<SmallTexts::Hit> SmallTexts::At(const QPointF& onSheet) const
{
    const auto in = [&](const Piece& piece) -> std::optional<Hit> {
        if (piece.last == piece.first || !piece.rect.contains(onSheet)) {
            return std::nullopt;
        }
        const QPointF local = piece.owner->mapFromScene(onSheet);
        const std::vector<Label> labels = piece.owner->Labels();
        for (std::size_t i = piece.first; i < piece.last; ++i) {
            if (!labels[i].text.isEmpty() && labels[i].Outline().containsPoint(local, Qt::OddEvenFill)) {
                return Hit(piece.owner, piece.owner->RefOf(labels[i]));
            }
        }
        return std::nullopt;
    };
    std::optional<Hit> hit = in(m_lit);
    for (auto piece = m_shown.begin(); piece != m_shown.end() && !hit; ++piece) {
        hit = in(*piece);
    }
    return hit;
}

void SmallTexts::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* /*widget*/)
{
    for (const Piece& piece : m_shown) {
        if (piece.rect.intersects(option->exposedRect)) {
            PaintPiece(*painter, piece);
        }
    }
    PaintPiece(*painter, m_lit);
}

void SmallTexts::PaintPiece(QPainter& painter, const Piece& piece) const
{
    if (piece.last == piece.first) {
        return;
    }
    const QTransform before = painter.transform();
    painter.setTransform(piece.owner->sceneTransform() * before);
    const std::vector<Label> labels = piece.owner->Labels();
    for (std::size_t i = piece.first; i < piece.last; ++i) {
        piece.owner->PaintLeader(painter, labels[i]);
        piece.owner->PaintText(painter, labels[i]);
    }
    painter.setTransform(before);
}

}  // namespace Desk
