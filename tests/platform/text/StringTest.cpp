// Texts: searching, cutting, trimming, joining and comparing bytes.
#include <gtest/gtest.h>

#include "tests/support/Texts.h"

namespace {

TEST(String, FindsByBytePosition)
{
    const CString text("KL12(3A)L");
    EXPECT_EQ(text.Find('L'), 1);
    EXPECT_EQ(text.Find('L', 2), 8);
    EXPECT_EQ(text.Find('L', 9), -1);
    EXPECT_EQ(text.Find('L', 99), -1);
    EXPECT_EQ(text.Find('K', -5), 0);
    EXPECT_EQ(text.Find("(3"), 4);
    EXPECT_EQ(text.Find("3("), -1);
    EXPECT_EQ(text.Find(""), 0);
    EXPECT_EQ(text.ReverseFind('L'), 8);
    EXPECT_EQ(text.ReverseFind('x'), -1);
    // The trail byte of a double-byte character is a byte like any other: 0xB2BF is one character.
    EXPECT_EQ(CString("\xB2\xBF").Find('\xBF'), 1);
}

TEST(String, CutsWithinItsEnds)
{
    const CString text("300x600");
    EXPECT_EQ(text.Left(3), "300");
    EXPECT_EQ(text.Left(99), "300x600");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Right(3), "600");
    EXPECT_EQ(text.Right(99), "300x600");
    EXPECT_EQ(text.Right(-1), "");
    EXPECT_EQ(text.Mid(4), "600");
    EXPECT_EQ(text.Mid(2, 3), "0x6");
    EXPECT_EQ(text.Mid(4, 99), "600");
    EXPECT_EQ(text.Mid(4, -1), "");
    EXPECT_EQ(text.Mid(7), "");
    EXPECT_EQ(text.Mid(99, 1), "");
    EXPECT_EQ(text.GetAt(3), 'x');
    EXPECT_EQ(text[7], '\0');
    EXPECT_EQ(text.GetAt(-1), '\0');
}

TEST(String, TrimsTheFourBlanks)
{
    CString text(" \t\r\n a b \n\r\t ");
    text.TrimLeft();
    EXPECT_EQ(text, "a b \n\r\t ");
    text.TrimRight();
    EXPECT_EQ(text, "a b");
    CString blanks("      ");
    blanks.TrimRight();
    EXPECT_TRUE(blanks.IsEmpty());
    CString other("\v\fa");
    other.TrimLeft();
    EXPECT_EQ(other, "\v\fa");
}

TEST(String, JoinsAndFormats)
{
    CString text("KL");
    text += '1';
    text += "(2";
    text += CString("A)");
    EXPECT_EQ(text, "KL1(2A)");
    EXPECT_EQ("(" + CString("2") + ')', "(2)");
    EXPECT_EQ('N' + CString("2B16"), "N2B16");
    EXPECT_EQ(CString('a', 3), "aaa");
    EXPECT_EQ(CString('a', -1), "");
    text.Format("%s%d@%d", "A", 10, -1);
    EXPECT_EQ(text, "A10@-1");
    text.Format("%s", std::string(5000, 'x').c_str());
    EXPECT_EQ(text.GetLength(), 5000);
    const char* const none = nullptr;
    EXPECT_EQ(CString(none), "");
}

TEST(String, ComparesUnsignedBytesAndPrefixesFirst)
{
    const char* const rising[] = {"",     "10B20", "2B2",      "2B20",    "2B22",
                                  "2b20", "\x80",  "\xB2\xBF", "\xB2\xC0"};
    for (int a = 0; a < static_cast<int>(std::size(rising)); ++a) {
        for (int b = 0; b < static_cast<int>(std::size(rising)); ++b) {
            const CString left(rising[a]);
            const CString right(rising[b]);
            EXPECT_EQ(left.Compare(right), (a > b) - (a < b)) << rising[a] << " and " << rising[b];
            EXPECT_EQ(left < right, a < b);
            EXPECT_EQ(left == rising[b], a == b);
            EXPECT_EQ(rising[a] != right, a != b);
        }
    }
}

}  // namespace
