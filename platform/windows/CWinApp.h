// CWinApp: the application object, which owns all windows of the process.
#pragma once

#include <memory>

#include "platform/text/Export.h"

struct AppState;

// There is one, made when it is first asked for; it lives until the process ends, so that windows
// of static objects can go at any time.
class PLATFORM_API CWinApp {
public:
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    [[nodiscard]] AppState& State() const { return *m_state; }  // for the layer itself

private:
    friend CWinApp* AfxGetApp();

    CWinApp();
    ~CWinApp();

    std::unique_ptr<AppState> m_state;
};

PLATFORM_API CWinApp* AfxGetApp();
