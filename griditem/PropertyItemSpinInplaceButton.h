// CPropertyItemSpinInplaceButton: the spin button that a grid puts beside an item's value.
#pragma once

#include "griditem/Export.h"
#include "platform/windows/CSpinButtonCtrl.h"

class GRIDITEM_API CPropertyItemSpinInplaceButton : public CSpinButtonCtrl {
    DECLARE_MESSAGE_MAP()
};
