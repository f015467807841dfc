// Floors made of bytes: what is proposed is as the yardstick says, and the same after changes.
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "tests/yardstick/Proposals.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<std::uint8_t> bytes(data + (size > 0 ? 1 : 0), data + size);
    const std::string differs = Yardstick::Differs(bytes, size > 0 && data[0] % 2 != 0);
    if (!differs.empty()) {
        std::fprintf(stderr, "%s\n", differs.c_str());
        std::abort();
    }
    return 0;
}
