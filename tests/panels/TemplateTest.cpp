// The panels' windows as a person sees them: nothing overlaps, leaves the panel or is cut off.
#include <gtest/gtest.h>

#include <set>

#include "platform/windows/WindowRecord.h"
#include "tests/panels/Panels.h"

namespace {

constexpr int ByteWidth = 6;  // pixels of one byte in the 9-point font, a double-byte character has two

int WidthOf(const CString& text) { return text.GetLength() * ByteWidth; }

std::string Print(const WindowRecord& control)
{
    const CRect& place = control.place;
    return std::to_string(control.id) + " \"" + std::string(control.text.View()) + "\" at " +
           std::to_string(place.left) + "," + std::to_string(place.top) + " to " +
           std::to_string(place.right) + "," + std::to_string(place.bottom);
}

bool Overlap(const CRect& a, const CRect& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// Lists of one row that show the first alone, and the list of all pieces in columns.
const std::set<int> OneRowLists{1349, 1345, 1346};

void ExpectRowsShow(const WindowRecord& control)
{
    const auto& list = dynamic_cast<const CListBox&>(*CWnd::FromHandle(control.handle));
    CRect client;
    list.GetClientRect(&client);
    EXPECT_GE(client.Height(), 12) << Print(control);
    for (int row = 0; row < list.GetCount() && OneRowLists.count(control.id) == 0; ++row) {
        CRect rect;
        list.GetItemRect(row, &rect);
        EXPECT_TRUE(rect.top >= 0 && rect.bottom <= client.bottom) << Print(control) << " row " << row;
        CString text;
        list.GetText(row, text);
        EXPECT_LE(WidthOf(text), client.Width()) << Print(control) << " row " << row;
    }
}

template <class Panel, class... Text>
void ExpectReadable(const DialogRect& size, Text... text)
{
    Panel panel;
    ASSERT_TRUE(panel.Create(Panel::IDD));
    panel.Init(text...);
    const WindowRecord& window = *FindWindowRecord(panel.m_hWnd);
    EXPECT_EQ(window.shape->width, size.width);
    EXPECT_EQ(window.shape->height, size.height);
    EXPECT_EQ(window.shape->points, 9);
    EXPECT_STREQ(window.shape->font, Gbk(u8"宋体"));
    std::set<int> ids;
    for (std::size_t i = 0; i < window.children.size(); ++i) {
        const WindowRecord& control = *FindWindowRecord(window.children[i]);
        const CRect& place = control.place;
        EXPECT_TRUE(place.left >= 0 && place.top >= 0 && place.right <= window.place.Width() &&
                    place.bottom <= window.place.Height())
            << Print(control);
        EXPECT_TRUE(control.id == IDC_STATIC || ids.insert(control.id).second) << Print(control);
        for (std::size_t j = 0; j < i; ++j) {
            const WindowRecord& other = *FindWindowRecord(window.children[j]);
            EXPECT_FALSE(Overlap(place, other.place)) << Print(control) << " on " << Print(other);
        }
        if (control.kind == WindowKind::Label || control.kind == WindowKind::Button) {
            const int border = control.kind == WindowKind::Button ? 4 : 0;
            EXPECT_LE(WidthOf(control.text) + border, place.Width()) << Print(control);
            EXPECT_GE(place.Height(), 12 + border) << Print(control);
        } else if (control.kind == WindowKind::ListBox) {
            ExpectRowsShow(control);
        } else {
            EXPECT_GE(place.Height(), 16) << Print(control);
        }
    }
}

TEST(PanelTemplates, AreReadable)
{
    ExpectReadable<CBeamNameDlg>({0, 0, 97, 109});
    ExpectReadable<CBeamSecDlg>({0, 0, 54, 131}, "300x600");
    ExpectReadable<CBeamLevelDlg>({0, 0, 72, 53});
    ExpectReadable<CBeamGujinDlg>({0, 0, 189, 69});
    ExpectReadable<CBeamSteelDlg>({0, 0, 200, 93});
}

// A heading stands over the box of its column and the box over the list, on the same left edge, and Tab
// goes through them from left to right.
TEST(PanelTemplates, ColumnsStandUnderTheirHeadings)
{
    const auto expectColumns = [](CDialog& panel, UINT id,
                                  std::initializer_list<std::tuple<const char*, int, int>> columns) {
        ASSERT_TRUE(panel.Create(id));
        int right = 0;
        for (const auto& [heading, edit, list] : columns) {
            const CRect box = FindWindowRecord(panel.GetDlgItem(edit)->m_hWnd)->place;
            const CRect rows = FindWindowRecord(panel.GetDlgItem(list)->m_hWnd)->place;
            const CWnd* label = panel.GetTopWindow();
            CString text;
            for (; label != nullptr && (text != heading); label = label->GetNextWindow()) {
                label->GetWindowText(text);
                if (text == heading) {
                    break;
                }
            }
            ASSERT_NE(label, nullptr) << heading;
            const CRect head = FindWindowRecord(label->m_hWnd)->place;
            EXPECT_TRUE(head.left == box.left && box.left == rows.left && box.Width() == rows.Width())
                << edit;
            EXPECT_TRUE(head.bottom <= box.top && box.bottom <= rows.top && right <= head.left) << edit;
            right = rows.right;
        }
    };
    CBeamNameDlg name;
    expectColumns(name, 540,
                  {{GbkLabel<u8"梁类型">(), 1316, 552},
                   {GbkLabel<u8"序号">(), 1643, 1062},
                   {GbkLabel<u8"跨数">(), 1654, 547},
                   {GbkLabel<u8"悬挑">(), 1658, 549}});
    CBeamSecDlg section;
    expectColumns(section, 364, {{GbkLabel<u8"梁宽">(), 1320, 1317}, {GbkLabel<u8"梁高">(), 1321, 1062}});
    CBeamGujinDlg stirrup;
    expectColumns(stirrup, 367,
                  {{GbkLabel<u8"钢筋符">(), 1321, 1339},
                   {GbkLabel<u8"直径">(), 1653, 1062},
                   {GbkLabel<u8"加密间距">(), 1654, 1356},
                   {GbkLabel<u8"加密肢数">(), 1658, 1357},
                   {GbkLabel<u8"间距">(), 1662, 1358},
                   {GbkLabel<u8"肢数">(), 1665, 1359}});
}

}  // namespace
