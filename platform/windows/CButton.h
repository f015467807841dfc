// CButton: a button with a caption.
#pragma once

#include "platform/windows/CWnd.h"

class PLATFORM_API CButton : public CWnd {
    DECLARE_MESSAGE_MAP()
};
