// Reads and writes of the item's fields, and the defaults of what derived items override.
#include "griditem/PropertyGridItem.h"

CPropertyGridItem::CPropertyGridItem() = default;
CPropertyGridItem::~CPropertyGridItem() = default;

void CPropertyGridItem::OnAddChildItem() {}
BOOL CPropertyGridItem::OnDrawItemValue(CDC* /*pDC*/, CRect /*rcValue*/) { return FALSE; }

void CPropertyGridItem::SetValue(CString strValue)
{
    m_strValue = strValue;
    OnValueChanged();
}

void CPropertyGridItem::OnValueChanged() {}
void CPropertyGridItem::OnReadOnlyChanged() {}

int CPropertyGridItem::GetIndex() const { return m_nIndex; }

UINT CPropertyGridItem::GetID() const { return m_nID; }
void CPropertyGridItem::SetID(UINT nID) { m_nID = nID; }

UINT CPropertyGridItem::GetFlag() const { return m_nFlags; }
UINT CPropertyGridItem::GetFlags() const { return m_nFlags; }
void CPropertyGridItem::SetFlags(UINT nFlags) { m_nFlags = nFlags; }

BOOL CPropertyGridItem::GetReadOnly() const { return m_bReadOnly; }

void CPropertyGridItem::SetReadOnly(BOOL bReadOnly)
{
    m_bReadOnly = bReadOnly;
    OnReadOnlyChanged();
}

BOOL CPropertyGridItem::IsVisible() const { return m_bVisible; }
BOOL CPropertyGridItem::IsCategory() const { return m_bCategory; }
BOOL CPropertyGridItem::IsExpanded() const { return m_bExpanded; }

BOOL CPropertyGridItem::GetListShowFlag() const { return m_bListShow; }
void CPropertyGridItem::SetListShowFlag(BOOL bShow) { m_bListShow = bShow; }
int CPropertyGridItem::GetListExpandFlag() const { return m_nListExpand; }

CString CPropertyGridItem::GetValue() const { return m_strValue; }
CString CPropertyGridItem::GetCaption() const { return m_strCaption; }
void CPropertyGridItem::SetCaption(CString strCaption) { m_strCaption = strCaption; }
CString CPropertyGridItem::GetDescription() const { return m_strDescription; }
void CPropertyGridItem::SetDescription(CString strDescription) { m_strDescription = strDescription; }

CPropertyGridItem* CPropertyGridItem::GetParentItem() const { return m_pParent; }
CWnd* CPropertyGridItem::GetGrid() const { return m_pGrid; }

void CPropertyGridItem::AddChildItem(CPropertyGridItem* pItem)
{
    if (pItem == nullptr) {
        return;
    }
    pItem->m_pParent = this;
    pItem->m_nIndex = m_children.GetCount();
    m_children.AddTail(pItem);
    OnAddChildItem();
}

POSITION CPropertyGridItem::GetFirstChild() const { return m_children.GetHeadPosition(); }
CPropertyGridItem* CPropertyGridItem::GetNextChild(POSITION& pos) const { return m_children.GetNext(pos); }
BOOL CPropertyGridItem::HasChilds() const { return m_children.IsEmpty() ? FALSE : TRUE; }

CItemConstraints* CPropertyGridItem::GetConstraints() { return &m_constraints; }

void CPropertyGridItem::SetItemExpandObjec(void (*pfnExpand)(CPropertyGridItem*, long, long))
{
    m_pfnExpand = pfnExpand;
}

void* CPropertyGridItem::GetHWnd() const { return m_hWnd; }
void CPropertyGridItem::SetHWnd(void* hWnd) { m_hWnd = hWnd; }
