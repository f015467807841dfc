// Columns in the terminal's cells.
#include <gtest/gtest.h>

#include "desk/console/Print.h"

namespace Desk {
namespace {

TEST(Print, CountsWideCharactersTwice)
{
    EXPECT_EQ(PadRight("楼1", 5) + "|", "楼1  |");
    EXPECT_EQ(PadLeft("±", 3), "  ±");
    EXPECT_EQ(Visible("      "), "\"      \"");
    EXPECT_EQ(Visible("6B25 4/2"), "6B25 4/2");
}

}  // namespace
}  // namespace Desk
