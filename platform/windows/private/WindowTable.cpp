// Entering, finding and taking out windows.
#include "platform/windows/private/WindowTable.h"

#include <utility>

Window* WindowTable::Find(HWND hWnd) const
{
    const auto found = m_windows.find(hWnd);
    return found == m_windows.end() ? nullptr : found->second.get();
}

Window& WindowTable::Add(WindowKind kind, HWND hParent)
{
    auto owner = std::make_unique<Window>();
    Window& window = *owner;
    window.handle = reinterpret_cast<HWND>(++m_lastHandle);  // NOLINT: a number, never followed
    window.kind = kind;
    window.parent = hParent;
    if (Window* const parent = Find(hParent)) {
        (window.IsControl() ? parent->children : parent->popUps).push_back(window.handle);
    }
    if (!window.IsControl()) {
        m_order.push_back(window.handle);
    }
    m_windows.emplace(window.handle, std::move(owner));
    return window;
}

std::unique_ptr<Window> WindowTable::Take(HWND hWnd)
{
    const auto found = m_windows.find(hWnd);
    if (found == m_windows.end()) {
        return nullptr;
    }
    std::unique_ptr<Window> window = std::move(found->second);
    m_windows.erase(found);
    std::erase(m_order, hWnd);
    if (Window* const parent = Find(window->parent)) {
        std::erase(parent->children, hWnd);
        std::erase(parent->popUps, hWnd);
    }
    return window;
}

void WindowTable::Raise(HWND hWnd)
{
    std::erase(m_order, hWnd);
    m_order.push_back(hWnd);
    for (const HWND popUp : Find(hWnd)->popUps) {
        Raise(popUp);
    }
}
