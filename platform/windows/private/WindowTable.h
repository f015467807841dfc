// Window: a window as the layer keeps it; WindowTable: all of them behind their handles.
#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

#include "platform/windows/CWnd.h"
#include "platform/windows/WindowRecord.h"

// The record that a display reads, with what is the layer's own business.
struct Window : WindowRecord {
    std::vector<HWND> popUps;  // made for this window
    HWND lastFocus = nullptr;  // frame and pop-up: the child that had the focus last
    int notificationLock = 0;  // above 0 the window hears nothing of its controls
    int wheelRest = 0;         // list box: turn of the wheel that was not enough for a row yet
    char pendingLead = '\0';   // edit box: first typed byte of a character that waits for its second
    CWnd* attached = nullptr;
    std::unique_ptr<CWnd> own;  // takes its place where no object is attached; made when asked for
};

// Handles count up and are never reused, so that the handle of a window that is gone stays good for
// nothing.
class WindowTable {
public:
    // Null for a handle that names no window. A window keeps its address until it is taken out.
    [[nodiscard]] Window* Find(HWND hWnd) const;

    // A new window, entered with its parent: a control as its last child, a pop-up among its
    // pop-ups. Pop-ups and frames come out above all others.
    Window& Add(WindowKind kind, HWND hParent);
    // Takes a window out; its children and pop-ups have gone before.
    std::unique_ptr<Window> Take(HWND hWnd);

    // Puts a pop-up or frame above all others, and its own pop-ups above it.
    void Raise(HWND hWnd);
    // Pop-ups and frames, the lowest first.
    [[nodiscard]] const std::vector<HWND>& Order() const { return m_order; }

private:
    std::unordered_map<HWND, std::unique_ptr<Window>> m_windows;
    std::vector<HWND> m_order;
    std::uintptr_t m_lastHandle = 0;
};
