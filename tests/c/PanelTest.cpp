// Panels and pickers by way of C beside the same panels by way of C++.
#include <algorithm>

#include "platform/windows/Hands.h"
#include "tests/c/CHost.h"
#include "tests/rankers/random/MakeTexts.h"
#include "tests/support/Seed.h"

namespace {

using Delivered = CHost::Delivered;

constexpr int TightSpacings = 1356;

rk_control ControlAt(rk_panel panel, int number)
{
    rk_control control{};
    control.struct_size = sizeof control;
    EXPECT_EQ(RK_OK, rk_panel_control_at(panel, number, &control)) << rk_last_error();
    return control;
}

rk_panel_state StateOf(rk_panel panel)
{
    rk_panel_state state{};
    state.struct_size = sizeof state;
    EXPECT_EQ(RK_OK, rk_panel_get_state(panel, &state)) << rk_last_error();
    return state;
}

// Each control's kind, place, text and selection, labels included.
Texts Picture(rk_panel panel)
{
    Texts lines;
    for (int i = 0; i < StateOf(panel).controls; ++i) {
        const rk_control c = ControlAt(panel, i);
        lines.push_back(std::to_string(c.id) + "/" + std::to_string(c.kind) + " " +
                        std::string(c.text.data, c.text.length) + " " + std::to_string(c.place.left) + "," +
                        std::to_string(c.place.top) + "," + std::to_string(c.place.right) + "," +
                        std::to_string(c.place.bottom) + " " + std::to_string(c.rows) + " " +
                        std::to_string(c.selection) + (c.enabled != 0 ? "" : " off"));
    }
    return lines;
}

Texts Picture(const CWnd& panel)
{
    Texts lines;
    CRect origin;
    panel.GetWindowRect(&origin);
    for (const CWnd* at = panel.GetTopWindow(); at != nullptr; at = at->GetNextWindow()) {
        const auto* const list = dynamic_cast<const CListBox*>(at);
        const int kind = dynamic_cast<const CEdit*>(at) != nullptr     ? RK_AN_EDIT_BOX
                         : list != nullptr                             ? RK_A_LIST_BOX
                         : dynamic_cast<const CButton*>(at) != nullptr ? RK_A_BUTTON
                                                                       : RK_A_LABEL;
        CString text;
        at->GetWindowText(text);
        std::string utf8(text.View().size() * 2 + 1, '\0');
        std::size_t length = 0;
        EXPECT_EQ(RK_OK, rk_utf8_from_gbk(text, text.View().size(), utf8.data(), utf8.size(), &length));
        CRect place;
        at->GetWindowRect(&place);
        lines.push_back(std::to_string(at->GetDlgCtrlID()) + "/" + std::to_string(kind) + " " +
                        utf8.substr(0, length) + " " + std::to_string(place.left - origin.left) + "," +
                        std::to_string(place.top - origin.top) + "," +
                        std::to_string(place.right - origin.left) + "," +
                        std::to_string(place.bottom - origin.top) + " " +
                        std::to_string(list != nullptr ? list->GetCount() : 0) + " " +
                        std::to_string(list != nullptr ? list->GetCurSel() : -1) +
                        (at->IsWindowEnabled() != FALSE ? "" : " off"));
    }
    return lines;
}

struct Take : CPropertyGridItem {
    void SetValue(CString strValue) override { m_texts.emplace_back(strValue.View()); }
    Texts m_texts;
};

// What both get: clicks on rows and buttons, double clicks, edits, a right press at the end.
template <class Panel, class Begin>
void PlayBoth(int kind, unsigned first, Begin begin)
{
    constexpr unsigned Trials = 4;
    constexpr int Steps = 40;
    for (unsigned seed = first; seed < first + Trials; ++seed) {
        SCOPED_TRACE(SeedName(seed));
        Yardstick::Chance chance(seed);
        CHost host;
        const rk_panel c = host.Shown(kind, kind == RK_BAR_PANEL ? "" : "A8@100/200(2)");
        Panel cpp;
        Take item;
        item.SetHWnd(&item);
        cpp.m_pItem = &item;
        cpp.Create(Panel::IDD);
        begin(cpp);
        cpp.MoveWindow(2000, 2000, StateOf(c).place.right - StateOf(c).place.left,
                       StateOf(c).place.bottom - StateOf(c).place.top);
        cpp.ShowWindow(SW_SHOW);
        Hands hands;
        ASSERT_EQ(Picture(cpp), Picture(c));
        for (int step = 0; step < Steps; ++step) {
            const rk_control target =
                ControlAt(c, static_cast<int>(chance.Below(static_cast<unsigned>(StateOf(c).controls))));
            const bool bDouble = chance.OneIn(8) && kind != RK_SECTION_PANEL;
            const int how = bDouble ? RK_DOUBLE_CLICK : RK_CLICK;
            if (target.kind == RK_A_LIST_BOX && target.rows > 0 && target.enabled != 0) {
                const int row = static_cast<int>(chance.Below(static_cast<unsigned>(target.rows)));
                bDouble ? hands.DoubleClickRow(cpp, target.id, row) : hands.ClickRow(cpp, target.id, row);
                DONE(rk_panel_click(c, target.id, row, how));
            } else if (target.kind == RK_A_BUTTON) {
                hands.Click(cpp, target.id);
                DONE(rk_panel_click(c, target.id, -1, RK_CLICK));
            } else if (target.kind == RK_AN_EDIT_BOX) {
                const std::string text = chance.Of({"", "A", "8", "100", "(3)", "C"});
                const BOOL bTaken = UserEditsText(cpp.GetDlgItem(target.id)->m_hWnd, text.c_str());
                EXPECT_EQ(bTaken != FALSE ? RK_OK : RK_NOT_DONE,
                          rk_panel_edit(c, target.id, text.data(), text.size()));
            }
            ASSERT_EQ(Picture(cpp), Picture(c)) << "step " << step << " at " << target.id;
        }
        hands.RightClick(Hands::MiddleOf(cpp));
        DONE(rk_panel_click(c, RK_THE_PANEL, -1, RK_RIGHT_CLICK));
        Texts delivered;
        for (const Delivered& each : host.m_delivered) {
            delivered.push_back(each.text);
        }
        EXPECT_EQ(item.m_texts, delivered);
        EXPECT_EQ(cpp.IsWindowVisible(), StateOf(c).visible);
    }
}

TEST(CPanels, DoWhatTheModulesDo)
{
    const unsigned seed = FirstSeed(1);
    const CString text = "A8@100/200(2)";
    PlayBoth<CBeamNameDlg>(RK_NAME_PANEL, seed,
                           [&](CBeamNameDlg& p) { p.Init(), p.SetFocusBeamname(text); });
    PlayBoth<CBeamSecDlg>(RK_SECTION_PANEL, seed, [&](CBeamSecDlg& p) { p.Init(CString()), p.Init(text); });
    PlayBoth<CBeamLevelDlg>(RK_ELEVATION_PANEL, seed, [&](CBeamLevelDlg& p) { p.SetFocusLevel(text); });
    PlayBoth<CBeamGujinDlg>(RK_STIRRUP_PANEL, seed,
                            [&](CBeamGujinDlg& p) { p.Init(), p.SetFocusGujin(text); });
    PlayBoth<CBeamSteelDlg>(RK_BAR_PANEL, seed, [](CBeamSteelDlg& p) { p.Init(); });
    const auto bind = [&](auto& picker) {
        picker.m_pItem->CPropertyGridItem::SetValue(text);
        picker.UpdateValue();
    };
    PlayBoth<CHBarPropertySheet>(RK_HORIZONTAL_PICKER, seed, bind);
    PlayBoth<CVBarPropertySheet>(RK_VERTICAL_PICKER, seed, bind);
}

TEST(CPanels, DeliverByEachRoute)
{
    CHost host;
    const auto confirmed = [&](int kind, const char* text, int route) {
        host.m_delivered.clear();
        const rk_panel panel = host.Shown(kind, text, route);
        EXPECT_EQ(RK_OK, rk_panel_click(panel, RK_THE_PANEL, -1, RK_RIGHT_CLICK)) << rk_last_error();
        EXPECT_EQ(0, StateOf(panel).visible);
        EXPECT_EQ(1U, host.m_delivered.size());
        Delivered delivered = host.m_delivered.empty() ? Delivered{} : host.m_delivered[0];
        EXPECT_EQ(panel, delivered.panel);
        delivered.panel = nullptr;
        return delivered;
    };
    const auto expect = [](int route, int mode, const char* text, int code) {
        return Delivered{nullptr, route, mode, text, code};
    };
    EXPECT_EQ(expect(RK_TO_ITEM, 0, "KL3(2A)", 0), confirmed(RK_NAME_PANEL, "KL3(2A)", RK_TO_ITEM));
    EXPECT_EQ(expect(RK_TO_PARENT, 1, "KL3(2A)", 8), confirmed(RK_NAME_PANEL, "KL3(2A)", RK_TO_PARENT));
    EXPECT_EQ(expect(RK_TO_PARENT, 1, "300x600", 0), confirmed(RK_SECTION_PANEL, "300x600", RK_TO_PARENT));
    EXPECT_EQ(expect(RK_TO_HOST, 2, "标高", 7), confirmed(RK_ELEVATION_PANEL, "标高", RK_TO_HOST));
    EXPECT_EQ(expect(RK_TO_HOST, 0, "A8@200(2)", 1), confirmed(RK_STIRRUP_PANEL, "A8@200(2)", RK_TO_HOST));
    EXPECT_EQ(expect(RK_TO_ITEM, 0, "A10@100/200", 0),
              confirmed(RK_HORIZONTAL_PICKER, "A10@100/200", RK_TO_ITEM));
    EXPECT_EQ(expect(RK_TO_ITEM, 0, "B16", 0), confirmed(RK_VERTICAL_PICKER, "B16", RK_TO_ITEM));

    // A name without span and cantilever is told to the user and not delivered.
    host.m_delivered.clear();
    const rk_panel panel = host.Shown(RK_NAME_PANEL, "KL1");
    DONE(rk_panel_click(panel, RK_THE_PANEL, -1, RK_RIGHT_CLICK));
    EXPECT_EQ(Texts{"跨数有误"}, host.m_messages);
    EXPECT_TRUE(host.m_delivered.empty());
}

// The five clicks of a whole annotation, which comes as up to three texts.
rk_panel ComposedBars(const CHost& host)
{
    const rk_panel panel = host.NewPanel(RK_BAR_PANEL, RK_TO_HOST, 7);
    EXPECT_EQ(RK_BAD_ARGUMENT, rk_panel_set_text(panel, "2B22", 4));
    EXPECT_EQ(RK_OK, rk_panel_set_text(panel, nullptr, 0));
    EXPECT_EQ(RK_OK, rk_panel_show(panel, 0, 0));
    const rk_list rows = host.NewList();
    EXPECT_EQ(RK_OK, rk_panel_rows(panel, 1062, rows));
    const Texts types = TextsOf(rows);
    const int torsion = static_cast<int>(std::find(types.begin(), types.end(), "N扭筋") - types.begin());
    const std::pair<int, int> clicks[] = {{1338, 3}, {1340, 7}, {1062, torsion}, {1338, 1}, {1340, 1}};
    for (const auto& [list, row] : clicks) {
        EXPECT_EQ(RK_OK, rk_panel_click(panel, list, row, RK_CLICK)) << rk_last_error();
    }
    return panel;
}

TEST(CPanels, OfBarsTellTheirGroupsAndDeliverEach)
{
    CHost host;
    const rk_panel panel = ComposedBars(host);
    Texts groups;
    for (std::int32_t group = 0; group < StateOf(panel).groups; ++group) {
        groups.push_back(Written(rk_panel_result, panel, group));
    }
    EXPECT_EQ((Texts{"4B25 ", "", "", "N2B12 ", ""}), groups);
    DONE(rk_panel_click(panel, RK_THE_PANEL, -1, RK_RIGHT_CLICK));
    EXPECT_EQ(
        (std::vector<Delivered>{{panel, RK_TO_HOST, 2, "4B25", 0}, {panel, RK_TO_HOST, 0, "N2B12", 8}}),
        host.m_delivered);
}

TEST(CPanels, MayBeDestroyedByTheirReceiver)
{
    for (const int kind : {RK_NAME_PANEL, RK_SECTION_PANEL, RK_ELEVATION_PANEL, RK_STIRRUP_PANEL,
                           RK_HORIZONTAL_PICKER, RK_VERTICAL_PICKER}) {
        for (const bool bContext : {false, true}) {
            CHost host;
            const rk_panel panel = host.Shown(kind, kind == RK_NAME_PANEL ? "KL1(1)" : "A8@100/200(2)");
            host.m_act = [&] {
                return bContext ? rk_context_destroy(host.m_context) : rk_panel_destroy(panel);
            };
            EXPECT_EQ(RK_OK, rk_panel_click(panel, RK_THE_PANEL, -1, RK_RIGHT_CLICK)) << rk_last_error();
            EXPECT_EQ(1U, host.m_delivered.size()) << kind;
            EXPECT_EQ(RK_BAD_HANDLE, rk_panel_hide(panel));
        }
    }
    CHost host;
    const rk_panel panel = ComposedBars(host);
    host.m_act = [&] { return rk_panel_destroy(panel); };
    DONE(rk_panel_click(panel, RK_THE_PANEL, -1, RK_RIGHT_CLICK));
    EXPECT_EQ(1U, host.m_delivered.size()) << "a panel that is gone hands over nothing more";
}

// A display feeds what the user does to the windows by itself, outside of any call of the host.
TEST(CPanels, DeliverWhatADisplayFeeds)
{
    const std::pair<int, int> cases[] = {{RK_STIRRUP_PANEL, RK_TO_ITEM},
                                         {RK_STIRRUP_PANEL, RK_TO_PARENT},
                                         {RK_STIRRUP_PANEL, RK_TO_HOST},
                                         {RK_HORIZONTAL_PICKER, RK_TO_ITEM}};
    for (const auto& [kind, route] : cases) {
        for (const bool bDestroy : {false, true}) {
            CHost host;
            const rk_panel panel = host.Shown(kind, "A8@100/200(2)", route);
            if (bDestroy) {
                host.m_act = [&, own = panel] { return rk_panel_destroy(own); };
            }
            // In the first list, whose presses go their own way in a picker.
            rk_control list{};
            for (int i = 0; list.kind != RK_A_LIST_BOX; ++i) {
                list = ControlAt(panel, i);
            }
            const rk_rect place = StateOf(panel).place;
            Hands().RightClick(CPoint(place.left + list.place.left + 3, place.top + list.place.top + 3));
            ASSERT_EQ(1U, host.m_delivered.size()) << route << ' ' << kind;
            EXPECT_EQ(route, host.m_delivered[0].route);
            EXPECT_EQ(bDestroy ? RK_BAD_HANDLE : RK_OK, rk_panel_hide(panel));
        }
    }
}

TEST(CPanels, TakeEventsOneByOne)
{
    CHost host;
    const rk_panel panel = host.Shown(RK_STIRRUP_PANEL, "A8@200(2)", RK_TO_PARENT);
    rk_event event{};
    event.struct_size = sizeof event;
    std::int32_t finished = 9;
    const auto feed = [&](int message, int control, std::uint32_t key = 0, int x = 0, int y = 0) {
        event.message = message;
        event.control = control;
        event.key = key;
        event.x = x;
        event.y = y;
        EXPECT_EQ(RK_OK, rk_panel_event(panel, &event, &finished)) << rk_last_error();
        return finished;
    };
    rk_rect row{};
    DONE(rk_panel_row_place(panel, TightSpacings, 1, &row));
    EXPECT_EQ(0, feed(RK_LEFT_DOWN, TightSpacings, 0, row.left + 5, row.top + 5));
    EXPECT_EQ(0, feed(RK_LEFT_UP, TightSpacings, 0, row.left + 5, row.top + 5));
    EXPECT_EQ("A8@100/200(2)", Written(rk_panel_result, panel, std::int32_t{0}));
    const rk_list rows = host.NewList();
    DONE(rk_panel_rows(panel, TightSpacings, rows));
    EXPECT_EQ((Texts{"无", "100", "120", "130", "150"}), TextsOf(rows));

    // Typed into the box that has the focus, in UTF-8 and as GBK bytes; Tab is the panel's.
    constexpr int Spacing = 1662;
    DONE(rk_panel_click(panel, Spacing, -1, RK_CLICK));
    EXPECT_EQ(Spacing, StateOf(panel).focus);
    feed(RK_KEY_DOWN, RK_THE_FOCUS, 35);
    feed(RK_CHARACTER, RK_THE_FOCUS, U'梁');
    DONE(rk_context_set_encoding(host.m_context, RK_GBK));
    feed(RK_CHARACTER, RK_THE_FOCUS, 0xC1);
    feed(RK_CHARACTER, RK_THE_FOCUS, 0xBA);
    DONE(rk_context_set_encoding(host.m_context, RK_UTF8));
    rk_control box{};
    box.struct_size = sizeof box;
    DONE(rk_panel_control(panel, Spacing, &box));
    EXPECT_EQ("200梁梁", std::string(box.text.data, box.text.length));
    EXPECT_EQ(1, feed(RK_KEY_DOWN, RK_THE_FOCUS, 9));
    EXPECT_NE(Spacing, StateOf(panel).focus);

    // Dragged, dismissed, and then deaf.
    const rk_rect before = StateOf(panel).place;
    feed(RK_LEFT_DOWN, RK_THE_PANEL, 0, 2, 2);
    feed(RK_LEFT_UP, RK_THE_PANEL, 0, 32, 12);
    EXPECT_EQ((std::pair{before.left + 30, before.top + 10}),
              (std::pair{StateOf(panel).place.left, StateOf(panel).place.top}));
    EXPECT_EQ(1, feed(RK_KEY_DOWN, RK_THE_FOCUS, 27));
    EXPECT_EQ(0, StateOf(panel).visible);
    EXPECT_EQ(0, feed(RK_RIGHT_DOWN, RK_THE_PANEL));
    EXPECT_TRUE(host.m_delivered.empty());
    DONE(rk_panel_show(panel, 0, 0));
    feed(RK_RIGHT_DOWN, RK_THE_PANEL);
    ASSERT_EQ(1U, host.m_delivered.size());
    EXPECT_EQ("A8@100/200梁梁(2)", host.m_delivered[0].text);
}

TEST(CPanels, BindAgainWithEachText)
{
    CHost host;
    const rk_panel picker = host.Shown(RK_VERTICAL_PICKER, "B16");
    for (int press = 0; press < 2; ++press) {
        DONE(rk_panel_show(picker, 0, 0));
        DONE(rk_panel_click(picker, RK_THE_PANEL, -1, RK_RIGHT_CLICK));
    }
    EXPECT_EQ(1U, host.m_delivered.size()) << "the second press only hides it";
    DONE(rk_panel_set_text(picker, "B20", 3));
    EXPECT_EQ("B20", Written(rk_panel_result, picker, std::int32_t{0}));
    DONE(rk_panel_show(picker, 0, 0));
    DONE(rk_panel_click(picker, RK_THE_PANEL, -1, RK_RIGHT_CLICK));
    EXPECT_EQ("B20", host.m_delivered.back().text);
}

}  // namespace
