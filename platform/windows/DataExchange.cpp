// Field by field between a dialog and its controls.
#include "platform/windows/DataExchange.h"

#include "platform/windows/private/WindowLayer.h"

namespace {

Window* ControlOf(const CDataExchange* pDX, int nIDC)
{
    return WindowLayer::ChildWithId(pDX->m_pDlgWnd->m_hWnd, nIDC);
}

}  // namespace

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    Window* const control = ControlOf(pDX, nIDC);
    if (control == nullptr) {
        return;
    }
    if (pDX->m_bSaveAndValidate) {
        value = control->text;
    } else if (control->text != value) {
        WindowLayer::PutText(*control, value);
    }
}

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    Window* const control = ControlOf(pDX, nIDC);
    if (control != nullptr && control->attached == nullptr && rControl.m_hWnd == nullptr) {
        control->attached = &rControl;
        rControl.m_hWnd = control->handle;
    }
}
