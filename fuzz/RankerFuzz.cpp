// Whole runs and single operations of one ranker, AGREE says which, against its yardstick.
#include "fuzz/Lines.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Yardstick::RequireAgreement(Yardstick::AGREE(Yardstick::CaseOf(data, size)));
    return 0;
}
