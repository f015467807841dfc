// A display that copies what it is told stays equal to the windows, whatever the user does.
#include <gtest/gtest.h>

#include <map>
#include <random>

#include "TestPanel.h"
#include "platform/windows/Display.h"
#include "platform/windows/Hands.h"
#include "tests/support/Seed.h"

namespace {

using namespace TestPanelData;

struct Copy {
    CRect place;
    CString text;
    std::vector<CString> rows;
    int selection = -1;
    int top = 0;
    int columnWidth = 0;
    int caret = 0;
    bool visible = false;
    bool enabled = true;

    bool operator==(const Copy&) const = default;
};

Copy CopyOf(const WindowRecord& window)
{
    return {window.place,          window.text,     window.list.rows,
            window.list.selection, window.list.top, window.list.columnWidth,
            window.caret,          window.visible,  window.enabled};
}

// Takes over only what the change names.
class Mirror : public Display {
public:
    Mirror() { SetDisplay(this); }
    ~Mirror() override { SetDisplay(nullptr); }

    void WindowCreated(const WindowRecord& window) override
    {
        const bool bParentKnown = !window.IsControl() || m_windows.count(window.parent) != 0;
        EXPECT_TRUE(bParentKnown);
        m_windows[window.handle] = CopyOf(window);
    }
    void WindowChanged(const WindowRecord& window, WindowChange change) override
    {
        ASSERT_EQ(m_windows.count(window.handle), 1U);
        Copy& copy = m_windows[window.handle];
        const Copy now = CopyOf(window);
        switch (change) {
        case WindowChange::Place: copy.place = now.place; break;
        case WindowChange::Text:
            copy.text = now.text;
            copy.caret = now.caret;
            break;
        case WindowChange::Caret: copy.caret = now.caret; break;
        case WindowChange::Rows:
            copy.rows = now.rows;
            copy.columnWidth = now.columnWidth;
            copy.selection = now.selection;
            copy.top = now.top;
            break;
        case WindowChange::Selection: copy.selection = now.selection; break;
        case WindowChange::Scroll: copy.top = now.top; break;
        case WindowChange::Visible: copy.visible = now.visible; break;
        case WindowChange::Enabled: copy.enabled = now.enabled; break;
        case WindowChange::Focus: {
            const CWnd* const focus = CWnd::GetFocus();
            m_focus = focus != nullptr ? focus->m_hWnd : nullptr;
            break;
        }
        case WindowChange::Order: break;
        }
    }
    void WindowDestroyed(HWND hWnd) override
    {
        EXPECT_EQ(m_windows.erase(hWnd), 1U);
        m_focus = m_focus == hWnd ? nullptr : m_focus;
    }
    int ShowMessageBox(const CString& strText) override
    {
        m_said = strText;
        return 2;
    }

    void ExpectEqual() const
    {
        const std::vector<HWND> all = AllWindows();
        ASSERT_EQ(all.size(), m_windows.size());
        for (const HWND handle : all) {
            ASSERT_TRUE(m_windows.at(handle) == CopyOf(*FindWindowRecord(handle)));
        }
        const CWnd* const focus = CWnd::GetFocus();
        ASSERT_EQ(m_focus, focus != nullptr ? focus->m_hWnd : nullptr);
    }

    std::map<HWND, Copy> m_windows;
    HWND m_focus = nullptr;
    CString m_said;
};

TEST(Display, ANewOneIsToldOfWhatExistsAndGetsTheMessages)
{
    TestPanel panel;
    panel.Open();
    Mirror mirror;
    EXPECT_EQ(mirror.m_windows.size(), 9U);
    EXPECT_EQ(AfxMessageBox("hello"), 2);
    EXPECT_TRUE(mirror.m_said == "hello");
}

// Random user and program actions over two panels, one of which opens and goes by the way; states
// are compared after each.
TEST(Display, RandomActionsKeepItEqual)
{
    const unsigned seed = FirstSeed(std::random_device{}());
    SCOPED_TRACE(SeedName(seed));
    std::mt19937 random(seed);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };

    Mirror mirror;
    CWnd frame;
    frame.CreateFrame(CRect(0, 0, 300, 300));
    frame.ShowWindow(SW_SHOW);
    TestPanel panels[2];
    Hands hands;
    const UINT keys[] = {VK_TAB,   VK_UP,   VK_DOWN, VK_LEFT, VK_RIGHT,  VK_HOME,  VK_END,
                         VK_SPACE, VK_BACK, VK_NEXT, VK_BACK, VK_DELETE, VK_SHIFT, VK_F4};
    const int ids[] = {Label, Box, Digits, List, Dead, Columns, Button, RightBox};
    for (TestPanel& panel : panels) {
        panel.m_then = [&] {  // now and then a handler pulls the rug away
            if (below(20) == 0) {
                panels[below(2)].DestroyWindow();
            }
        };
    }
    for (int step = 0; step < 20000; ++step) {
        TestPanel& panel = panels[below(2)];
        if (panel.m_hWnd == nullptr) {
            panel.Open(below(2) == 0 ? &frame : &panels[below(2)]);
        }
        panel.m_log.clear();
        CListBox& list = below(2) == 0 ? panel.m_list : panel.m_columns;
        CWnd& control = *panel.GetDlgItem(ids[below(8)]);
        const CPoint point(90 + below(120), 90 + below(120));
        switch (below(20)) {
        case 0: panel.MoveWindow(90 + below(40), 90 + below(40), 90, 90); break;
        case 1: panel.ShowWindow(below(2) == 0 ? SW_HIDE : SW_SHOW); break;
        case 2: control.EnableWindow(below(3) != 0); break;
        case 3: control.ShowWindow(below(3) != 0 ? SW_SHOW : SW_HIDE); break;
        case 4: control.SetFocus(); break;
        case 5:
            control.SetWindowText(below(2) == 0 ? ""
                                                : "1\xCE\xDE"
                                                  "2");
            break;
        case 6: list.InsertString(below(12) - 1, "row"); break;
        case 7: list.DeleteString(below(12)); break;
        case 8: list.SetCurSel(below(12) - 1); break;
        case 9: list.SetTopIndex(below(12)); break;
        case 10: below(9) == 0 ? list.ResetContent() : list.SetColumnWidth(below(30)); break;
        case 11: hands.DoubleClick(point); break;
        case 12: hands.RightClick(point); break;
        case 13: hands.Wheel(point, below(5) - 2); break;
        case 14: hands.Type(CString(static_cast<char>(1 + below(255)))); break;
        case 15: panel.UpdateData(below(2)); break;
        case 16: below(9) == 0 ? static_cast<void>(panel.DestroyWindow()) : hands.Type("\xCE\xDE"); break;
        case 17: hands.Key(keys[below(14)]); break;
        default: hands.Click(point); break;
        }
        mirror.ExpectEqual();
        ASSERT_FALSE(HasFatalFailure()) << "step " << step;
        for (const HWND handle : AllWindows()) {
            const WindowRecord& window = *FindWindowRecord(handle);
            const int rows = static_cast<int>(window.list.rows.size());
            ASSERT_TRUE(window.list.selection >= -1 && window.list.selection < rows) << "step " << step;
            ASSERT_TRUE(window.list.top >= 0 && window.list.top <= std::max(rows - 1, 0))
                << "step " << step;
            const int caret = window.caret;
            ASSERT_TRUE(caret == 0 || NextCharacter(window.text.View(),
                                                    PreviousCharacter(window.text.View(), caret)) == caret);
        }
    }
}

}  // namespace
