// The text rules on pairs of texts, one a line.
#include "fuzz/Lines.h"
#include "tests/yardstick/Rules.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Yardstick::List lines = Yardstick::Lines(data, size, 2);
    Yardstick::RequireAgreement(Yardstick::AgreeRules(lines.front(), lines.back()));
    return 0;
}
