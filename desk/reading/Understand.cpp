#include "desk/reading/Understand.h"

#include <algorithm>
#include <span>
#include <tuple>

#include "desk/reading/Annotation.h"
#include "desk/reading/ReadText.h"

namespace Desk {

namespace {

// Walls are named as a person likes.
bool MayBe(const std::string& text, const FieldRef& at)
{
    return at.isWall && at.field == Field::Name ? !IsOfField(text, Field::HorizontalBars)
                                                : IsOfField(text, at.field);
}

bool HasAlready(const Project& project, const FieldRef& at, const std::string& text)
{
    const FieldRow& row = RowOf(at.field);
    const auto isSame = [&](const auto& owner, auto member) { return owner.*member == text; };
    return at.isWall ? std::any_of(project.walls.begin(), project.walls.end(),
                                   [&](const Wall& wall) { return isSame(wall, row.ofWall); })
                     : std::any_of(project.beams.begin(), project.beams.end(),
                                   [&](const Beam& beam) { return isSame(beam, row.ofBeam); });
}

// A lone stretch of bars is read as top bars, which at other bars' place are those.
std::vector<TextFor> TextsFor(const Reading& reading, const FieldRef& at)
{
    const std::vector<Annotation>& all = reading.annotations;
    const bool hasBottom = std::any_of(
        all.begin(), all.end(), [](const Annotation& each) { return each.field == Field::BottomBars; });
    const bool isEnd = at.field == Field::LeftEnd || at.field == Field::RightEnd;
    std::vector<TextFor> texts;
    for (const Annotation& each : all) {
        const bool isHere =
            each.field == Field::TopBars && (isEnd || (at.field == Field::BottomBars && !hasBottom));
        texts.push_back({{false, at.index, isHere ? at.field : each.field}, each.text});
    }
    return texts;
}

bool AreTopAndBottom(const std::vector<TextFor>& parts, const FieldRef& at, const std::string& text)
{
    return parts.size() == 2 && (at.field == Field::TopBars || at.field == Field::BottomBars) &&
           std::all_of(parts.begin(), parts.end(), [&](const TextFor& part) {
               return (part.at.field == Field::TopBars || part.at.field == Field::BottomBars) &&
                      text.find(part.text) != std::string::npos;  // nothing in it is a guess
           });
}

}  // namespace

Understood Understand(const Project& project, const FieldRef& at, const std::string& text)
{
    constexpr Choices AsWritten{'B', 'A', 0};
    const bool isDivided = text.find(';') != std::string::npos || text.find("；") != std::string::npos;
    const bool isOwn = MayBe(text, at);
    if ((isOwn && (!isDivided || at.inPlace >= 0)) || HasAlready(project, at, text)) {
        return {true, {}, {}, false};
    }
    Understood found;
    if (!at.isWall) {
        const Reading reading = ReadText(text, Kind::None, AsWritten);
        const bool isOfBeam =
            std::none_of(reading.annotations.begin(), reading.annotations.end(),
                         [](const Annotation& each) { return RowOf(each.field).ofBeam == nullptr; });
        if (reading.outcome == Outcome::Read && isOfBeam) {
            (reading.annotations.size() > 1 ? found.parts : found.instead) = TextsFor(reading, at);
        }
    }
    if (at.inPlace >= 0) {
        found.parts.clear();
        for (TextFor& each : found.instead) {
            each.at.inPlace = each.at.field == at.field ? at.inPlace : -1;
        }
    }
    found.isSplit = AreTopAndBottom(found.parts, at, text);
    for (const Field field : found.parts.empty() ? FieldsOf(at) : std::span<const Field>()) {
        const FieldRef other{at.isWall, at.index, field};
        const auto isOther = [&](const TextFor& each) { return each.at.field == field; };
        if (field != at.field && MayBe(text, other) &&
            std::none_of(found.instead.begin(), found.instead.end(), isOther) &&
            !(at.isWall && field == Field::Name)) {
            found.instead.push_back({other, text});
        }
    }
    std::sort(found.instead.begin(), found.instead.end(), [&](const TextFor& a, const TextFor& b) {
        const auto rank = [&](const TextFor& each) {
            return std::tuple(each.at != at, !TextAt(project, each.at).empty(), each.at.field);
        };
        return rank(a) < rank(b);
    });
    return found;
}

}  // namespace Desk
