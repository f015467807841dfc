// WindowTable: the records of all windows behind their handles.
#pragma once

#include <cstdint>
#include <unordered_map>

#include "platform/windows/WindowRecord.h"

// Handles count up and are never given twice, so that the handle of a window that is gone stays
// good for nothing.
class WindowTable {
public:
    // Null for a handle that names no window. A record keeps its address until it is taken out.
    [[nodiscard]] WindowRecord* Find(HWND hWnd) const;

    // A new window, entered with its parent: a control as its last child, a pop-up among its
    // pop-ups. Pop-ups and frames come out above all others.
    WindowRecord& Add(WindowKind kind, HWND hParent);
    // Takes a window out; its children and pop-ups have gone before.
    std::unique_ptr<WindowRecord> Take(HWND hWnd);

    // Puts a pop-up or frame above all others, and its own pop-ups above it.
    void Raise(HWND hWnd);
    // Pop-ups and frames, the lowest first.
    [[nodiscard]] const std::vector<HWND>& Order() const { return m_order; }

private:
    std::unordered_map<HWND, std::unique_ptr<WindowRecord>> m_records;
    std::vector<HWND> m_order;
    std::uintptr_t m_lastHandle = 0;
};
