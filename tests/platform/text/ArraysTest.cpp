// Arrays that grow, and linked lists walked by position.
#include <gtest/gtest.h>

#include "tests/support/Texts.h"

namespace {

TEST(Arrays, InsertRemoveAndGrow)
{
    CStringArray array;
    EXPECT_EQ(array.Add("b"), 0);
    array.InsertAt(0, "a", 2);
    array.SetAtGrow(array.GetSize(), "c");
    EXPECT_EQ(TextsOf(array), (Texts{"a", "a", "b", "c"}));
    array.RemoveAt(0, 2);
    array.SetAtGrow(3, "d");
    EXPECT_EQ(TextsOf(array), (Texts{"b", "c", "", "d"}));
    array.InsertAt(6, "e");
    EXPECT_EQ(TextsOf(array), (Texts{"b", "c", "", "d", "", "", "e"}));
    array.RemoveAt(2, 4);
    array.InsertAt(1, "x", 0);
    array.RemoveAt(0, 0);
    array.SetAt(0, "B");
    array[1] += "C";
    EXPECT_EQ(TextsOf(array), (Texts{"B", "cC", "e"}));
    array.SetSize(1);
    EXPECT_EQ(TextsOf(array), (Texts{"B"}));
    array.SetSize(0, -1);
    EXPECT_TRUE(array.IsEmpty());
}

TEST(ArraysDeathTest, AnIndexOutsideIsLoud)
{
    CUIntArray numbers;
    numbers.Add(1);
    EXPECT_DEATH(static_cast<void>(numbers.GetAt(1)), "array index 1 is outside 0 to 0");
    EXPECT_DEATH(numbers.RemoveAt(0, 2), "array index 1");
    EXPECT_DEATH(numbers.InsertAt(-1, 5), "array index -1");
}

TEST(Lists, WalkFromHeadToTail)
{
    CStringList list;
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    EXPECT_EQ(list.GetTailPosition(), nullptr);
    for (const char* const text : {"a", "b", "c"}) {
        list.AddTail(text);
    }
    Texts walked;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
        walked.emplace_back(list.GetNext(position).View());
    }
    EXPECT_EQ(walked, (Texts{"a", "b", "c"}));
    EXPECT_EQ(list.GetCount(), 3);
    EXPECT_EQ(list.GetAt(list.GetTailPosition()), "c");
}

}  // namespace
