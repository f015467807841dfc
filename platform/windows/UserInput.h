// The three doors by which what the user does to a control gets in.
#pragma once

#include "platform/text/CString.h"
#include "platform/windows/WinTypes.h"

// Each door sets the state and notifies the parent once; the window may be gone when it returns.
// Default handling of mouse and key events goes through them, and so does a toolkit's own control.
// They answer FALSE and change nothing for a window of another kind, for a disabled one and for
// what the control refuses.

// A row was picked; it notifies also when it was selected already.
PLATFORM_API BOOL UserPicksRow(HWND hList, int nRow);

// The text was edited into a new one; the caret stands at a byte position, -1 for behind the text.
// The same text moves the caret and notifies nobody. A digits-only box refuses a change that brings
// in anything else.
PLATFORM_API BOOL UserEditsText(HWND hEdit, const CString& strText, int nCaret = -1);

PLATFORM_API BOOL UserClicksButton(HWND hButton);
