// Data exchange between a dialog's fields and its controls.
#pragma once

#include "platform/windows/CWnd.h"

// Which way one run of DoDataExchange goes.
class CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
        : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd)
    {
    }

    BOOL m_bSaveAndValidate;  // TRUE: from the controls into the fields
    CWnd* m_pDlgWnd;
};

// Reads a control's text or writes it. A box that shows the text already is left alone, so that its
// caret stays. An id without a control changes nothing.
PLATFORM_API void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);

// Attaches the object to the control, once; a control that another object is attached to stays
// with that one.
PLATFORM_API void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
