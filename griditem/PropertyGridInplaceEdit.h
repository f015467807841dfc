// CPropertyGridInplaceEdit: the edit box that a grid puts over an item's value.
#pragma once

#include "griditem/Export.h"
#include "platform/windows/CEdit.h"

class CPropertyGridItem;

class GRIDITEM_API CPropertyGridInplaceEdit : public CEdit {
public:
    explicit CPropertyGridInplaceEdit(CPropertyGridItem* pItem = nullptr);

    // The item that is being edited; null for none.
    [[nodiscard]] CPropertyGridItem* GetItem() const;

private:
    CPropertyGridItem* m_pItem;
};
