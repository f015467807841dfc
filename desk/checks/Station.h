// What applies at one place of a beam: along all of it, along one span or at one support, where texts in
// place are instead of the beam's own. The rules look at stations.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/project/Fields.h"
#include "desk/reading/Bars.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"

namespace Desk {

// Which rules of the code a beam goes by; its type tells: KL, WKL, KZL and LLk are frame beams, LL
// coupling beams of walls.
enum class BeamKind { Frame, Coupling, Other };
[[nodiscard]] BeamKind KindOf(const std::string& name);

struct Station {
    static constexpr std::size_t Fields = 11;  // of a beam

    const Beam& beam;
    BeamKind kind;
    std::array<const std::string*, Fields> texts{};
    std::array<int, Fields> inPlace{};  // as in FieldRef
    std::array<bool, Fields> looked{};  // what is to be judged here; the other texts are its surroundings
    // The beam's own text is missing and no text in place is instead of it.
    std::array<bool, Fields> missing{};
    std::optional<Section> section;
    std::optional<Stirrup> stirrup;
    std::array<std::optional<Bars>, Fields> bars{};
    SteelArea required;

    [[nodiscard]] const std::string& Text(Field field) const
    {
        return *texts[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] const std::optional<Bars>& BarsOf(Field field) const
    {
        return bars[static_cast<std::size_t>(field)];
    }
    [[nodiscard]] bool Looks(Field field) const { return looked[static_cast<std::size_t>(field)]; }
    [[nodiscard]] bool IsMissing(Field field) const { return missing[static_cast<std::size_t>(field)]; }
};

// The beam by itself, then each span and support that has texts in place.
[[nodiscard]] std::vector<Station> StationsOf(const Beam& beam);

// One span, from 1, with what is in place there.
[[nodiscard]] Station SpanOf(const Beam& beam, int span);

// Bars of all layers, or those in brackets.
template <class Use>
void ForEachTerm(const Bars& bars, Use use)
{
    for (const std::vector<BarTerm>& layer : bars.layers) {
        for (const BarTerm& term : layer) {
            use(term);
        }
    }
}

}  // namespace Desk
