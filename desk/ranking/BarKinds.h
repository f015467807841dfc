// The kind texts of the bar ranker as this host gives them a meaning.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "desk/project/Project.h"

namespace Desk {

enum class Bars { Top, Bottom, Complete };

// The width of a beam's section in mm, nothing when it has none.
[[nodiscard]] std::optional<int> WidthOf(const Beam& beam);

// What a kind asks for: "1" to "4" top bars, "5.1" and "5.2" bottom bars, through bars the complete bars.
[[nodiscard]] Bars WantedBars(const std::string& kind);

// The kind that a person typed, checked; "ends" stands for the through bars of the beam (null for none).
// Throws Failure for a text that is neither a kind nor through bars.
[[nodiscard]] std::string BarKind(const std::string& typed, const Beam* beam);

// "Top through bars (kind 1)".
[[nodiscard]] std::string BarKindName(const std::string& kind);

// The beam's required steel area in mm² at the place of the kind. Erection bars go by the top, side bars
// by the bottom, complete top bars by the end that needs more.
[[nodiscard]] int AreaFor(const Beam& beam, const std::string& kind);

// Throws Failure for a text that does not begin with a bar term such as 2B25.
void RequireBars(const std::string& text);

// The texts that the beam has for the kind: two for side and torsion bars, or for the two ends.
[[nodiscard]] std::vector<std::string> PresentBars(const Beam& beam, const std::string& kind);

}  // namespace Desk
