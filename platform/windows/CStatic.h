// CStatic: a label, which takes no input.
#pragma once

#include "platform/windows/CWnd.h"

class PLATFORM_API CStatic : public CWnd {
    DECLARE_MESSAGE_MAP()
};
