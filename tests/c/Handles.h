// What the tables of mistakes share: one object of each kind, and places for answers that nobody reads.
#pragma once

#include "tests/c/CHost.h"

// One object of each kind; a test puts a wrong one in the place of a right one.
struct Handles {
    rk_context context;
    rk_list list;
    rk_ranker ranker;
    rk_panel panel;
};

inline constexpr rk_text FourFields[4] = {{"KL", 2}, {"1", 1}, {"2", 1}, {"", 0}};
inline constexpr std::uint32_t OneNumber = 7;
inline char g_buffer[256];
inline std::size_t g_size;
inline std::int32_t g_number;
inline const char* g_pointer;

template <class Struct>
Struct Sized()
{
    Struct made{};
    made.struct_size = sizeof made;
    return made;
}

template <class Struct, class Function, class... Arguments>
rk_status Into(Function function, Arguments... arguments)
{
    auto made = Sized<Struct>();
    return function(arguments..., &made);
}

// Any handle in the place of any other one.
template <class To, class From>
To AsHandle(From handle)
{
    return reinterpret_cast<To>(handle);
}

inline Handles Made(const CHost& host)
{
    return {host.m_context, host.NewList({"2B22"}), host.NewRanker(RK_BARS),
            host.NewPanel(RK_STIRRUP_PANEL)};
}
