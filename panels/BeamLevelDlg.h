// CBeamLevelDlg: the keypad that composes an elevation such as "(-0.300)".
#pragma once

#include "host/Export.h"
#include "platform/windows/CDialog.h"
#include "platform/windows/CEdit.h"

class CPropertyGridItem;

// The keys work on m_strResult and write it over the box; the box counts at the confirmation, so that a
// text typed last is delivered. A right press confirms, Esc dismisses, and the panel hides in both cases.
class RANKER_API CBeamLevelDlg : public CDialog {
public:
    static constexpr UINT IDD = 542;

    explicit CBeamLevelDlg(CWnd* pParent = nullptr);
    ~CBeamLevelDlg() override;

    // Empties the text; the box shows the old one until a key or SetFocusLevel writes it.
    void Init();
    void SetFocusLevel(CString strText);

    // Adds a text at the end, inside the brackets of a text that begins with one.
    void AddButNum(CString strText);

    // A new place on the screen: the pointer's position less that of the last left press.
    void TestMoveWnd(CPoint point);
    BOOL PreTranslateMessage(MSG* pMsg) override;

    void OnRButtonDown(UINT nFlags, CPoint point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnButton1();
    void OnButton2();
    void OnButton3();
    void OnButton4();
    void OnButton5();
    void OnButton6();
    void OnButton7();
    void OnButton8();
    void OnButton9();
    void OnButton0();
    void OnButtonDot();
    void OnButtonBrack();
    void OnButtonNegative();
    void OnButtonBack();
    void OnButtonClean();

    CString m_strResult;
    CPropertyGridItem* m_pItem = nullptr;
    bool m_bToItem = true;
    int m_nDownX = 0;  // of the last left press, pixels of the screen
    int m_nDownY = 0;
    bool m_bInParent = true;
    void* m_pHostData = nullptr;
    CEdit m_Edit;
    CString m_strEditText;

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void ShowResult();

    bool m_bPressed = false;  // a left press has been seen

    DECLARE_MESSAGE_MAP()
};
