// The tables that all contexts share.
#pragma once

#include "RankerModule.h"

namespace RankerC {

[[nodiscard]] SteelBiao& BarTable();
[[nodiscard]] GuJinBiao& StirrupTable();

}  // namespace RankerC
