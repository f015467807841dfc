// Making a pop-up from its template, and Tab in it.
#include "platform/windows/CDialog.h"

#include "platform/windows/private/WindowLayer.h"

namespace {

using namespace WindowLayer;

WindowKind KindOf(ControlKind kind)
{
    switch (kind) {
    case ControlKind::EditBox: return WindowKind::EditBox;
    case ControlKind::ListBox: return WindowKind::ListBox;
    case ControlKind::Button: return WindowKind::Button;
    case ControlKind::Label: break;
    }
    return WindowKind::Label;
}

CRect InPixels(const DialogRect& place)
{
    const int left = DialogUnitsAcross(place.x);
    const int top = DialogUnitsDown(place.y);
    return {left, top, left + DialogUnitsAcross(place.width), top + DialogUnitsDown(place.height)};
}

void AddControl(const ControlTemplate& shape, HWND hPopUp)
{
    Window& control = State().windows.Add(KindOf(shape.kind), hPopUp);
    control.id = shape.id;
    control.style = shape.style;
    control.place = InPixels(shape.place);
    control.text = shape.text;
    control.caret = control.text.GetLength();
    control.visible = true;
    control.enabled = !Has(shape.style, ControlStyle::Disabled);
}

}  // namespace

BEGIN_MESSAGE_MAP(CDialog, CWnd)
END_MESSAGE_MAP()

CDialog::CDialog(const DialogTemplate& shape, CWnd* /*pParent*/) : m_pTemplate(&shape) {}

BOOL CDialog::Create(UINT nIDTemplate, CWnd* pParentWnd)
{
    if (m_hWnd != nullptr || nIDTemplate != m_pTemplate->id) {
        return FALSE;
    }
    DropRetired();
    const Window* const parent = pParentWnd != nullptr ? Find(pParentWnd->m_hWnd) : nullptr;
    const CPoint corner = parent != nullptr ? ClientOrigin(*parent) : CPoint();
    Window& popUp = State().windows.Add(WindowKind::PopUp, parent != nullptr ? parent->handle : nullptr);
    const HWND handle = popUp.handle;
    popUp.shape = m_pTemplate;
    popUp.place = PlaceOf(corner.x, corner.y, DialogUnitsAcross(m_pTemplate->width),
                          DialogUnitsDown(m_pTemplate->height));
    popUp.attached = this;
    m_hWnd = handle;
    for (const ControlTemplate& control : m_pTemplate->controls) {
        AddControl(control, handle);
    }
    const InCall inCall;
    const std::vector<HWND> children = popUp.children;
    TellCreated(handle);
    for (const HWND child : children) {
        TellCreated(child);
    }
    OnInitDialog();
    return ::IsWindow(handle);
}

BOOL CDialog::PreTranslateMessage(MSG* pMsg)
{
    if (pMsg->message != WM_KEYDOWN || pMsg->wParam != VK_TAB) {
        return FALSE;
    }
    const LayerState& state = State();
    const Window* const focused = Find(state.focus);
    const bool bInside = focused != nullptr && focused->parent == m_hWnd;
    StepFocus(m_hWnd, bInside ? state.focus : pMsg->hwnd, state.shiftDown);
    return TRUE;
}

BOOL CDialog::OnInitDialog()
{
    UpdateData(FALSE);
    return TRUE;
}
