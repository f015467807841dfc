// The application object, the display and the message box.
#include "platform/windows/CWinApp.h"

#include <utility>

#include "platform/windows/MessageBox.h"
#include "platform/windows/private/WindowLayer.h"

CWinApp::CWinApp()
{
    CWinApp*& application = WindowLayer::State().application;
    if (application == nullptr) {
        application = this;
    }
}

CWinApp::~CWinApp()
{
    CWinApp*& application = WindowLayer::State().application;
    if (application == this) {
        application = nullptr;
    }
}

CWinApp* AfxGetApp() { return WindowLayer::State().application; }

void SetDisplay(Display* pDisplay)
{
    WindowLayer::State().display = pDisplay;
    for (const HWND window : AllWindows()) {
        WindowLayer::TellCreated(window);
    }
}

Display* GetDisplay() { return WindowLayer::State().display; }

int AfxMessageBox(const CString& strText, UINT /*nType*/)
{
    const LayerState& state = WindowLayer::State();
    if (state.display != nullptr) {
        return state.display->ShowMessageBox(strText);
    }
    return state.messageBox != nullptr ? state.messageBox(strText) : IDOK;
}

void SetMessageBoxFunc(MessageBoxFunc func) { ExchangeMessageBoxFunc(func); }

MessageBoxFunc ExchangeMessageBoxFunc(MessageBoxFunc func)
{
    return std::exchange(WindowLayer::State().messageBox, func);
}
