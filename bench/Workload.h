// The projects that are measured: so many annotations of one kind, few or all of them different.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace Bench {

enum class Kind { Bars, Stirrups, Sections, Elevations, Names };
inline constexpr Kind AllKinds[] = {Kind::Bars, Kind::Stirrups, Kind::Sections, Kind::Elevations,
                                    Kind::Names};

[[nodiscard]] const char* NameOf(Kind kind);

// Texts as drawings hold them, in a random order that is the same in every run. With distinct below count
// each text is drawn from so many different ones. Up to 1,000,000 different texts a kind.
[[nodiscard]] std::vector<std::string> MakeTexts(Kind kind, std::size_t count, std::size_t distinct);

}  // namespace Bench
