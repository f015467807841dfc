// The property item: what it keeps, what it calls, and its containers.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "RankerModule.h"

namespace {

class NotingItem : public CPropertyGridItem {
public:
    std::vector<std::string> m_calls;
    using CPropertyGridItem::OnDrawItemValue;

protected:
    void OnAddChildItem() override { m_calls.push_back("child"); }
    void OnValueChanged() override { m_calls.push_back("value " + std::string(GetValue())); }
    void OnReadOnlyChanged() override { m_calls.push_back(GetReadOnly() ? "read-only" : "writable"); }
};

TEST(GridItem, StartsEmptyAndKeepsWhatItIsGiven)
{
    CPropertyGridItem item;
    EXPECT_FALSE(item.IsVisible() || item.IsCategory() || item.IsExpanded() || item.GetListShowFlag());
    EXPECT_TRUE(item.GetHWnd() == nullptr && item.GetGrid() == nullptr && item.GetParentItem() == nullptr);
    int window = 0;
    item.SetID(7);
    item.SetFlags(0x80000001U);
    item.SetListShowFlag(TRUE);
    item.SetCaption("caption");
    item.SetDescription("description");
    item.SetValue("A10@100/200");
    item.SetHWnd(&window);
    EXPECT_EQ(item.GetID(), 7U);
    EXPECT_EQ(item.GetFlag(), 0x80000001U);
    EXPECT_EQ(item.GetFlags(), item.GetFlag());
    EXPECT_TRUE(item.GetListShowFlag());
    EXPECT_TRUE(item.GetCaption() == "caption");
    EXPECT_TRUE(item.GetDescription() == "description");
    EXPECT_TRUE(item.GetValue() == "A10@100/200");
    EXPECT_EQ(item.GetHWnd(), &window);
}

TEST(GridItem, CallsItsVirtualOperationsAfterTheFieldIsWritten)
{
    NotingItem item;
    CPropertyGridItem child;
    CPropertyGridItem& base = item;
    base.SetValue("x");
    base.SetReadOnly(TRUE);
    base.SetReadOnly(FALSE);
    base.AddChildItem(&child);
    base.AddChildItem(nullptr);
    EXPECT_EQ(item.m_calls, (std::vector<std::string>{"value x", "read-only", "writable", "child"}));
    EXPECT_FALSE(item.OnDrawItemValue(nullptr, CRect()));
}

TEST(GridItem, WalksItsChildrenByPosition)
{
    CPropertyGridItem parent;
    EXPECT_FALSE(parent.HasChilds());
    EXPECT_EQ(parent.GetFirstChild(), nullptr);
    CPropertyGridItem children[3];
    for (CPropertyGridItem& child : children) {
        parent.AddChildItem(&child);
    }
    EXPECT_TRUE(parent.HasChilds());
    POSITION pos = parent.GetFirstChild();
    for (int i = 0; i < 3; ++i) {
        ASSERT_NE(pos, nullptr);
        const CPropertyGridItem* const child = parent.GetNextChild(pos);
        EXPECT_EQ(child, &children[i]);
        EXPECT_EQ(child->GetIndex(), i);
        EXPECT_EQ(child->GetParentItem(), &parent);
    }
    EXPECT_EQ(pos, nullptr);
}

TEST(GridItem, ConstraintsCountUpAndRememberTheCurrentOne)
{
    CPropertyGridItem item;
    CItemConstraints& constraints = *item.GetConstraints();
    EXPECT_EQ(constraints.AddConstraint("a"), 0);
    EXPECT_EQ(constraints.AddConstraint("b"), 1);
    constraints.SetCurrent(-5);
    EXPECT_EQ(constraints.GetCurrent(), -5);
    EXPECT_EQ(constraints.GetCount(), 2);

    const CPropertyGridInplaceEdit edit(&item);
    EXPECT_EQ(edit.GetItem(), &item);
    EXPECT_EQ(CPropertyGridInplaceEdit().GetItem(), nullptr);
}

}  // namespace
