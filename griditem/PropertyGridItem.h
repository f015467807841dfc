// CPropertyGridItem: one value of a property grid, which panels and pickers set.
#pragma once

#include "griditem/Export.h"
#include "griditem/ItemConstraints.h"
#include "griditem/ListItems.h"
#include "platform/windows/CRect.h"

class CDC;  // a device context; only its address passes through here
class CWnd;

// All fields start as 0, FALSE, null or empty. The item owns neither its children nor its grid.
// Virtual operations keep their order: SetValue is the fourth, OnReadOnlyChanged the sixth.
class GRIDITEM_API CPropertyGridItem {
public:
    CPropertyGridItem();
    CPropertyGridItem(const CPropertyGridItem&) = delete;
    CPropertyGridItem& operator=(const CPropertyGridItem&) = delete;
    virtual ~CPropertyGridItem();

protected:
    // A child item has been added. Does nothing.
    virtual void OnAddChildItem();
    // Asks a derived item to draw its value; TRUE when it did. Draws nothing and answers FALSE.
    virtual BOOL OnDrawItemValue(CDC* pDC, CRect rcValue);

public:
    // Hands the item its new value text. The base keeps it and calls OnValueChanged.
    virtual void SetValue(CString strValue);

protected:
    // The base has kept a value. Does nothing.
    virtual void OnValueChanged();
    // SetReadOnly has written the field. Does nothing.
    virtual void OnReadOnlyChanged();

public:
    [[nodiscard]] int GetIndex() const;

    [[nodiscard]] UINT GetID() const;
    void SetID(UINT nID);

    // The two getters are the same.
    [[nodiscard]] UINT GetFlag() const;
    [[nodiscard]] UINT GetFlags() const;
    void SetFlags(UINT nFlags);

    [[nodiscard]] BOOL GetReadOnly() const;
    void SetReadOnly(BOOL bReadOnly = TRUE);

    [[nodiscard]] BOOL IsVisible() const;
    [[nodiscard]] BOOL IsCategory() const;
    [[nodiscard]] BOOL IsExpanded() const;

    // A drop-down of the item is showing.
    [[nodiscard]] BOOL GetListShowFlag() const;
    void SetListShowFlag(BOOL bShow);
    [[nodiscard]] int GetListExpandFlag() const;

    [[nodiscard]] CString GetValue() const;
    [[nodiscard]] CString GetCaption() const;
    void SetCaption(CString strCaption);
    [[nodiscard]] CString GetDescription() const;
    void SetDescription(CString strDescription);

    // Null at the top.
    [[nodiscard]] CPropertyGridItem* GetParentItem() const;
    [[nodiscard]] CWnd* GetGrid() const;

    // Adds a child at the end, whose parent becomes this item and whose index its place among the
    // children, and calls OnAddChildItem. A null pointer does nothing.
    void AddChildItem(CPropertyGridItem* pItem);
    // Null without children.
    [[nodiscard]] POSITION GetFirstChild() const;
    // The item at a position, which must not be null; the position moves on.
    [[nodiscard]] CPropertyGridItem* GetNextChild(POSITION& pos) const;
    [[nodiscard]] BOOL HasChilds() const;

    [[nodiscard]] CItemConstraints* GetConstraints();

    void SetItemExpandObjec(void (*pfnExpand)(CPropertyGridItem*, long, long));

    // Not null while the item is attached to its window.
    [[nodiscard]] void* GetHWnd() const;
    void SetHWnd(void* hWnd);

protected:
    // For a grid's own items, which keep them.
    int m_nIndex = 0;
    UINT m_nID = 0;
    UINT m_nFlags = 0;
    BOOL m_bReadOnly = FALSE;
    BOOL m_bVisible = FALSE;
    BOOL m_bCategory = FALSE;
    BOOL m_bExpanded = FALSE;
    BOOL m_bListShow = FALSE;
    int m_nListExpand = 0;
    CString m_strValue;
    CString m_strCaption;
    CString m_strDescription;
    CPropertyGridItem* m_pParent = nullptr;
    CWnd* m_pGrid = nullptr;
    CListItems m_children;
    CItemConstraints m_constraints;
    void (*m_pfnExpand)(CPropertyGridItem*, long, long) = nullptr;
    void* m_hWnd = nullptr;
};
