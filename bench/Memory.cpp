// Replaces operator new and delete of the whole process; one thread, so plain counters do.
#include "bench/Memory.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

Bench::HeapUse use;

}  // namespace

namespace Bench {

HeapUse CurrentHeapUse() { return use; }
void ResetPeak() { use.peak = use.held; }

}  // namespace Bench

void* operator new(std::size_t size)
{
    void* const memory = std::malloc(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    use.held += malloc_usable_size(memory);
    use.peak = std::max(use.peak, use.held);
    ++use.allocations;
    return memory;
}

void operator delete(void* memory) noexcept
{
    use.held -= memory == nullptr ? 0 : malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
