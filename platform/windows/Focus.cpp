// Who has the focus, and where it goes when its window hides.
#include "platform/windows/private/WindowLayer.h"

#include <algorithm>

namespace WindowLayer {

namespace {

bool IsTabStop(HWND hWnd)
{
    const Window* const window = Find(hWnd);
    return window != nullptr && window->visible && window->enabled && window->kind != WindowKind::Label;
}

// The first tab stop from a place among the children on, going round once; null for none.
HWND TabStopFrom(const std::vector<HWND>& children, std::size_t start, bool bBackwards)
{
    const std::size_t count = children.size();
    for (std::size_t i = 0; i < count; ++i) {
        const HWND child = children[(start + (bBackwards ? count - i : i)) % count];
        if (IsTabStop(child)) {
            return child;
        }
    }
    return nullptr;
}

void SetAndTell(HWND hWnd)
{
    LayerState& state = State();
    const HWND before = state.focus;
    if (before == hWnd) {
        return;
    }
    state.focus = hWnd;
    Tell(hWnd != nullptr ? hWnd : before, WindowChange::Focus);
}

}  // namespace

void GiveFocus(HWND hWnd)
{
    const Window* const window = Find(hWnd);
    if (window == nullptr || !TakesInput(*window)) {
        return;
    }
    if (window->IsControl()) {
        HolderOf(hWnd)->lastFocus = hWnd;
    }
    SetAndTell(hWnd);
}

void EnterFocus(HWND hHolder)
{
    const Window* const holder = Find(hHolder);
    if (holder == nullptr) {
        return;
    }
    const HWND first =
        IsTabStop(holder->lastFocus) ? holder->lastFocus : TabStopFrom(holder->children, 0, false);
    GiveFocus(first != nullptr ? first : hHolder);
}

void ReturnFocus(HWND hParent)
{
    const Window* const parent = Find(hParent);
    if (parent == nullptr || !IsShown(*parent) || !TakesInput(*parent)) {
        SetAndTell(nullptr);
        State().shiftDown = false;  // nobody will see it go up
    } else if (parent->IsControl()) {
        GiveFocus(hParent);
    } else {
        EnterFocus(hParent);
    }
}

void LeaveFocus(HWND hWnd)
{
    const HWND focus = State().focus;
    const Window* const window = Find(hWnd);
    const Window* const holder = HolderOf(focus);
    if (window != nullptr && holder != nullptr && (focus == hWnd || holder->handle == hWnd)) {
        ReturnFocus(window->parent);
    }
}

void StepFocus(HWND hHolder, HWND hFrom, bool bBackwards)
{
    const Window* const holder = Find(hHolder);
    if (holder == nullptr || holder->children.empty()) {
        return;
    }
    const std::vector<HWND>& children = holder->children;
    const auto from = std::find(children.begin(), children.end(), hFrom);
    std::size_t start = bBackwards ? children.size() - 1 : 0;
    if (from != children.end()) {
        const auto place = static_cast<std::size_t>(from - children.begin());
        start = (place + (bBackwards ? children.size() - 1 : 1)) % children.size();
    }
    if (const HWND next = TabStopFrom(children, start, bBackwards)) {
        GiveFocus(next);
    }
}

}  // namespace WindowLayer
