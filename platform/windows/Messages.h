// MSG and the numbers of messages, keys and notifications that the window layer knows.
#pragma once

#include "platform/windows/WinTypes.h"

// One event. pt is the pointer's position on the screen in pixels; lParam of a mouse event is the
// position in the client area of hwnd, x in the low half and y in the high one. wParam of a key
// event is the key, of WM_CHAR one byte of GBK text; the wheel's turn stands in the high half of
// wParam, 120 a notch, above zero away from the user.
struct MSG {
    HWND hwnd;
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    DWORD time;
    POINT pt;
};

inline constexpr UINT WM_SETTEXT = 0x00C;  // lParam: const char*
inline constexpr UINT WM_GETTEXT = 0x00D;  // wParam: size of the buffer, lParam: char*
inline constexpr UINT WM_GETTEXTLENGTH = 0x00E;
inline constexpr UINT WM_KEYDOWN = 0x100;
inline constexpr UINT WM_KEYUP = 0x101;
inline constexpr UINT WM_CHAR = 0x102;
inline constexpr UINT WM_COMMAND = 0x111;  // wParam: id low, code high; lParam: the control
inline constexpr UINT WM_MOUSEMOVE = 0x200;
inline constexpr UINT WM_LBUTTONDOWN = 0x201;
inline constexpr UINT WM_LBUTTONUP = 0x202;
inline constexpr UINT WM_LBUTTONDBLCLK = 0x203;
inline constexpr UINT WM_RBUTTONDOWN = 0x204;
inline constexpr UINT WM_RBUTTONUP = 0x205;
inline constexpr UINT WM_RBUTTONDBLCLK = 0x206;
inline constexpr UINT WM_MOUSEWHEEL = 0x20A;

inline constexpr UINT MK_LBUTTON = 0x01;
inline constexpr UINT MK_RBUTTON = 0x02;
inline constexpr int WHEEL_DELTA = 120;

inline constexpr UINT VK_BACK = 8;
inline constexpr UINT VK_TAB = 9;
inline constexpr UINT VK_RETURN = 13;
inline constexpr UINT VK_SHIFT = 16;
inline constexpr UINT VK_CONTROL = 17;
inline constexpr UINT VK_ESCAPE = 27;
inline constexpr UINT VK_SPACE = 32;
inline constexpr UINT VK_PRIOR = 33;
inline constexpr UINT VK_NEXT = 34;
inline constexpr UINT VK_END = 35;
inline constexpr UINT VK_HOME = 36;
inline constexpr UINT VK_LEFT = 37;
inline constexpr UINT VK_UP = 38;
inline constexpr UINT VK_RIGHT = 39;
inline constexpr UINT VK_DOWN = 40;
inline constexpr UINT VK_DELETE = 46;
inline constexpr UINT VK_F4 = 115;

// Notifications that a control sends to its parent for what the user did.
inline constexpr UINT BN_CLICKED = 0;
inline constexpr UINT LBN_SELCHANGE = 1;
inline constexpr UINT EN_CHANGE = 0x300;

// List box operations by message; the answers are those of the CListBox calls of the same name.
inline constexpr UINT LB_ADDSTRING = 0x180;     // lParam: const char*
inline constexpr UINT LB_INSERTSTRING = 0x181;  // wParam: row, lParam: const char*
inline constexpr UINT LB_DELETESTRING = 0x182;  // wParam: row
inline constexpr UINT LB_RESETCONTENT = 0x184;
inline constexpr UINT LB_SETCURSEL = 0x186;  // wParam: row or -1
inline constexpr UINT LB_GETCURSEL = 0x188;
inline constexpr UINT LB_GETTEXT = 0x189;     // wParam: row, lParam: char* with room for the row
inline constexpr UINT LB_GETTEXTLEN = 0x18A;  // wParam: row
inline constexpr UINT LB_GETCOUNT = 0x18B;
inline constexpr UINT LB_GETTOPINDEX = 0x18E;
inline constexpr UINT LB_SETCOLUMNWIDTH = 0x195;  // wParam: pixels
inline constexpr UINT LB_SETTOPINDEX = 0x197;     // wParam: row
inline constexpr UINT LB_GETITEMRECT = 0x198;     // wParam: row, lParam: RECT*
inline constexpr int LB_OKAY = 0;
inline constexpr int LB_ERR = -1;

inline constexpr int SW_HIDE = 0;
inline constexpr int SW_SHOW = 5;
inline constexpr UINT GW_HWNDNEXT = 2;
inline constexpr UINT GW_HWNDPREV = 3;
inline constexpr UINT MB_OK = 0;
inline constexpr int IDOK = 1;
inline constexpr int IDC_STATIC = -1;  // id of a label that nobody asks for
