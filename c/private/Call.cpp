#include "c/private/Call.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <new>
#include <string_view>

namespace RankerC {

namespace {

// An array, so that keeping a message cannot fail.
thread_local std::array<char, 512> g_message{};

rk_status Keep(rk_status status, std::string_view message) noexcept
{
    std::size_t length = std::min(message.size(), g_message.size() - 1);
    // A cut between characters: messages are UTF-8.
    while (length < message.size() && length > 0 && (message[length] & 0xC0) == 0x80) {
        --length;
    }
    std::memcpy(g_message.data(), message.data(), length);
    g_message[length] = '\0';
    return status;
}

}  // namespace

rk_status StatusOfException() noexcept
{
    try {
        throw;
    } catch (const Refusal& refusal) {
        return Keep(refusal.status, refusal.message);
    } catch (const std::bad_alloc&) {
        return Keep(RK_NO_MEMORY, "no memory is left");
    } catch (const std::exception& error) {
        return Keep(RK_FAILED, error.what());
    } catch (...) {
        return Keep(RK_FAILED, "something was thrown that is no error of this library");
    }
}

const char* LastError() noexcept { return g_message.data(); }

std::recursive_mutex& CallLock()
{
    static std::recursive_mutex& lock = *new std::recursive_mutex;
    return lock;
}

void RefuseValue(const char* name, long long value)
{
    throw Refusal{RK_BAD_ARGUMENT, std::string(name) + " cannot be " + std::to_string(value)};
}

int NeedIndex(const char* name, long long index, long long count)
{
    if (index < 0 || index >= count) {
        throw Refusal{RK_BAD_INDEX, std::string(name) + " is " + std::to_string(index) +
                                        ", and there are " + std::to_string(count)};
    }
    return static_cast<int>(index);
}

}  // namespace RankerC
