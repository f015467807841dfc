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

struct Field {
    bool hasItsType;
    std::size_t offset;
};

constexpr bool InOrder(std::initializer_list<Field> fields)
{
    bool first = true;
    std::size_t last = 0;
    for (const Field& field : fields) {
        if (!field.hasItsType || (!first && field.offset <= last)) {
            return false;
        }
        first = false;
        last = field.offset;
    }
    return true;
}

template <class Class, class Function, class Member>
constexpr bool IsOwn = std::is_same_v<Member, Function Class::*>;
template <class Class, class Function, class Member>
constexpr bool IsStatic = std::is_same_v<Member, Function*>;

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

// OWN(Class, int(CString), A, B): member functions of the class itself, not of its base, with exactly this
// type; STATIC the same for static ones. FIELDS(Class, int, m_a, bool, m_b): fields with these types, in
// this order. Each goes through its arguments by reading its own expansion over and over.
#define SURFACE_PARENS ()
#define SURFACE_1(...) __VA_ARGS__
#define SURFACE_4(...) SURFACE_1(SURFACE_1(SURFACE_1(SURFACE_1(__VA_ARGS__))))
#define SURFACE_16(...) SURFACE_4(SURFACE_4(SURFACE_4(SURFACE_4(__VA_ARGS__))))
#define SURFACE_ALL(...) SURFACE_16(SURFACE_16(__VA_ARGS__))
#define SURFACE_SAME(Test, Class, Function, Member, ...)                                                   \
    Surface::Test<Class, Function, decltype(&Class::Member)> __VA_OPT__(                                   \
        &&SURFACE_SAME_AGAIN SURFACE_PARENS(Test, Class, Function, __VA_ARGS__))
#define SURFACE_SAME_AGAIN() SURFACE_SAME
#define SURFACE_FIELD(Class, Type, Member, ...)                                                            \
    Surface::Field{std::is_same_v<decltype(Class::Member), Type>, offsetof(Class, Member)} __VA_OPT__(     \
        , SURFACE_FIELD_AGAIN SURFACE_PARENS(Class, __VA_ARGS__))
#define SURFACE_FIELD_AGAIN() SURFACE_FIELD
#define OWN(Class, ...) static_assert(SURFACE_ALL(SURFACE_SAME(IsOwn, Class, __VA_ARGS__)))
#define STATIC(Class, ...) static_assert(SURFACE_ALL(SURFACE_SAME(IsStatic, Class, __VA_ARGS__)))
#define FIELDS(Class, ...) static_assert(Surface::InOrder({SURFACE_ALL(SURFACE_FIELD(Class, __VA_ARGS__))}))
