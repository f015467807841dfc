// CWinApp: the application object.
#pragma once

#include "platform/text/Export.h"

// The first one that is made is the application object until it goes. The windows do not belong to
// it: they work without one.
class PLATFORM_API CWinApp {
public:
    CWinApp();
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;
    virtual ~CWinApp();
};

// Null when there is none. The module makes one when it is loaded.
[[nodiscard]] PLATFORM_API CWinApp* AfxGetApp();
