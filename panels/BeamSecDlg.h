// CBeamSecDlg: the panel that composes a beam section such as "300x600".
#pragma once

#include "host/Export.h"
#include "platform/windows/CDialog.h"
#include "platform/windows/CListBox.h"

class CPropertyGridItem;

// Width and height are picked from lists or typed; the two ways keep each other in step. A right press
// or a double click confirms, Esc dismisses, and the panel hides in both cases.
class RANKER_API CBeamSecDlg : public CDialog {
public:
    static constexpr UINT IDD = 364;

    explicit CBeamSecDlg(CString strText = CString(), CWnd* pParent = nullptr);
    ~CBeamSecDlg() override;

    // Fills the lists anew and shows the text; an empty one leaves the boxes as they are.
    void Init(CString strText);

    // m_strResult, whose tail goes, into separator and boxes and from there into the lists.
    void DecomposeChicun();
    // m_strResult from the rows, when both lists have one.
    void IntegrateSec();
    // m_strResult from the boxes; false, with nothing composed, when one is empty.
    bool IntegrateChicunFromEdit();
    // The selected rows into the boxes.
    void CoordinateEditWithList();
    // The rows with the boxes' numbers become the selected ones.
    void CoordinateListWithEdit();

    // A new place on the screen: the pointer's position less that of the last left press.
    void TestMoveWnd(CPoint point);
    // Sends the panel a right press if the event is one.
    void TranslateMessage(MSG* pMsg);
    BOOL PreTranslateMessage(MSG* pMsg) override;

    void OnRButtonDown(UINT nFlags, CPoint point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSelchangeBeamwidthList();
    void OnSelchangeBeamheightList();
    void OnChangeBeamwidthEdit();
    void OnChangeBeamheightEdit();

    CString m_strResult;
    CPropertyGridItem* m_pItem = nullptr;
    bool m_bToItem = true;
    int m_nDownX = 0;  // of the last left press, pixels of the screen
    int m_nDownY = 0;
    bool m_bInParent = true;
    CString m_strSeparator = "x";  // the last one other than "x" that a text had
    void* m_pHostData = nullptr;
    CListBox m_SeparatorList;    // one row, beside the boxes
    CListBox m_SeparatorColumn;  // beside the rows
    CListBox m_HeightList;
    CListBox m_WidthList;
    CString m_strWidth;
    CString m_strHeight;

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    bool m_bPressed = false;  // a left press has been seen

    DECLARE_MESSAGE_MAP()
};
