// CEdit: one line of text that the user can type into.
#pragma once

#include "platform/windows/CWnd.h"

class PLATFORM_API CEdit : public CWnd {
    DECLARE_MESSAGE_MAP()
};
