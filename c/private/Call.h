// The frame of every function of the interface: one thread at a time, and nothing thrown gets out.
#pragma once

#include <mutex>
#include <string>

#include "c/rankermodule.h"

namespace RankerC {

// Ends a call: its status and what rk_last_error tells.
struct Refusal {
    rk_status status;
    std::string message;
};

// The status of the exception at hand, whose message is kept for this thread.
rk_status StatusOfException() noexcept;
[[nodiscard]] const char* LastError() noexcept;

// Recursive, since callbacks call back. Never destroyed, so that a thread may still call while the process
// ends.
[[nodiscard]] std::recursive_mutex& CallLock();

template <class Body>
rk_status Guarded(Body body) noexcept
{
    try {
        const std::lock_guard lock(CallLock());
        body();
        return RK_OK;
    } catch (...) {
        return StatusOfException();
    }
}

// The names of parameters stand in messages.
template <class Pointer>
void Need(Pointer* pointer, const char* name)
{
    if (pointer == nullptr) {
        throw Refusal{RK_BAD_ARGUMENT, std::string(name) + " is null"};
    }
}
[[noreturn]] void RefuseValue(const char* name, long long value);
// Gives the index as an int; count is below 2^31.
int NeedIndex(const char* name, long long index, long long count);

// A structure of the caller's that is at least as large as that of the first release, which is the only one
// so far. A later member is there only where its struct_size says so.
template <class Struct>
void NeedStruct(const Struct* structure, const char* name)
{
    Need(structure, name);
    if (structure->struct_size < sizeof(Struct)) {
        throw Refusal{RK_BAD_ARGUMENT, std::string(name) + "->struct_size is " +
                                           std::to_string(structure->struct_size) + ", not " +
                                           std::to_string(sizeof(Struct))};
    }
}

// Writes a structure of the library into one of the caller's, whose size stays.
template <class Struct>
void Give(Struct values, Struct* structure)
{
    values.struct_size = structure->struct_size;
    *structure = values;
}

}  // namespace RankerC
