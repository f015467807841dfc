// Floors made of bytes, and those that the benchmarks take: what is proposed is as the yardstick says, and
// the same after changes.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "tests/yardstick/Proposals.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) {
        return 0;
    }
    const bool isGenerated = data[0] % 4 == 2;
    const bool withInPlace = data[0] % 2 != 0;
    const std::string differs =
        Yardstick::Differs(isGenerated ? Yardstick::Generated(1 + data[0] / 16, size > 1 ? data[1] : 0)
                                       : Yardstick::FloorOf(data + 1, size - 1, withInPlace),
                           !withInPlace);
    if (!differs.empty()) {
        std::fprintf(stderr, "%s\n", differs.c_str());
        std::abort();
    }
    return 0;
}
