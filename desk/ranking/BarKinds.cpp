// One row a kind; every other text is through bars.
#include "desk/ranking/BarKinds.h"

#include <algorithm>
#include <iterator>

#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"
#include "desk/ranking/ProjectHost.h"

namespace Desk {

namespace {

struct Kind {
    const char* text;
    const char* name;
    Bars wanted;
    int SteelArea::*area;
};

constexpr Kind Kinds[] = {
    {"1", "Top through bars", Bars::Top, &SteelArea::top},
    {"2", "Top bars at the left end", Bars::Top, &SteelArea::leftEnd},
    {"3", "Top bars at the right end", Bars::Top, &SteelArea::rightEnd},
    {"4", "Erection bars", Bars::Top, &SteelArea::top},
    {"5.1", "Bottom bars", Bars::Bottom, &SteelArea::bottom},
    {"5.2", "Side and torsion bars", Bars::Bottom, &SteelArea::bottom},
};

const Kind* Find(const std::string& text)
{
    const auto* const found = std::find_if(std::begin(Kinds), std::end(Kinds),
                                           [&text](const Kind& kind) { return kind.text == text; });
    return found == std::end(Kinds) ? nullptr : found;
}

// Begins with a bar term: count, grade letter, diameter, behind a head character at most.
bool AreBars(const std::string& text)
{
    constexpr std::string_view Digits = "0123456789";
    const std::size_t count = text.find_first_not_of("GN*");
    const std::size_t grade = text.find_first_not_of(Digits, std::min(count, text.size()));
    return count <= 1 && grade != std::string::npos && grade > count && grade + 1 < text.size() &&
           std::string_view("ABCD").find(text[grade]) != std::string_view::npos &&
           Digits.find(text[grade + 1]) != std::string_view::npos;
}

}  // namespace

std::optional<int> WidthOf(const Beam& beam)
{
    int width = 0;
    BEAMSIZE_HITNESS_RANKER().GetBeamWidth(GbkFromUtf8(beam.section).value_or(CString()), width);
    return width > 0 ? std::optional(width) : std::nullopt;
}

Bars WantedBars(const std::string& kind)
{
    const Kind* const known = Find(kind);
    return known != nullptr ? known->wanted : Bars::Complete;
}

std::string BarKind(const std::string& typed, const Beam* beam)
{
    if (typed == "ends") {
        if (beam == nullptr) {
            throw Failure("--kind ends needs --beam NAME, whose through bars it takes");
        }
        if (beam->topBars.empty()) {
            throw Failure("beam " + beam->name + " has no through bars; give them with --top");
        }
        return beam->topBars;
    }
    if (Find(typed) == nullptr && !AreBars(typed)) {
        throw Failure("\"" + typed +
                      "\" is no kind of bars: 1, 2, 3, 4, 5.1, 5.2 or through bars such as 2B25 are");
    }
    return typed;
}

std::string BarKindName(const std::string& kind)
{
    const Kind* const known = Find(kind);
    return known != nullptr ? std::string(known->name) + " (kind " + kind + ")"
                            : "Complete top bars at the ends, on through bars " + kind;
}

int AreaFor(const Beam& beam, const std::string& kind)
{
    const Kind* const known = Find(kind);
    return known != nullptr ? beam.area.*known->area : std::max(beam.area.leftEnd, beam.area.rightEnd);
}

void RequireBars(const std::string& text)
{
    if (!AreBars(text)) {
        throw Failure("\"" + text + "\" is no bar annotation; 2B25 or 2B22+1B25 would be");
    }
}

std::vector<std::string> PresentBars(const Beam& beam, const std::string& kind)
{
    std::vector<std::string> present;
    for (const std::string* const text : BarTexts(beam, GbkFromUtf8(kind).value_or(CString()))) {
        if (!text->empty()) {
            present.push_back(*text);
        }
    }
    return present;
}

}  // namespace Desk
