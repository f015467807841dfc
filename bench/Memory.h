// Counts what the program and its libraries take from the heap.
#pragma once

#include <cstddef>

namespace Bench {

struct HeapUse {
    std::size_t held = 0;         // bytes in use now
    std::size_t peak = 0;         // the most that was in use since the last ResetPeak
    std::size_t allocations = 0;  // since the program began
};

[[nodiscard]] HeapUse CurrentHeapUse();
void ResetPeak();

}  // namespace Bench
