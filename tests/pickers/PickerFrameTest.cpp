// What both pickers share: binding, one delivery, Esc, and a host that pulls the rug away.
#include "platform/windows/WindowRecord.h"
#include "tests/pickers/Pickers.h"
#include "tests/support/Watched.h"

namespace {

template <class Picker>
class AnyPicker : public testing::Test, protected Grid<Picker> {
protected:
    void ExpectHidden() { EXPECT_EQ(this->picker->IsWindowVisible(), FALSE); }
};

using Both = testing::Types<CHBarPropertySheet, CVBarPropertySheet>;
TYPED_TEST_SUITE(AnyPicker, Both);

TYPED_TEST(AnyPicker, ARightPressAnywhereConfirmsOnceAndUnbinds)
{
    const WindowRecord& window = *FindWindowRecord(this->picker->m_hWnd);
    std::vector<CPoint> places{CPoint(window.place.left + 1, window.place.top + 1)};
    for (const HWND child : window.children) {
        places.push_back(Hands::MiddleOf(*CWnd::FromHandle(child)));
    }
    for (const CPoint place : places) {
        this->Open("B12@150");
        this->item.taken.clear();
        this->item.then = [this] { this->ExpectHidden(); };
        this->hands.RightClick(place);
        const std::string text = std::is_same_v<TypeParam, CHBarPropertySheet> ? "B12@150" : "B12";
        EXPECT_EQ(this->item.taken, std::vector{text}) << place.x << "," << place.y;  // no row has moved
        EXPECT_EQ(this->picker->m_pItem, nullptr);
        this->ExpectHidden();
    }
    // Unbound it only hides, and shows no new value.
    this->item.CPropertyGridItem::SetValue("D16@50");
    this->picker->UpdateValue();
    this->picker->ShowWindow(SW_SHOW);
    EXPECT_EQ(this->Confirm(), "taken 0");
    this->ExpectHidden();
}

TYPED_TEST(AnyPicker, ItsControlsPassARightPressOnWithoutItsParameters)
{
    Watched<TypeParam> watched;
    watched.Create(TypeParam::IDD);
    watched.ShowWindow(SW_SHOW);
    for (const CWnd* const control :
         std::initializer_list<CWnd*>{&watched.m_DiameterEdit, &watched.m_GradeList}) {
        this->hands.RightClick(Hands::MiddleOf(*control));
    }
    EXPECT_EQ(watched.m_presses, std::vector(2, typename Watched<TypeParam>::Press{0, 0, 0}));
}

TYPED_TEST(AnyPicker, EscFromAnyControlDismissesAndStaysBound)
{
    for (const HWND child : FindWindowRecord(this->picker->m_hWnd)->children) {
        const WindowRecord& control = *FindWindowRecord(child);
        if (control.kind == WindowKind::Label || !control.enabled) {
            continue;
        }
        this->Open("B12@150");
        CWnd::FromHandle(child)->SetFocus();
        this->hands.Key(VK_RETURN);
        EXPECT_EQ(this->picker->IsWindowVisible(), TRUE) << "other keys do nothing";
        this->hands.Key(VK_ESCAPE);
        this->ExpectHidden();
        EXPECT_EQ(this->item.GetListShowFlag(), FALSE) << control.id;
        EXPECT_EQ(this->picker->m_pItem, &this->item);
    }
    EXPECT_TRUE(this->item.taken.empty());
}

TYPED_TEST(AnyPicker, AnItemWithoutAWindowCountsAsNone)
{
    this->Open("B12@150");
    this->item.SetHWnd(nullptr);
    this->item.CPropertyGridItem::SetValue("C16@200");
    this->picker->UpdateValue();
    CString grade;
    this->picker->m_GradeEdit.GetWindowText(grade);
    EXPECT_EQ(grade, "B");
    this->picker->OnKeyDown(VK_ESCAPE, 1, 0);
    EXPECT_EQ(this->item.GetListShowFlag(), TRUE);
    this->picker->ShowWindow(SW_SHOW);
    EXPECT_EQ(this->Confirm(), "taken 0");
    EXPECT_EQ(this->picker->m_pItem, &this->item);
}

TYPED_TEST(AnyPicker, TheItemMayTakeThePickerAway)
{
    const WindowRecord& window = *FindWindowRecord(this->picker->m_hWnd);
    for (std::size_t i = 0; i < window.children.size(); ++i) {
        for (const bool object : {false, true}) {
            Grid<TypeParam> grid;
            grid.Open("A10@100");
            grid.item.then = [&] {
                if (object) {
                    grid.picker.reset();
                } else {
                    grid.picker->DestroyWindow();
                }
            };
            const HWND child = FindWindowRecord(grid.picker->m_hWnd)->children[i];
            grid.hands.RightClick(Hands::MiddleOf(*CWnd::FromHandle(child)));
            EXPECT_EQ(grid.item.taken.size(), 1U);
            if (!object) {
                EXPECT_EQ(grid.picker->m_pItem, nullptr);
            }
        }
    }
}

}  // namespace
