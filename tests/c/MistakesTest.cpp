// Every function against a caller's mistakes: none ends the process, and each has its status.
#include <fstream>
#include <regex>
#include <sstream>

#include "tests/c/CHost.h"

namespace {

// One object of each kind; a test puts a wrong one in the place of a right one.
struct Handles {
    rk_context context;
    rk_list list;
    rk_ranker ranker;
    rk_panel panel;
};

struct Row {
    const char* name;
    const char* uses;  // the handles that it takes: c, l, r, p
    rk_status (*call)(const Handles& h);
};

constexpr rk_text FourFields[4] = {{"KL", 2}, {"1", 1}, {"2", 1}, {"", 0}};
constexpr std::uint32_t OneNumber = 7;
char g_buffer[256];
std::size_t g_size;
std::int32_t g_number;
const char* g_pointer;

template <class Struct>
Struct Sized()
{
    Struct made{};
    made.struct_size = sizeof made;
    return made;
}

rk_status Press(const Handles& h)
{
    auto event = Sized<rk_event>();
    event.message = RK_LEFT_DOWN;
    return rk_panel_event(h.panel, &event, &g_number);
}

template <class Struct, class Function, class... Arguments>
rk_status Into(Function function, Arguments... arguments)
{
    auto made = Sized<Struct>();
    return function(arguments..., &made);
}

// Each is right as it is.
const Row Calls[] = {
    {"rk_context_set_encoding", "c",
     [](const Handles& h) { return rk_context_set_encoding(h.context, RK_UTF8); }},
    {"rk_context_set_callbacks", "c",
     [](const Handles& h) { return rk_context_set_callbacks(h.context, nullptr); }},
    {"rk_text_read", "cl",
     [](const Handles& h) { return rk_text_read(h.context, RK_NAME, "KL1(2)", 6, h.list); }},
    {"rk_text_compose", "c",
     [](const Handles& h) {
         return rk_text_compose(h.context, RK_NAME, FourFields, 4, g_buffer, sizeof g_buffer, nullptr);
     }},
    {"rk_text_measure", "c",
     [](const Handles& h) { return Into<rk_measures>(rk_text_measure, h.context, RK_BARS, "2B22", 4); }},
    {"rk_text_compare", "c",
     [](const Handles& h) { return rk_text_compare(h.context, RK_BARS, "2B22", 4, "", 0, &g_number); }},
    {"rk_name_parts", "cl", [](const Handles& h) { return rk_name_parts(h.context, "KL1", 3, h.list); }},
    {"rk_bars_head", "c",
     [](const Handles& h) {
         return rk_bars_head(h.context, "2B22", 4, g_buffer, sizeof g_buffer, &g_size);
     }},
    {"rk_bars_same_diameter", "c",
     [](const Handles& h) { return rk_bars_same_diameter(h.context, "2B22", 4, "B", 1, &g_number); }},
    {"rk_bars_same_essence", "c",
     [](const Handles& h) { return rk_bars_same_essence(h.context, "2B22", 4, "B", 1, &g_number); }},
    {"rk_stirrup_tight_form", "c",
     [](const Handles& h) {
         return rk_stirrup_tight_form(h.context, "A8@200(2)", 9, g_buffer, 256, &g_size);
     }},
    {"rk_elevation_key", "c",
     [](const Handles& h) {
         return rk_elevation_key(h.context, "", 0, '7', g_buffer, sizeof g_buffer, &g_size);
     }},
    {"rk_list_create", "c",
     [](const Handles& h) {
         rk_list made = nullptr;
         return rk_list_create(h.context, &made);
     }},
    {"rk_list_clear", "l", [](const Handles& h) { return rk_list_clear(h.list); }},
    {"rk_list_add", "l", [](const Handles& h) { return rk_list_add(h.list, "2B22", 4); }},
    {"rk_list_add_texts", "l", [](const Handles& h) { return rk_list_add_texts(h.list, FourFields, 4); }},
    {"rk_list_add_block", "l", [](const Handles& h) { return rk_list_add_block(h.list, "a\0b", 4); }},
    {"rk_list_add_numbers", "l",
     [](const Handles& h) { return rk_list_add_numbers(h.list, &OneNumber, 1); }},
    {"rk_list_set", "l", [](const Handles& h) { return rk_list_set(h.list, 0, "2B22", 4); }},
    {"rk_list_remove", "l", [](const Handles& h) { return rk_list_remove(h.list, 0, 0); }},
    {"rk_list_count", "l", [](const Handles& h) { return rk_list_count(h.list, &g_size); }},
    {"rk_list_text", "l", [](const Handles& h) { return rk_list_text(h.list, 0, &g_pointer, &g_size); }},
    {"rk_list_texts", "l",
     [](const Handles& h) {
         rk_text text{};
         return rk_list_texts(h.list, 0, 1, &text);
     }},
    {"rk_list_block", "l", [](const Handles& h) { return rk_list_block(h.list, &g_pointer, &g_size); }},
    {"rk_list_numbers", "l",
     [](const Handles& h) {
         const std::uint32_t* numbers = nullptr;
         return rk_list_numbers(h.list, &numbers, &g_size);
     }},
    {"rk_bar_table_find", "cl",
     [](const Handles& h) {
         return rk_bar_table_find(h.context, RK_TOTAL_ON_THROUGH, 300, 1000, "2B20", 4, h.list, &g_number);
     }},
    {"rk_stirrup_table_find", "cl",
     [](const Handles& h) { return rk_stirrup_table_find(h.context, 300, 30, 2, h.list); }},
    {"rk_ranker_create", "c",
     [](const Handles& h) {
         rk_ranker made = nullptr;
         return rk_ranker_create(h.context, RK_SECTION, &made);
     }},
    {"rk_ranker_set_project_kind", "r",
     [](const Handles& h) { return rk_ranker_set_project_kind(h.ranker, 2); }},
    {"rk_ranker_set_bars", "r",
     [](const Handles& h) { return rk_ranker_set_bars(h.ranker, 1, 1, "1", 1); }},
    {"rk_ranker_run", "rl", [](const Handles& h) { return rk_ranker_run(h.ranker, nullptr, h.list); }},
    {"rk_ranker_add_table_rows", "rl",
     [](const Handles& h) { return rk_ranker_add_table_rows(h.ranker, h.list); }},
    {"rk_ranker_focus", "r", [](const Handles& h) { return rk_ranker_focus(h.ranker, &g_number); }},
    {"rk_panel_create", "c",
     [](const Handles& h) {
         const rk_panel_options options = {sizeof options, RK_NAME_PANEL, RK_TO_PARENT, 0};
         rk_panel made = nullptr;
         return rk_panel_create(h.context, &options, &made);
     }},
    {"rk_panel_set_text", "p", [](const Handles& h) { return rk_panel_set_text(h.panel, "A8@200(2)", 9); }},
    {"rk_panel_show", "p", [](const Handles& h) { return rk_panel_show(h.panel, 10, 10); }},
    {"rk_panel_event", "p", Press},
    {"rk_panel_click", "p", [](const Handles& h) { return rk_panel_click(h.panel, 1356, 0, RK_CLICK); }},
    {"rk_panel_edit", "p", [](const Handles& h) { return rk_panel_edit(h.panel, 1653, "10", 2); }},
    {"rk_panel_get_state", "p",
     [](const Handles& h) { return Into<rk_panel_state>(rk_panel_get_state, h.panel); }},
    {"rk_panel_result", "p",
     [](const Handles& h) { return rk_panel_result(h.panel, 0, g_buffer, sizeof g_buffer, &g_size); }},
    {"rk_panel_control_at", "p",
     [](const Handles& h) { return Into<rk_control>(rk_panel_control_at, h.panel, 0); }},
    {"rk_panel_control", "p",
     [](const Handles& h) { return Into<rk_control>(rk_panel_control, h.panel, 1356); }},
    {"rk_panel_rows", "pl", [](const Handles& h) { return rk_panel_rows(h.panel, 1356, h.list); }},
    {"rk_panel_row_place", "p",
     [](const Handles& h) {
         rk_rect place{};
         return rk_panel_row_place(h.panel, 1356, 0, &place);
     }},
    {"rk_panel_hide", "p", [](const Handles& h) { return rk_panel_hide(h.panel); }},
    {"rk_panel_destroy", "p", [](const Handles& h) { return rk_panel_destroy(h.panel); }},
    {"rk_ranker_destroy", "r", [](const Handles& h) { return rk_ranker_destroy(h.ranker); }},
    {"rk_list_destroy", "l", [](const Handles& h) { return rk_list_destroy(h.list); }},
    {"rk_context_destroy", "c", [](const Handles& h) { return rk_context_destroy(h.context); }},
};

// Any handle in the place of any other one.
template <class To, class From>
To AsHandle(From handle)
{
    return reinterpret_cast<To>(handle);
}

void Put(Handles& handles, char which, void* handle)
{
    switch (which) {
    case 'c': handles.context = AsHandle<rk_context>(handle); break;
    case 'l': handles.list = AsHandle<rk_list>(handle); break;
    case 'r': handles.ranker = AsHandle<rk_ranker>(handle); break;
    default: handles.panel = AsHandle<rk_panel>(handle); break;
    }
}

Handles Made(const CHost& host)
{
    return {host.m_context, host.NewList({"2B22"}), host.NewRanker(RK_BARS),
            host.NewPanel(RK_STIRRUP_PANEL)};
}

// Null, one of each other kind, one destroyed, and numbers that never were a handle.
std::vector<void*> WrongFor(char which, const Handles& own, const Handles& destroyed)
{
    int here = 0;
    std::vector<void*> wrong = {nullptr, &here, AsHandle<void*>(~std::uintptr_t{0})};
    const std::pair<char, std::pair<void*, void*>> kinds[] = {{'c', {own.context, destroyed.context}},
                                                              {'l', {own.list, destroyed.list}},
                                                              {'r', {own.ranker, destroyed.ranker}},
                                                              {'p', {own.panel, destroyed.panel}}};
    for (const auto& [kind, handles] : kinds) {
        wrong.push_back(kind == which ? handles.second : handles.first);
    }
    return wrong;
}

TEST(Mistakes, AWrongHandleIsToldAndNothingElseHappens)
{
    Handles destroyed{};
    {
        const CHost gone;
        destroyed = Made(gone);
    }
    const CHost host;
    const Handles right = Made(host);
    for (const Row& row : Calls) {
        for (const char* which = row.uses; *which != '\0'; ++which) {
            for (void* const handle : WrongFor(*which, right, destroyed)) {
                Handles wrong = right;
                Put(wrong, *which, handle);
                EXPECT_EQ(RK_BAD_HANDLE, row.call(wrong)) << row.name << ", " << *which << " " << handle;
                EXPECT_STRNE("", rk_last_error());
            }
        }
    }
    ASSERT_EQ(RK_OK, rk_panel_show(right.panel, 0, 0));
    for (const Row& row : Calls) {
        EXPECT_EQ(RK_OK, row.call(right)) << row.name << ": " << rk_last_error();
    }
}

// Made with one object of each kind.
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
     [](const Handles& h) { return Into<rk_measures>(rk_text_measure, h.context, RK_BAR_PIECE, "", 0); }},
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

// A name that the header declares and no table above calls would be a function that nobody checks.
TEST(Mistakes, AreTriedOnEveryFunction)
{
    std::ifstream in(SOURCE_FOLDER "/c/rankermodule.h");
    std::stringstream header;
    header << in.rdbuf();
    std::ifstream source(__FILE__);
    std::stringstream tables;
    tables << source.rdbuf();
    const std::string text = header.str();
    const std::regex declared("RK_CALL (rk_[a-z0-9_]+)\\(");
    int count = 0;
    for (std::sregex_iterator at(text.begin(), text.end(), declared), end; at != end; ++at, ++count) {
        const std::string name = (*at)[1];
        const bool bCannotFail = name == "rk_last_error" || name == "rk_version";
        EXPECT_TRUE(bCannotFail || tables.str().find(name + "(") != std::string::npos ||
                    tables.str().find(name + ",") != std::string::npos)
            << name;
    }
    EXPECT_GT(count, 55);
}

// What is told stays told until the next mistake, in each thread by itself.
TEST(Mistakes, AreRememberedUntilTheNext)
{
    const CHost host;
    const rk_list list = host.NewList();
    EXPECT_EQ(RK_BAD_INDEX, rk_list_text(list, 3, &g_pointer, &g_size));
    const std::string told = rk_last_error();
    EXPECT_EQ(RK_OK, rk_list_add(list, "2B22", 4));
    EXPECT_EQ(told, rk_last_error());
    EXPECT_EQ(RK_BAD_HANDLE, rk_list_add(nullptr, "2B22", 4));
    EXPECT_NE(told, rk_last_error());
}

}  // namespace
