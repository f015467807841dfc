// CDialog: a pop-up window made from a template.
#pragma once

#include "platform/windows/CWnd.h"
#include "platform/windows/DialogTemplate.h"

class PLATFORM_API CDialog : public CWnd {
public:
    // Keeps the template, which must outlive the object, and makes no window. The parent given
    // here is taken for the signature that Windows developers know: Create names the window's.
    explicit CDialog(const DialogTemplate& shape, CWnd* pParent = nullptr);

    // Makes the pop-up and its controls, hidden, its corner on the corner of the parent's client
    // area, and runs OnInitDialog. FALSE, with nothing changed, for an id that is not the
    // template's and for an object that has a window already. A parent without a window counts as
    // none.
    BOOL Create(UINT nIDTemplate, CWnd* pParentWnd = nullptr);

    // Moves the focus on Tab, with Shift backwards, and answers TRUE for it. Nothing else, neither
    // on Enter nor on Esc.
    BOOL PreTranslateMessage(MSG* pMsg) override;

    // Run once a Create, when all controls exist: binds and writes them by UpdateData(FALSE).
    virtual BOOL OnInitDialog();

private:
    const DialogTemplate* m_pTemplate;

    DECLARE_MESSAGE_MAP()
};
