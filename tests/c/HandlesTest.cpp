// Every function with every wrong handle, and what rk_last_error tells.
#include <fstream>
#include <regex>
#include <sstream>

#include "tests/c/Handles.h"

namespace {

struct Row {
    const char* name;
    const char* uses;  // the handles that it takes: c, l, r, p
    rk_status (*call)(const Handles& h);
};

rk_status Press(const Handles& h)
{
    auto event = Sized<rk_event>();
    event.message = RK_LEFT_DOWN;
    return rk_panel_event(h.panel, &event, &g_number);
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
     [](const Handles& h) {
         return Into<rk_measures>(rk_text_measure, h.context, RK_BARS, "2B22", std::size_t{4});
     }},
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

void Put(Handles& handles, char which, void* handle)
{
    switch (which) {
    case 'c': handles.context = AsHandle<rk_context>(handle); break;
    case 'l': handles.list = AsHandle<rk_list>(handle); break;
    case 'r': handles.ranker = AsHandle<rk_ranker>(handle); break;
    default: handles.panel = AsHandle<rk_panel>(handle); break;
    }
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

TEST(Handles, AWrongOneIsToldAndNothingElseHappens)
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

// A name that the header declares and no table calls would be a function that nobody checks.
TEST(Handles, AreTriedOnEveryFunction)
{
    std::ifstream in(SOURCE_FOLDER "/c/rankermodule.h");
    std::stringstream header;
    header << in.rdbuf();
    std::stringstream tables;
    for (const char* const file : {"HandlesTest.cpp", "MistakesTest.cpp"}) {
        std::ifstream source(std::string(SOURCE_FOLDER "/tests/c/") + file);
        tables << source.rdbuf();
    }
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
TEST(Handles, MistakesAreRememberedUntilTheNext)
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
