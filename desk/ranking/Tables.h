// What the reference tables answer, and why when they have nothing.
#pragma once

#include <string>
#include <vector>

#include "RankerModule.h"

namespace Desk {

// The filled tables, one of each for the program.
[[nodiscard]] SteelBiao& BarTable();
[[nodiscard]] GuJinBiao& StirrupTable();

struct TableAnswer {
    std::vector<std::string> texts;
    std::string remark;  // that no row is near, or why none can be; else empty
    // No row is near, and the area lies beyond the table: the texts are those of its nearer end.
    bool isFromEnd = false;
};

enum class BarColumn { Top, Complete, Bottom };

[[nodiscard]] TableAnswer BarsFor(int width, int area, BarColumn column);
// Complete top bars on the given through bars, which come first; throws Failure for a text that GBK does
// not hold.
[[nodiscard]] TableAnswer BarsOn(int width, int area, const std::string& topBars);
// Each annotation is followed by its tight form.
[[nodiscard]] TableAnswer StirrupsFor(int width, int grade, int seismicClass);

}  // namespace Desk
