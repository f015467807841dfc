// The two controls that a grid puts over an item.
#include "griditem/PropertyGridInplaceEdit.h"
#include "griditem/PropertyItemSpinInplaceButton.h"

BEGIN_MESSAGE_MAP(CPropertyItemSpinInplaceButton, CSpinButtonCtrl)
END_MESSAGE_MAP()

CPropertyGridInplaceEdit::CPropertyGridInplaceEdit(CPropertyGridItem* pItem) : m_pItem(pItem) {}

CPropertyGridItem* CPropertyGridInplaceEdit::GetItem() const { return m_pItem; }
