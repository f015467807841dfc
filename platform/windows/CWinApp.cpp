// The one application object, the display and the message box.
#include "platform/windows/CWinApp.h"

#include "platform/windows/MessageBox.h"
#include "platform/windows/private/AppState.h"
#include "platform/windows/private/WindowLayer.h"

CWinApp::CWinApp() : m_state(std::make_unique<AppState>()) {}
CWinApp::~CWinApp() = default;

CWinApp* AfxGetApp()
{
    static CWinApp* const app = new CWinApp;
    return app;
}

void SetDisplay(Display* pDisplay)
{
    WindowLayer::App().display = pDisplay;
    for (const HWND window : AllWindows()) {
        WindowLayer::TellCreated(window);
    }
}

Display* GetDisplay() { return WindowLayer::App().display; }

int AfxMessageBox(const CString& strText, UINT /*nType*/)
{
    const AppState& app = WindowLayer::App();
    if (app.display != nullptr) {
        return app.display->ShowMessageBox(strText);
    }
    return app.messageBox != nullptr ? app.messageBox(strText) : IDOK;
}

void SetMessageBoxFunc(int (*func)(const CString&)) { WindowLayer::App().messageBox = func; }
