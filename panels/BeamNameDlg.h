// CBeamNameDlg: the panel that composes a beam name such as "KL3(2A)".
#pragma once

#include "host/Export.h"
#include "platform/windows/CDialog.h"
#include "platform/windows/CListBox.h"

class CPropertyGridItem;

// What counts are the four edit boxes. Type and cantilever are also picked from lists; serial and span
// count have lists of digits, where a click adds a digit and a double click replaces the number. A right
// press confirms, Esc dismisses, and the panel hides in both cases.
class RANKER_API CBeamNameDlg : public CDialog {
public:
    static constexpr UINT IDD = 540;

    explicit CBeamNameDlg(CString strText = CString(), CWnd* pParent = nullptr);
    ~CBeamNameDlg() override;

    // Fills the lists and shows the text. Once a window, since it adds rows to those that are there.
    void Init();
    // Takes a new text. One without "L" leaves the boxes as they are.
    void SetFocusBeamname(CString strText);

    // m_strResult into the boxes and from there into the lists.
    void DecomposeBeamName();
    // m_strResult from the rows, when all four lists have one.
    void IntegrateName();
    // m_strResult from the boxes; false when there is no type, or neither span nor cantilever. The
    // latter, here and in IntegrateName, shows a message and leaves type and serial alone in the text.
    bool IntegrateNameFromEdit();
    // The selected rows into the boxes. Row "0" of a digit list empties its box.
    void CoordinateEditWithList();
    // The rows that carry the boxes' texts become the selected ones.
    void CoordinateListWithEdit();

    // A new place on the screen: the pointer's position less that of the last left press.
    void TestMoveWnd(CPoint point);
    void TranslateMessage(MSG* pMsg);  // does nothing
    BOOL PreTranslateMessage(MSG* pMsg) override;

    void OnRButtonDown(UINT nFlags, CPoint point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSelchangeBntypeList();
    void OnSelchangeBnxuantiaoList();
    void OnSelchangeBnkuaList();
    void OnSelchangeBnxuList();
    void OnChangeBnkuaEdit();
    void OnChangeBntypeEdit();
    void OnChangeBnxuEdit();
    void OnChangeBnxuantiaoEdit();

    CString m_strResult;
    CPropertyGridItem* m_pItem = nullptr;
    bool m_bToItem = true;
    int m_nDownX = 0;  // of the last left press, pixels of the screen
    int m_nDownY = 0;
    CListBox m_XuantiaoList;
    CListBox m_XuList;
    CListBox m_TypeList;
    CListBox m_KuaList;
    CString m_strBeamType;
    CString m_strKua;
    CString m_strXu;
    CString m_strXuantiao;

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    bool PressDigit(const CListBox& list, CString& strNumber, const MSG& msg);

    bool m_bPressed = false;  // a left press has been seen

    DECLARE_MESSAGE_MAP()
};
