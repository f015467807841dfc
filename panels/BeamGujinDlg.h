// CBeamGujinDlg: the panel that composes a stirrup annotation such as "A10@100/200(2)".
#pragma once

#include "host/Export.h"
#include "platform/windows/CDialog.h"
#include "platform/windows/CListBox.h"

class CPropertyGridItem;

// The six fields of the annotation stand side by side, each as an edit box over a list. A click in a
// list composes from the lists and rewrites the boxes; a keystroke moves the lists and composes from the
// boxes. A right press confirms, Esc dismisses, and the panel hides in both cases.
class RANKER_API CBeamGujinDlg : public CDialog {
public:
    static constexpr UINT IDD = 367;

    explicit CBeamGujinDlg(CString strText = CString(), CWnd* pParent = nullptr);
    ~CBeamGujinDlg() override;

    // Fills the lists anew and shows the text; without one it starts on grade "A" and no tight zone.
    void Init();
    // Takes a new text. One that cannot be read leaves boxes and lists as they are.
    void SetFocusGujin(CString strText);

    // m_strResult into the fields and, when it could be read to the end, into boxes and lists.
    void DecomposeGujin();
    // m_strResult from the rows, when all six lists have one. Tight legs without a tight spacing go.
    void IntegrateGuJin();
    // m_strResult from the fields; false, with nothing composed, when grade, diameter, spacing or legs
    // are empty. Trims the fields and puts brackets around legs.
    bool IntegrateChicunFromEdit();
    // The rows that the boxes' texts name become the selected ones.
    void CoordinateListWithEdit();
    // The selected rows into the boxes, legs without their brackets.
    void CoordinateEditWithList();

    // A new place on the screen: the pointer's position less that of the last left press.
    void TestMoveWnd(CPoint point);
    // Sends the panel a right press if the event is one.
    void TranslateMessage(MSG* pMsg);
    BOOL PreTranslateMessage(MSG* pMsg) override;

    void OnRButtonDown(UINT nFlags, CPoint point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSelchangeZhishuList();
    void OnSelchangeSteelsymList();
    void OnSelchangeJiamizhishuList();
    void OnSelchangeJiamiintervallist();
    void OnSelchangeIntervalList();
    void OnSelchangeDiaList();
    void OnChangeEditInterval();
    void OnChangeEditJiamiinterval();
    void OnChangeEditJiamizhishu();
    void OnChangeEditSteeldiameter();
    void OnChangeEditSteeltype();
    void OnChangeEditZhishu();

    CString m_strResult;
    bool m_bToItem = true;
    int m_nDownX = 0;  // of the last left press, pixels of the screen
    int m_nDownY = 0;
    bool m_bInParent = true;
    void* m_pHostData = nullptr;
    CPropertyGridItem* m_pItem = nullptr;
    CListBox m_ZhishuList;
    CListBox m_SteelsymList;
    CListBox m_JiamizhishuList;
    CListBox m_JiamiintervalList;
    CListBox m_IntervalList;
    CListBox m_DiaList;
    CString m_strInterval;
    CString m_strJiamiInterval;
    CString m_strJiamiZhishu;
    CString m_strSteelDiameter;
    CString m_strSteelType;
    CString m_strZhishu;

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    bool m_bPressed = false;  // a left press has been seen

    DECLARE_MESSAGE_MAP()
};
