// Removal of repeated texts from a candidate list.
#pragma once

#include "platform/text/Arrays.h"

namespace Repeats {

// The first of equal texts stays, in its place among the others; texts are equal byte for byte.
void Remove(CStringArray& arText);

// The same, and the stamp of each text that goes, goes with it; stamps are not added up. A text
// without a stamp gets 0, and stamps behind the last text are dropped.
void Remove(CStringArray& arText, CUIntArray& arStamp);

}  // namespace Repeats
