// Entering, finding and taking out window records.
#include "platform/windows/private/WindowTable.h"

#include <utility>

WindowRecord* WindowTable::Find(HWND hWnd) const
{
    const auto found = m_records.find(hWnd);
    return found == m_records.end() ? nullptr : found->second.get();
}

WindowRecord& WindowTable::Add(WindowKind kind, HWND hParent)
{
    auto record = std::make_unique<WindowRecord>();
    WindowRecord& window = *record;
    window.handle = reinterpret_cast<HWND>(++m_lastHandle);  // NOLINT: a number, never followed
    window.kind = kind;
    window.parent = hParent;
    if (WindowRecord* const parent = Find(hParent)) {
        (window.IsControl() ? parent->children : parent->popUps).push_back(window.handle);
    }
    if (!window.IsControl()) {
        m_order.push_back(window.handle);
    }
    m_records.emplace(window.handle, std::move(record));
    return window;
}

std::unique_ptr<WindowRecord> WindowTable::Take(HWND hWnd)
{
    const auto found = m_records.find(hWnd);
    if (found == m_records.end()) {
        return nullptr;
    }
    std::unique_ptr<WindowRecord> record = std::move(found->second);
    m_records.erase(found);
    std::erase(m_order, hWnd);
    if (WindowRecord* const parent = Find(record->parent)) {
        std::erase(parent->children, hWnd);
        std::erase(parent->popUps, hWnd);
    }
    return record;
}

void WindowTable::Raise(HWND hWnd)
{
    std::erase(m_order, hWnd);
    m_order.push_back(hWnd);
    for (const HWND popUp : Find(hWnd)->popUps) {
        Raise(popUp);
    }
}
