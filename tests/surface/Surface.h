// What a host that was compiled against the module relies on: exact types of members, their order, and the
// order of virtual operations.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <type_traits>

#include "RankerModule.h"

// The classes are laid out plainly, which is all that offsetof asks of these compilers.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"

namespace Surface {

// Each of these members or functions is of exactly this type; a member of a base class is not.
template <class Type, auto... Members>
constexpr bool All = (std::is_same_v<std::remove_const_t<decltype(Members)>, Type> && ...);

constexpr bool InOrder(std::initializer_list<std::size_t> offsets)
{
    for (const std::size_t* next = offsets.begin() + 1; next < offsets.end(); ++next) {
        if (next[-1] >= *next) {
            return false;
        }
    }
    return true;
}

// The place of a virtual operation among those of its class, the destructor being number 1. It has two
// entries in the table, and a pointer to a virtual member holds its entry's distance from the start plus 1.
template <class Member>
std::size_t SlotOf(Member member)
{
    std::size_t pointer = 0;
    std::memcpy(&pointer, &member, sizeof pointer);
    return pointer % 2 == 0 ? 0 : (pointer - 1) / sizeof(void*);
}

}  // namespace Surface
