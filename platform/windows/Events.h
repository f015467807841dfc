// How a host feeds mouse and key events to the windows.
#pragma once

#include "platform/windows/CPoint.h"
#include "platform/windows/Messages.h"

// The host's loop, for each event:
//     if (!AfxPreTranslateMessage(&msg)) DispatchMessage(&msg);
// Shift is known from its own key events: a host that may have missed one feeds WM_KEYUP or
// WM_KEYDOWN with VK_SHIFT first.

// Offers the event to its target and then to each parent up to the pop-up or frame that holds it,
// not beyond, until one answers TRUE. FALSE for a target that is no window.
PLATFORM_API BOOL AfxPreTranslateMessage(MSG* pMsg);

// Hands the event to its target: message map first, then the control's default handling. What lands
// on a label or on a disabled control belongs to its parent; a disabled pop-up gets nothing. A key
// that a control has no use for goes on to its parent. Nothing happens to a target that is no window.
PLATFORM_API LRESULT DispatchMessage(const MSG* pMsg);

// The window that a mouse event at a place on the screen belongs to: the topmost shown pop-up or
// frame there, or the shown and enabled control in it; null for none and for a disabled pop-up.
[[nodiscard]] PLATFORM_API HWND WindowFromPoint(CPoint point);
