// How a message reaches a window: its message map, then what its kind does with it.
#include <algorithm>
#include <cstring>

#include "platform/windows/private/WindowLayer.h"

namespace WindowLayer {

namespace {

const AFX_MSGMAP_ENTRY* FindEntry(const CWnd& object, UINT message, WPARAM wParam)
{
    const bool bCommand = message == WM_COMMAND;
    const UINT code = bCommand ? HIWORD(wParam) : 0;
    const int id = bCommand ? static_cast<int>(LOWORD(wParam)) : 0;
    const AFX_MSGMAP* map = object.GetMessageMap();
    while (map != nullptr) {
        for (const AFX_MSGMAP_ENTRY* entry = map->lpEntries; entry->pfnCall != nullptr; ++entry) {
            if (entry->nMessage == message && entry->nCode == code && entry->nID == id) {
                return entry;
            }
        }
        map = map->pfnGetBaseMap != nullptr ? map->pfnGetBaseMap() : nullptr;
    }
    return nullptr;
}

// Copies as much of the text as the buffer holds with a closing zero; answers the bytes copied.
LRESULT CopyText(const CString& strText, std::size_t size, char* buffer)
{
    if (size == 0 || buffer == nullptr) {
        return 0;
    }
    const std::size_t length = std::min(size - 1, strText.View().size());
    std::memcpy(buffer, strText.View().data(), length);
    buffer[length] = '\0';
    return static_cast<LRESULT>(length);
}

std::optional<LRESULT> TextMessage(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_SETTEXT:
        PutText(window, reinterpret_cast<const char*>(lParam));  // NOLINT: as the message says
        return TRUE;
    case WM_GETTEXT: return CopyText(window.text, wParam, reinterpret_cast<char*>(lParam));  // NOLINT
    case WM_GETTEXTLENGTH: return window.text.GetLength();
    default: return std::nullopt;
    }
}

std::optional<LRESULT> KindDefault(Window& window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (const std::optional<LRESULT> done = TextMessage(window, message, wParam, lParam)) {
        return done;
    }
    switch (window.kind) {
    case WindowKind::ListBox: return ListBoxDefault(window.handle, message, wParam, lParam);
    case WindowKind::EditBox: return EditBoxDefault(window.handle, message, wParam, lParam);
    case WindowKind::Button: return ButtonDefault(window.handle, message, wParam, lParam);
    default: return std::nullopt;
    }
}

}  // namespace

LRESULT Call(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    const Window* const window = Find(hWnd);
    if (window == nullptr || (message == WM_COMMAND && window->notificationLock > 0)) {
        return 0;
    }
    const InCall inCall;
    if (CWnd* const object = window->attached) {
        if (const AFX_MSGMAP_ENTRY* const entry = FindEntry(*object, message, wParam)) {
            return entry->pfnCall(*object, wParam, lParam);
        }
    }
    return CallDefault(hWnd, message, wParam, lParam);
}

LRESULT CallDefault(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    Window* const window = Find(hWnd);
    if (window == nullptr) {
        return 0;
    }
    const InCall inCall;
    const bool bKey = message == WM_KEYDOWN || message == WM_CHAR;
    const HWND next = bKey && window->IsControl() ? window->parent : nullptr;
    if (const std::optional<LRESULT> done = KindDefault(*window, message, wParam, lParam)) {
        return *done;
    }
    return next != nullptr ? Call(next, message, wParam, lParam) : 0;
}

void NotifyParent(HWND hControl, UINT nCode)
{
    if (const Window* const control = Find(hControl)) {
        Call(control->parent, WM_COMMAND, MAKEWPARAM(control->id, static_cast<int>(nCode)),
             reinterpret_cast<LPARAM>(hControl));  // NOLINT: as the message says
    }
}

}  // namespace WindowLayer

BOOL IsWindow(HWND hWnd) { return WindowLayer::Find(hWnd) != nullptr ? TRUE : FALSE; }

LRESULT SendMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    return WindowLayer::Call(hWnd, message, wParam, lParam);
}
