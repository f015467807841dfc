#include "desk/drawing/Splices.h"

#include <algorithm>
#include <charconv>

#include "desk/drawing/Pairs.h"

namespace Desk {

namespace {

// As DXF writes numbers: with a point.
std::string NumberText(double number)
{
    char digits[64];
    const auto end = std::to_chars(digits, digits + sizeof digits, number).ptr;
    std::string text(digits, end);
    return text.find_first_of(".e") == std::string::npos ? text + ".0" : text;
}

std::string HandleText(std::uint64_t handle)
{
    char digits[32];
    std::string text(digits, std::to_chars(digits, digits + sizeof digits, handle, 16).ptr);
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char ch) { return ch >= 'a' ? static_cast<char>(ch - 32) : ch; });
    return text;
}

}  // namespace

void Splices::Put(const TextEntity& entity, const Stretch& at, const std::string& text)
{
    std::size_t before = 0;
    bool isPut = false;
    for (const Stretch& piece : entity.values) {
        const std::size_t length = piece.end - piece.begin;
        const std::size_t from = std::max(at.begin, before);
        const std::size_t to = std::min(at.end, before + length);
        if (from < to ||
            (!isPut && at.begin == at.end && at.begin >= before && at.begin <= before + length)) {
            m_all.push_back({{piece.begin + from - before, piece.begin + std::max(from, to) - before},
                             isPut ? std::string() : text});
            isPut = true;
        }
        before += length;
    }
}

void Splices::AddCopy(const TextLine& like, const std::string& value, const PlanPoint& position)
{
    const TextEntity& entity = m_parts.EntityOf(like);
    if (entity.kind != TextKind::Text) {
        throw Failure(Phrase("Desk", "%1: a label of block attributes takes no new line"),
                      ShowPlain(like.plain));
    }
    const PlacedText& placed = m_parts.placed.texts[like.placed];
    const PlanPoint now = placed.transform.Back(placed.place.at);
    const PlanPoint wanted = placed.transform.Back(position);
    const PlanPoint step{wanted.x - now.x, wanted.y - now.y};
    const std::string_view bytes = m_parts.file.bytes;
    PairReader pairs(bytes.substr(0, entity.record.end), entity.record.begin);
    std::string copy;
    std::size_t copied = entity.record.begin;
    bool hasValue = false;
    for (Pair pair; pairs.Next(pair);) {
        std::optional<std::string> text;
        switch (pair.code) {
        case 1:
            text = hasValue ? std::nullopt : std::optional(value);
            hasValue = true;
            break;
        case 5: text = HandleText(m_nextHandle++); break;
        case 10:
        case 11: text = NumberText(RealOf(pair.value) + step.x); break;
        case 20:
        case 21: text = NumberText(RealOf(pair.value) + step.y); break;
        default: break;
        }
        if (text) {
            copy.append(bytes.substr(copied, pair.valueAt - copied)).append(*text);
            copied = pair.valueAt + pair.value.size();
        }
    }
    copy.append(bytes.substr(copied, entity.record.end - copied));
    m_all.push_back({{entity.record.end, entity.record.end}, std::move(copy)});
}

std::vector<std::string_view> Splices::Written()
{
    if (m_nextHandle != m_parts.file.nextHandle && m_parts.file.handSeed.end > 0) {
        m_all.push_back({m_parts.file.handSeed, HandleText(m_nextHandle)});
    }
    std::stable_sort(m_all.begin(), m_all.end(), [](const Splice& a, const Splice& b) {
        return std::pair(a.at.begin, a.at.end) < std::pair(b.at.begin, b.at.end);
    });
    const std::string_view bytes = m_parts.file.bytes;
    std::vector<std::string_view> pieces;
    std::size_t copied = 0;
    for (const Splice& splice : m_all) {
        // A block that is referred to twice changes once.
        if (splice.at.begin < copied) {
            continue;
        }
        pieces.push_back(bytes.substr(copied, splice.at.begin - copied));
        pieces.push_back(splice.text);
        copied = splice.at.end;
    }
    pieces.push_back(bytes.substr(copied));
    return pieces;
}

}  // namespace Desk
