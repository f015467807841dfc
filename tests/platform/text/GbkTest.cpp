// Labels become GBK at compile time.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/Texts.h"

namespace {

TEST(Gbk, TurnsLabelsIntoTheirBytes)
{
    static constexpr auto Message = Gbk(u8"跨数有误");
    EXPECT_EQ(CString(Message), "\xBF\xE7\xCA\xFD\xD3\xD0\xCE\xF3");
    static constexpr auto Mixed = Gbk(u8"+(架立筋)");
    EXPECT_EQ(CString(Mixed), "+(\xBC\xDC\xC1\xA2\xBD\xEE)");
    EXPECT_EQ(CString(Gbk(u8"")), "");
}

TEST(Gbk, TableIsInOrderWithoutRepeats)
{
    const auto notRising = [](const GbkCharacter& a, const GbkCharacter& b) { return a.bytes >= b.bytes; };
    EXPECT_EQ(std::adjacent_find(std::begin(GbkCharacters), std::end(GbkCharacters), notRising),
              std::end(GbkCharacters));
}

}  // namespace
