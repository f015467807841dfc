// What a caller gets wrong besides handles: each has its status, and nothing ends the process.
#include "tests/c/Handles.h"

namespace {

struct Slip {
    const char* what;
    rk_status expected;
    rk_status (*call)(const Handles& h);
};

const Slip slips[] = {
    {"no place for a context", RK_BAD_ARGUMENT, [](const Handles&) { return rk_context_create(nullptr); }},
    {"an encoding", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_context_set_encoding(h.context, 2); }},
    {"callbacks of no size", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         const rk_callbacks callbacks{};
         return rk_context_set_callbacks(h.context, &callbacks);
     }},
    {"a null text", RK_BAD_ARGUMENT, [](const Handles& h) { return rk_list_add(h.list, nullptr, 3); }},
    {"a null zero-ended text", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_add(h.list, nullptr, RK_ZERO_ENDED); }},
    {"a text past any length", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_add(h.list, "a", std::size_t{1} << 31U); }},
    {"a zero byte", RK_BAD_TEXT, [](const Handles& h) { return rk_list_add(h.list, "a\0b", 3); }},
    {"half a UTF-8 character", RK_BAD_TEXT,
     [](const Handles& h) { return rk_list_add(h.list, "\xE6\xA2", 2); }},
    {"a character that GBK lacks", RK_BAD_TEXT,
     [](const Handles& h) { return rk_list_set(h.list, 0, "\xC3\xB8", 2); }},
    {"a bad text among many", RK_BAD_TEXT,
     [](const Handles& h) {
         const rk_text texts[] = {{"2B25", 4}, {"\xFF", 1}};
         return rk_list_add_texts(h.list, texts, 2);
     }},
    {"a null among many", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         const rk_text texts[] = {{"2B25", 4}, {nullptr, 1}};
         return rk_list_add_texts(h.list, texts, 2);
     }},
    {"null for many", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_add_texts(h.list, nullptr, 2); }},
    {"more than any list", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_add_texts(h.list, FourFields, std::size_t{1} << 31U); }},
    {"a block without its last zero byte", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_add_block(h.list, "a\0b", 3); }},
    {"a null block", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_add_block(h.list, nullptr, 3); }},
    {"null numbers", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_add_numbers(h.list, nullptr, 1); }},
    {"set past the end", RK_BAD_INDEX, [](const Handles& h) { return rk_list_set(h.list, 1, "", 0); }},
    {"removed past the end", RK_BAD_INDEX, [](const Handles& h) { return rk_list_remove(h.list, 0, 2); }},
    {"removed from an index past counting", RK_BAD_INDEX,
     [](const Handles& h) { return rk_list_remove(h.list, 1, static_cast<std::size_t>(-1)); }},
    {"read past the end", RK_BAD_INDEX,
     [](const Handles& h) { return rk_list_text(h.list, 1, &g_pointer, &g_size); }},
    {"no place for a text", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_text(h.list, 0, nullptr, &g_size); }},
    {"many past the end", RK_BAD_INDEX,
     [](const Handles& h) {
         rk_text texts[2];
         return rk_list_texts(h.list, 0, 2, texts);
     }},
    {"no place for many", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_texts(h.list, 0, 1, nullptr); }},
    {"no place for a count", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_count(h.list, nullptr); }},
    {"no place for a block", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_block(h.list, nullptr, &g_size); }},
    {"no place for numbers", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_list_numbers(h.list, nullptr, &g_size); }},
    {"a null buffer with a size", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_bars_head(h.context, "2B22", 4, nullptr, 9, &g_size); }},
    {"no UTF-8 to turn", RK_BAD_TEXT,
     [](const Handles&) { return rk_gbk_from_utf8("\xFF", 1, g_buffer, 9, &g_size); }},
    {"half a GBK character to turn", RK_BAD_TEXT,
     [](const Handles&) { return rk_utf8_from_gbk("\xC1", 1, g_buffer, 9, &g_size); }},
    {"fields of what has none", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_text_read(h.context, RK_BARS, "2B22", 4, h.list); }},
    {"a name without L", RK_NOT_DONE,
     [](const Handles& h) { return rk_text_read(h.context, RK_NAME, "K", 1, h.list); }},
    {"too few fields", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         return rk_text_compose(h.context, RK_NAME, FourFields, 3, g_buffer, 256, &g_size);
     }},
    {"no fields", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         return rk_text_compose(h.context, RK_NAME, nullptr, 4, g_buffer, 256, &g_size);
     }},
    {"a text of what has no fields", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         return rk_text_compose(h.context, 77, FourFields, 4, g_buffer, 256, &g_size);
     }},
    {"no place for measures", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_text_measure(h.context, RK_BARS, "", 0, nullptr); }},
    {"measures of no size", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         rk_measures measures{};
         return rk_text_measure(h.context, RK_BARS, "", 0, &measures);
     }},
    {"measures of a piece", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         return Into<rk_measures>(rk_text_measure, h.context, RK_BAR_PIECE, "", std::size_t{0});
     }},
    {"an order of names", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_text_compare(h.context, RK_NAME, "", 0, "", 0, &g_number); }},
    {"no place for an order", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_text_compare(h.context, RK_BARS, "", 0, "", 0, nullptr); }},
    {"a key that is none", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_elevation_key(h.context, "", 0, 'x', g_buffer, 256, &g_size); }},
    {"a second point", RK_NOT_DONE,
     [](const Handles& h) {
         return rk_elevation_key(h.context, "0.", 2, RK_KEY_POINT, g_buffer, 256, &g_size);
     }},
    {"a row past the bar table", RK_BAD_INDEX,
     [](const Handles&) { return Into<rk_bar_row>(rk_bar_table_row, std::size_t{344}); }},
    {"a row past the stirrup table", RK_BAD_INDEX,
     [](const Handles&) { return Into<rk_stirrup_row>(rk_stirrup_table_row, std::size_t{214}); }},
    {"no place for a row", RK_BAD_ARGUMENT, [](const Handles&) { return rk_bar_table_row(0, nullptr); }},
    {"no place for a stirrup row", RK_BAD_ARGUMENT,
     [](const Handles&) { return rk_stirrup_table_row(0, nullptr); }},
    {"no place for a table's count", RK_BAD_ARGUMENT,
     [](const Handles&) { return rk_bar_table_count(nullptr); }},
    {"no place for a stirrup table's count", RK_BAD_ARGUMENT,
     [](const Handles&) { return rk_stirrup_table_count(nullptr); }},
    {"a look-up of nothing", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_bar_table_find(h.context, 4, 300, 1000, "", 0, h.list, nullptr); }},
    {"a grade that the table lacks", RK_NOT_DONE,
     [](const Handles& h) { return rk_stirrup_table_find(h.context, 300, 31, 2, h.list); }},
    {"a ranker of wall bars", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         rk_ranker made = nullptr;
         return rk_ranker_create(h.context, RK_WALL_BARS, &made);
     }},
    {"no place for a ranker", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_ranker_create(h.context, RK_BARS, nullptr); }},
    {"stirrups of a bar ranker", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_ranker_set_stirrups(h.ranker, 300, 2, 30); }},
    {"a name for a bar ranker", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_ranker_set_previous_name(h.ranker, "KL1", 3, nullptr); }},
    {"a project that is no list", RK_BAD_HANDLE,
     [](const Handles& h) { return rk_ranker_run(h.ranker, AsHandle<rk_list>(h.panel), h.list); }},
    {"no place for the focus", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_ranker_focus(h.ranker, nullptr); }},
    {"a panel that is none", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         const rk_panel_options options = {sizeof options, 7, RK_TO_ITEM, 0};
         rk_panel made = nullptr;
         return rk_panel_create(h.context, &options, &made);
     }},
    {"a name for host data", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         const rk_panel_options options = {sizeof options, RK_NAME_PANEL, RK_TO_HOST, 0};
         rk_panel made = nullptr;
         return rk_panel_create(h.context, &options, &made);
     }},
    {"a picker for the parent", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         const rk_panel_options options = {sizeof options, RK_VERTICAL_PICKER, RK_TO_PARENT, 0};
         rk_panel made = nullptr;
         return rk_panel_create(h.context, &options, &made);
     }},
    {"no options", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         rk_panel made = nullptr;
         return rk_panel_create(h.context, nullptr, &made);
     }},
    {"a control that is not there", RK_BAD_INDEX,
     [](const Handles& h) { return rk_panel_click(h.panel, 4711, -1, RK_CLICK); }},
    {"a row that is not there", RK_BAD_INDEX,
     [](const Handles& h) { return rk_panel_click(h.panel, 1356, 5, RK_CLICK); }},
    {"a row below the first", RK_BAD_INDEX,
     [](const Handles& h) { return rk_panel_click(h.panel, 1356, -2, RK_CLICK); }},
    {"a row of an edit box", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_panel_click(h.panel, 1653, 0, RK_CLICK); }},
    {"a click that is none", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_panel_click(h.panel, 1356, 0, 3); }},
    {"a click on what is hidden", RK_NOT_DONE,
     [](const Handles& h) { return rk_panel_click(h.panel, 1356, 0, RK_CLICK); }},
    {"an edited list", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_panel_edit(h.panel, 1356, "", 0); }},
    {"a letter for a box of digits", RK_NOT_DONE,
     [](const Handles& h) {
         const rk_panel_options options = {sizeof options, RK_VERTICAL_PICKER, RK_TO_ITEM, 0};
         rk_panel picker = nullptr;
         EXPECT_EQ(RK_OK, rk_panel_create(h.context, &options, &picker));
         rk_control control = Sized<rk_control>();
         rk_status refused = RK_OK;
         for (int i = 0; rk_panel_control_at(picker, i, &control) == RK_OK; ++i) {
             if (control.kind == RK_AN_EDIT_BOX && rk_panel_edit(picker, control.id, "x", 1) != RK_OK) {
                 refused = RK_NOT_DONE;
             }
         }
         return refused;
     }},
    {"no event", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_panel_event(h.panel, nullptr, nullptr); }},
    {"an event that is none", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         return Into<rk_event>([](rk_panel p, const rk_event* e) { return rk_panel_event(p, e, nullptr); },
                               h.panel);
     }},
    {"a press far away", RK_BAD_ARGUMENT,
     [](const Handles& h) {
         auto event = Sized<rk_event>();
         event.message = RK_LEFT_DOWN;
         event.x = -2147483647 - 1;
         return rk_panel_event(h.panel, &event, nullptr);
     }},
    {"a character that GBK lacks, typed", RK_BAD_TEXT,
     [](const Handles& h) {
         auto event = Sized<rk_event>();
         event.message = RK_CHARACTER;
         event.key = 0x110000;
         return rk_panel_event(h.panel, &event, nullptr);
     }},
    {"no place for a state", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_panel_get_state(h.panel, nullptr); }},
    {"a second group", RK_BAD_INDEX,
     [](const Handles& h) { return rk_panel_result(h.panel, 1, g_buffer, 256, &g_size); }},
    {"a control past the last", RK_BAD_INDEX,
     [](const Handles& h) { return Into<rk_control>(rk_panel_control_at, h.panel, 99); }},
    {"rows of an edit box", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_panel_rows(h.panel, 1653, h.list); }},
    {"no place for a place", RK_BAD_ARGUMENT,
     [](const Handles& h) { return rk_panel_row_place(h.panel, 1356, 0, nullptr); }},
    {"the place of no row", RK_BAD_INDEX,
     [](const Handles& h) {
         rk_rect place{};
         return rk_panel_row_place(h.panel, 1356, 99, &place);
     }},
};

TEST(Mistakes, EachHasItsStatusAndLeavesTheListAlone)
{
    for (const Slip& slip : slips) {
        const CHost host;
        const Handles handles = Made(host);
        EXPECT_EQ(slip.expected, slip.call(handles)) << slip.what << ": " << rk_last_error();
        EXPECT_EQ(Texts{"2B22"}, TextsOf(handles.list)) << slip.what;
    }
}

}  // namespace
