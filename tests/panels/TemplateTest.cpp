// The panels' windows as a person sees them: nothing overlaps, leaves the panel or is cut off.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
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

// Made and filled as a host does it.
template <class Dialog>
std::unique_ptr<Dialog> Made(UINT id)
{
    auto dialog = std::make_unique<Dialog>();
    EXPECT_TRUE(dialog->Create(id));
    if constexpr (requires { dialog->Init(); }) {
        dialog->Init();
    } else if constexpr (requires { dialog->Init(""); }) {
        dialog->Init("");
    }
    return dialog;
}

template <class Dialog>
void ExpectReadable(UINT id, int width, int height)
{
    const auto dialog = Made<Dialog>(id);
    const WindowRecord& window = *FindWindowRecord(dialog->m_hWnd);
    EXPECT_EQ(window.shape->width, width);
    EXPECT_EQ(window.shape->height, height);
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
    ExpectReadable<CBeamNameDlg>(540, 97, 109);
    ExpectReadable<CBeamSecDlg>(364, 54, 131);
    ExpectReadable<CBeamLevelDlg>(542, 72, 53);
    ExpectReadable<CBeamGujinDlg>(367, 189, 69);
    ExpectReadable<CBeamSteelDlg>(543, 200, 93);
    ExpectReadable<CHBarPropertySheet>(363, 122, 96);
    ExpectReadable<CVBarPropertySheet>(365, 60, 105);
}

// A column as the drawings of the panels give it: a heading, a box under it and a list under that, of which
// one may be missing (0). The style is the box's or, where there is none, the list's.
struct Column {
    const char* heading;  // null where nothing is above
    int edit, list;
    const char* rows = "";
    ControlStyle style = ControlStyle::None;
};
// A button, or a label with an id.
using Caption = std::pair<int, const char*>;

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

void ExpectControl(const WindowRecord& window, const WindowRecord& control, const Column& column,
                   ControlStyle style)
{
    EXPECT_EQ(control.enabled, style != Disabled) << Print(control);
    EXPECT_EQ(Has(control.style, Digits), style == Digits) << Print(control);
    if (column.heading != nullptr) {
        const WindowRecord* const heading = HeadingOf(window, control);
        EXPECT_TRUE(heading != nullptr && heading->text == column.heading) << Print(control);
    }
}

template <class Dialog>
void ExpectControls(UINT id, std::initializer_list<Column> columns,
                    std::initializer_list<Caption> captions = {})
{
    const auto dialog = Made<Dialog>(id);
    const WindowRecord& window = *FindWindowRecord(dialog->m_hWnd);
    std::ptrdiff_t left = std::count_if(window.children.begin(), window.children.end(), [](HWND child) {
        return FindWindowRecord(child)->id != IDC_STATIC;
    });
    const auto control = [&](int item) -> const WindowRecord& {
        --left;
        return *FindWindowRecord(dialog->GetDlgItem(item)->m_hWnd);
    };
    for (const Column& column : columns) {
        CRect box;
        if (column.edit != 0) {
            const WindowRecord& edit = control(column.edit);
            EXPECT_EQ(edit.kind, WindowKind::EditBox);
            ExpectControl(window, edit, column, column.style);
            box = edit.place;
        }
        if (column.list != 0) {
            const WindowRecord& list = control(column.list);
            EXPECT_EQ(list.kind, WindowKind::ListBox);
            ExpectControl(window, list, column, column.edit == 0 ? column.style : ControlStyle::None);
            CString rows;
            for (const CString& row : list.list.rows) {
                rows += row + "|";
            }
            EXPECT_EQ(rows, column.rows) << Print(list);
            EXPECT_TRUE(column.edit == 0 || (box.left == list.place.left && box.right == list.place.right &&
                                             box.bottom <= list.place.top));
        }
    }
    for (const auto& [item, text] : captions) {
        EXPECT_EQ(control(item).text, text) << item;
    }
    EXPECT_EQ(left, 0) << "controls that nothing names";
}

TEST(PanelTemplates, ControlsCaptionsAndRowsAreTheDrawnOnes)
{
    const char* const digits = "1|2|3|4|5|6|7|8|9|0|";
    ExpectControls<CBeamNameDlg>(540,
                                 {{GbkLabel<u8"梁类型">(), 1316, 552, "KL|KZL|WKL|JZL|LL|AL|BKL|XL|L|"},
                                  {GbkLabel<u8"序号">(), 1643, 1062, digits},
                                  {GbkLabel<u8"跨数">(), 1654, 547, digits},
                                  {GbkLabel<u8"悬挑">(), 1658, 549, GbkLabel<u8"无|A|B|">()}});
    ExpectControls<CBeamSecDlg>(
        364, {{GbkLabel<u8"梁宽">(), 1320, 1317, "120|150|200|250|300|350|400|450|500|550|600|"},
              {"x", 0, 1349, "x|", Disabled},
              {"x", 0, 1348, "x|x|x|x|x|x|x|x|x|x|x|", Disabled},
              {GbkLabel<u8"梁高">(), 1321, 1062, "200|250|300|350|400|450|500|550|600|650|700|750|800|"}});
    ExpectControls<CBeamLevelDlg>(542, {{nullptr, 1320, 0}},
                                  {{1367, "1"},
                                   {1360, "2"},
                                   {1308, "3"},
                                   {1309, "4"},
                                   {1052, "5"},
                                   {1310, "6"},
                                   {1311, "7"},
                                   {1312, "8"},
                                   {1313, "9"},
                                   {1314, "0"},
                                   {1315, "."},
                                   {1316, "(   )"},
                                   {1317, "-"},
                                   {1318, "BK"},
                                   {1319, "CE"}});
    ExpectControls<CBeamGujinDlg>(
        367, {{GbkLabel<u8"钢筋符">(), 1321, 1339, "A|B|"},
              {GbkLabel<u8"直径">(), 1653, 1062, "6|8|10|12|"},
              {GbkLabel<u8"加密间距">(), 1654, 1356, GbkLabel<u8"无|100|120|130|150|">()},
              {GbkLabel<u8"加密肢数">(), 1658, 1357, GbkLabel<u8"无|(2)|(3)|(4)|">()},
              {GbkLabel<u8"间距">(), 1662, 1358, "150|200|250|"},
              {GbkLabel<u8"肢数">(), 1665, 1359, "(2)|(3)|(4)|"}});
    const char* const types = GbkLabel<u8"上部贯通筋|下部贯通筋|+(架立筋)|*扭筋|N扭筋|G侧面构造筋|">();
    const char* const split = GbkLabel<u8"无|1|2|3|4|5|6|7|8|">();
    ExpectControls<CBeamSteelDlg>(543,
                                  {{GbkLabel<u8"钢筋成份">(), 0, 1062, types},
                                   {GbkLabel<u8"钢筋数">(), 0, 1338, "1|2|3|4|5|6|7|8|"},
                                   {GbkLabel<u8"钢筋符">(), 0, 1339, "A|B|C|D|"},
                                   {GbkLabel<u8"直径">(), 0, 1340, "10|12|14|16|18|20|22|25|"},
                                   {GbkLabel<u8"上下排">(), 0, 1361, split},
                                   {GbkLabel<u8"上下排">(), 0, 1363, " |/|/|/|/|/|/|/|/|", Disabled},
                                   {GbkLabel<u8"上下排">(), 0, 1362, split},
                                   {GbkLabel<u8"分隔符">(), 0, 1341, GbkLabel<u8";|,|无|">()},
                                   {nullptr, 0, 1345, GbkLabel<u8"+不同直径|   |">()},
                                   {nullptr, 0, 1346}},
                                  {{1347, GbkLabel<u8"删除">()}});
    ExpectControls<CHBarPropertySheet>(363,
                                       {{GbkLabel<u8"钢筋种类">(), 1309, 1308, "A|B|C|D|", Disabled},
                                        {GbkLabel<u8"直径">(), 1311, 1112, "6|6.5|8|10|12|14|16|", Digits},
                                        {GbkLabel<u8"加密间距">(), 1313, 1114, "50|100|150|200|", Digits},
                                        {GbkLabel<u8"间距">(), 1315, 1116, "|100|150|200|", Digits}},
                                       {{1333, "@"}});
    ExpectControls<CVBarPropertySheet>(
        365, {{GbkLabel<u8"钢筋种类">(), 1310, 1306, "A|B|C|D|", Disabled},
              {GbkLabel<u8"直径">(), 1377, 1307, "8|10|12|14|16|18|20|22|25|28|", Digits}});
}

}  // namespace
