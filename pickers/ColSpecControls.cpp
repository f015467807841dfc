#include "pickers/ColSpecControls.h"

BEGIN_MESSAGE_MAP(CColSpecEdit, CEdit)
ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

CColSpecEdit::~CColSpecEdit() = default;

// The parent hands a text to its host, which may take the picker away with its controls.
void CColSpecEdit::OnRButtonDown(UINT nFlags, CPoint point)
{
    const HWND box = m_hWnd;
    if (CWnd* const parent = GetParent()) {
        parent->SendMessage(WM_RBUTTONDOWN, 0, 0);
    }
    if (IsWindow(box)) {
        CEdit::OnRButtonDown(nFlags, point);
    }
}

BEGIN_MESSAGE_MAP(CColSpecList, CListBox)
ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

CColSpecList::~CColSpecList() = default;

void CColSpecList::OnRButtonDown(UINT /*nFlags*/, CPoint /*point*/)
{
    CWnd* const parent = GetParent();
    if (parent != nullptr && parent->m_hWnd != nullptr) {
        parent->SendMessage(WM_RBUTTONDOWN, 0, 0);
    }
}
