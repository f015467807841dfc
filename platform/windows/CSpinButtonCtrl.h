// CSpinButtonCtrl: the pair of arrows beside an edit box.
#pragma once

#include "platform/windows/CWnd.h"

class PLATFORM_API CSpinButtonCtrl : public CWnd {
    DECLARE_MESSAGE_MAP()
};
