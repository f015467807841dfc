// The message box, the one way in which the windows say something to the user.
#pragma once

#include "platform/text/CString.h"
#include "platform/windows/Messages.h"

// Shows a text with an OK button. It goes to the display; without one to the function set below;
// without that it returns at once. Answers what they answered, IDOK otherwise.
PLATFORM_API int AfxMessageBox(const CString& strText, UINT nType = MB_OK);

// Null empties the slot.
using MessageBoxFunc = int (*)(const CString&);
PLATFORM_API void SetMessageBoxFunc(MessageBoxFunc func);
// The same, and answers what the slot held.
PLATFORM_API MessageBoxFunc ExchangeMessageBoxFunc(MessageBoxFunc func);
