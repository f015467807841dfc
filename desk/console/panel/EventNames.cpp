// The names that the event list prints.
#include "desk/console/panel/EventNames.h"

#include <algorithm>

namespace Desk::Panels {

namespace {

struct Named {
    UINT number;
    const char* name;
};

constexpr Named Messages[] = {
    {WM_KEYDOWN, "WM_KEYDOWN"},
    {WM_KEYUP, "WM_KEYUP"},
    {WM_CHAR, "WM_CHAR"},
    {WM_LBUTTONDOWN, "WM_LBUTTONDOWN"},
    {WM_LBUTTONUP, "WM_LBUTTONUP"},
    {WM_LBUTTONDBLCLK, "WM_LBUTTONDBLCLK"},
    {WM_RBUTTONDOWN, "WM_RBUTTONDOWN"},
    {WM_RBUTTONUP, "WM_RBUTTONUP"},
    {WM_MOUSEWHEEL, "WM_MOUSEWHEEL"},
};

constexpr Named Notices[] = {
    {BN_CLICKED, "BN_CLICKED"}, {LBN_SELCHANGE, "LBN_SELCHANGE"}, {EN_CHANGE, "EN_CHANGE"}};

template <std::size_t Count>
std::string Find(const Named (&table)[Count], UINT number)
{
    const Named* const row = std::find_if(std::begin(table), std::end(table),
                                          [=](const Named& one) { return one.number == number; });
    return row != std::end(table) ? row->name : std::to_string(number);
}

std::string KeyName(WPARAM key)
{
    if (key == VK_SHIFT) {
        return "shift";
    }
    const NamedKey* const row =
        std::find_if(std::begin(Keys), std::end(Keys), [=](const NamedKey& one) { return one.key == key; });
    return row != std::end(Keys) ? row->name : "key " + std::to_string(key);
}

std::string CharName(WPARAM byte)
{
    constexpr const char* Digits = "0123456789ABCDEF";
    if (byte > ' ' && byte < 0x7F) {
        return std::string("'") + static_cast<char>(byte) + "'";
    }
    return byte < 0x7F ? KeyName(byte) : std::string("byte ") + Digits[byte / 16 % 16] + Digits[byte % 16];
}

}  // namespace

std::string MessageName(UINT message) { return Find(Messages, message); }

std::string NoticeName(UINT code) { return Find(Notices, code); }

std::string DetailOf(const MSG& event)
{
    switch (event.message) {
    case WM_CHAR: return CharName(event.wParam);
    case WM_KEYDOWN:
    case WM_KEYUP: return KeyName(event.wParam);
    default:
        return "at " + std::to_string(GET_X_LPARAM(event.lParam)) + "," +
               std::to_string(GET_Y_LPARAM(event.lParam));
    }
}

}  // namespace Desk::Panels
