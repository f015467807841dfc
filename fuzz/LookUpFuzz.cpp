// The look-ups of both tables, empty and filled, on lists that hold something or nothing.
#include "fuzz/Lines.h"
#include "tests/yardstick/Rules.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Yardstick::Case c = Yardstick::CaseOf(data, size);
    Yardstick::RequireAgreement(Yardstick::AgreeLookUps(c, c.texts.size() % 3));
    return 0;
}
