// The panels' windows as a person sees them: nothing overlaps, leaves the panel or is cut off.
#include <gtest/gtest.h>

#include <algorithm>
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

// A control as the drawings of the panels give it: a heading stands over each box and list, and a box and
// the list under it are a column. Buttons and labels with an id carry the caption themselves.
struct Control {
    int id;
    WindowKind kind;
    const char* caption;  // null where nothing is above
    const char* rows = "";
    ControlStyle style = ControlStyle::None;
};
constexpr WindowKind Edit = WindowKind::EditBox, List = WindowKind::ListBox, Key = WindowKind::Button;
constexpr ControlStyle Disabled = ControlStyle::Disabled, Digits = ControlStyle::DigitsOnly;

// The nearest label above the control's middle.
const WindowRecord* HeadingOf(const WindowRecord& window, const WindowRecord& control)
{
    const WindowRecord* heading = nullptr;
    const int middle = (control.place.left + control.place.right) / 2;
    for (const HWND child : window.children) {
        const WindowRecord& label = *FindWindowRecord(child);
        if (label.kind == WindowKind::Label && label.place.left <= middle && middle <= label.place.right &&
            label.place.bottom <= control.place.top &&
            (heading == nullptr || label.place.bottom > heading->place.bottom)) {
            heading = &label;
        }
    }
    return heading;
}

template <class Dialog>
void ExpectControls(UINT id, std::initializer_list<Control> controls)
{
    Dialog dialog;
    ASSERT_TRUE(dialog.Create(id));
    if constexpr (requires { dialog.Init(); }) {
        dialog.Init();
    } else if constexpr (requires { dialog.Init(""); }) {
        dialog.Init("");
    }
    const WindowRecord& window = *FindWindowRecord(dialog.m_hWnd);
    const WindowRecord* box = nullptr;
    for (const Control& wanted : controls) {
        SCOPED_TRACE(wanted.id);
        const CWnd* const item = dialog.GetDlgItem(wanted.id);
        ASSERT_NE(item, nullptr);
        const WindowRecord& control = *FindWindowRecord(item->m_hWnd);
        EXPECT_EQ(control.kind, wanted.kind);
        EXPECT_EQ(control.enabled, wanted.style != Disabled);
        EXPECT_EQ(Has(control.style, Digits), wanted.style == Digits);
        const bool ownCaption = wanted.kind == Key || wanted.kind == WindowKind::Label;
        const WindowRecord* const caption = ownCaption ? &control : HeadingOf(window, control);
        if (wanted.caption != nullptr) {
            ASSERT_NE(caption, nullptr);
            EXPECT_EQ(caption->text, wanted.caption);
        }
        CString rows;
        for (const CString& row : control.list.rows) {
            rows += row + "|";
        }
        EXPECT_EQ(rows, wanted.rows);
        if (wanted.kind == List && box != nullptr) {
            EXPECT_TRUE(box->place.left == control.place.left && box->place.right == control.place.right &&
                        box->place.bottom <= control.place.top);
        }
        box = wanted.kind == Edit ? &control : nullptr;
    }
    const auto hasId = [](HWND child) { return FindWindowRecord(child)->id != IDC_STATIC; };
    EXPECT_EQ(std::count_if(window.children.begin(), window.children.end(), hasId),
              static_cast<std::ptrdiff_t>(controls.size()));
}

TEST(PanelTemplates, ControlsCaptionsAndRowsAreTheDrawnOnes)
{
    constexpr const char* DigitRows = "1|2|3|4|5|6|7|8|9|0|";
    ExpectControls<CBeamNameDlg>(540,
                                 {
                                     {1316, Edit, GbkLabel<u8"梁类型">()},
                                     {552, List, GbkLabel<u8"梁类型">(), "KL|KZL|WKL|JZL|LL|AL|BKL|XL|L|"},
                                     {1643, Edit, GbkLabel<u8"序号">()},
                                     {1062, List, GbkLabel<u8"序号">(), DigitRows},
                                     {1654, Edit, GbkLabel<u8"跨数">()},
                                     {547, List, GbkLabel<u8"跨数">(), DigitRows},
                                     {1658, Edit, GbkLabel<u8"悬挑">()},
                                     {549, List, GbkLabel<u8"悬挑">(), GbkLabel<u8"无|A|B|">()},
                                 });
    ExpectControls<CBeamSecDlg>(
        364, {
                 {1320, Edit, GbkLabel<u8"梁宽">()},
                 {1317, List, GbkLabel<u8"梁宽">(), "120|150|200|250|300|350|400|450|500|550|600|"},
                 {1349, List, "x", "x|", Disabled},
                 {1348, List, "x", "x|x|x|x|x|x|x|x|x|x|x|", Disabled},
                 {1321, Edit, GbkLabel<u8"梁高">()},
                 {1062, List, GbkLabel<u8"梁高">(), "200|250|300|350|400|450|500|550|600|650|700|750|800|"},
             });
    ExpectControls<CBeamLevelDlg>(542, {
                                           {1320, Edit, nullptr},
                                           {1367, Key, "1"},
                                           {1360, Key, "2"},
                                           {1308, Key, "3"},
                                           {1309, Key, "4"},
                                           {1052, Key, "5"},
                                           {1310, Key, "6"},
                                           {1311, Key, "7"},
                                           {1312, Key, "8"},
                                           {1313, Key, "9"},
                                           {1314, Key, "0"},
                                           {1315, Key, "."},
                                           {1316, Key, "(   )"},
                                           {1317, Key, "-"},
                                           {1318, Key, "BK"},
                                           {1319, Key, "CE"},
                                       });
    constexpr const char* LegRows = "(2)|(3)|(4)|";
    ExpectControls<CBeamGujinDlg>(
        367, {
                 {1321, Edit, GbkLabel<u8"钢筋符">()},
                 {1339, List, GbkLabel<u8"钢筋符">(), "A|B|"},
                 {1653, Edit, GbkLabel<u8"直径">()},
                 {1062, List, GbkLabel<u8"直径">(), "6|8|10|12|"},
                 {1654, Edit, GbkLabel<u8"加密间距">()},
                 {1356, List, GbkLabel<u8"加密间距">(), GbkLabel<u8"无|100|120|130|150|">()},
                 {1658, Edit, GbkLabel<u8"加密肢数">()},
                 {1357, List, GbkLabel<u8"加密肢数">(), GbkLabel<u8"无|(2)|(3)|(4)|">()},
                 {1662, Edit, GbkLabel<u8"间距">()},
                 {1358, List, GbkLabel<u8"间距">(), "150|200|250|"},
                 {1665, Edit, GbkLabel<u8"肢数">()},
                 {1359, List, GbkLabel<u8"肢数">(), LegRows},
             });
    constexpr const char* SplitRows = GbkLabel<u8"无|1|2|3|4|5|6|7|8|">();
    ExpectControls<CBeamSteelDlg>(
        543, {
                 {1062, List, GbkLabel<u8"钢筋成份">(),
                  GbkLabel<u8"上部贯通筋|下部贯通筋|+(架立筋)|*扭筋|N扭筋|G侧面构造筋|">()},
                 {1338, List, GbkLabel<u8"钢筋数">(), "1|2|3|4|5|6|7|8|"},
                 {1339, List, GbkLabel<u8"钢筋符">(), "A|B|C|D|"},
                 {1340, List, GbkLabel<u8"直径">(), "10|12|14|16|18|20|22|25|"},
                 {1361, List, GbkLabel<u8"上下排">(), SplitRows},
                 {1363, List, GbkLabel<u8"上下排">(), " |/|/|/|/|/|/|/|/|", Disabled},
                 {1362, List, GbkLabel<u8"上下排">(), SplitRows},
                 {1341, List, GbkLabel<u8"分隔符">(), GbkLabel<u8";|,|无|">()},
                 {1345, List, nullptr, GbkLabel<u8"+不同直径|   |">()},
                 {1346, List, nullptr},
                 {1347, Key, GbkLabel<u8"删除">()},
             });
    constexpr const char* GradeRows = "A|B|C|D|";
    ExpectControls<CHBarPropertySheet>(363, {
                                                {1309, Edit, GbkLabel<u8"钢筋种类">(), "", Disabled},
                                                {1308, List, GbkLabel<u8"钢筋种类">(), GradeRows},
                                                {1311, Edit, GbkLabel<u8"直径">(), "", Digits},
                                                {1112, List, GbkLabel<u8"直径">(), "6|6.5|8|10|12|14|16|"},
                                                {1333, WindowKind::Label, "@"},
                                                {1313, Edit, GbkLabel<u8"加密间距">(), "", Digits},
                                                {1114, List, GbkLabel<u8"加密间距">(), "50|100|150|200|"},
                                                {1315, Edit, GbkLabel<u8"间距">(), "", Digits},
                                                {1116, List, GbkLabel<u8"间距">(), "|100|150|200|"},
                                            });
    ExpectControls<CVBarPropertySheet>(
        365, {
                 {1310, Edit, GbkLabel<u8"钢筋种类">(), "", Disabled},
                 {1306, List, GbkLabel<u8"钢筋种类">(), GradeRows},
                 {1377, Edit, GbkLabel<u8"直径">(), "", Digits},
                 {1307, List, GbkLabel<u8"直径">(), "8|10|12|14|16|18|20|22|25|28|"},
             });
}

}  // namespace
