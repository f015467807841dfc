// CBeamSteelDlg: the pop-up panel that composes longitudinal bar annotations by mouse alone.
#pragma once

#include <initializer_list>

#include "host/Export.h"
#include "panels/BarGroup.h"
#include "platform/windows/CDialog.h"
#include "platform/windows/CListBox.h"

class CPropertyGridItem;

// An annotation has up to five groups, each a text cut into pieces ("2B22", "+2B25;"). One list along
// the foot (the Pos list) shows the pieces of all groups, each on a row of its own; the column lists
// above compose a new piece or rewrite the selected one. Every operation keeps piece array, group
// text and rows in step. The right button confirms, Esc dismisses.
//
// Order of use: construct, write m_nSteelKind and the delivery fields, Create(IDD), Init, show; for
// another annotation Init again. Words: the type of a piece is its row in the type list (0 to 5), its
// pos the index in its group's piece array, its row that of the Pos list. Nothing is ever reported:
// what can not be done changes nothing, and without a window no list has a row.
class RANKER_API CBeamSteelDlg : public CDialog {
public:
    static constexpr UINT IDD = 543;
    static constexpr int MaxRows = 99;  // behind the last row an entry of -1 closes the row tables

    explicit CBeamSteelDlg(CWnd* pParent = nullptr);
    ~CBeamSteelDlg() override;

    int m_nSteelKind = -1;    // what the panel is open for, see BarGroups; written before Init
    bool m_bToItem = true;    // confirm through m_pItem, a single bar field; else through the callback
    bool m_bNewPiece = true;  // a column click composes a new piece; else it rewrites the selected one
    BarGroup m_Group[BarGroups::Count];
    int m_nRowType[MaxRows + 1];  // type and pos of each row, -1 behind the last
    int m_nRowPos[MaxRows + 1];
    int m_nCurType = -1;  // of the row being edited, -1 for none
    int m_nCurPos = -1;
    int m_nPosListSel = -1;                // the row that a new piece goes behind, -1 for the end
    CPropertyGridItem* m_pItem = nullptr;  // borrowed; null: nothing is delivered to an item
    int m_nDownX = 0;                      // screen position of the last left press
    int m_nDownY = 0;
    bool m_bInParent = true;      // the callback gets the parent window; else m_pHostData
    void* m_pHostData = nullptr;  // the host's, never looked into
    CListBox m_SlashList;
    CListBox m_UpList;
    CListBox m_DownList;
    CListBox m_PosList;
    CListBox m_VdiaList;
    CListBox m_SteeltypeList;
    CListBox m_SteelsymList;
    CListBox m_SteelnumList;
    CListBox m_SteeldiaList;
    CListBox m_SepList;

    // Wipes the panel and fills the lists for the present kind.
    void Init();
    // Wipes lists, groups and row tables. The current type and pos and the remembered row stay.
    void LikeJustCreate();
    // Empties the panel after its last row has gone; no type is selected then.
    void WashToScratch();

    // Selects the rows that show a piece; type 0 or 1 selects that type, others leave it to the head.
    void SetListWithSteelStr(CString strPiece, int nType);
    // Shows the piece at a pos of the type's group, in edit mode; start state for an empty group.
    void CoordinateWithType(int nType, int nPos);
    // Selects the first row of the type's group, and the mode that goes with it.
    void SetPosSel(int nType);
    // Enters a row in the row tables; a row outside them is ignored.
    void SetTypeAndPos(int nType, int nPos, int nRow);

    // A new piece from the column lists, when each of them has a selection.
    void IntegratePieceSteel();
    // The same for the selected piece, which keeps its group and dressing.
    void ModiPieceSteel();
    // Put a bare piece into a group given by its parts, at the end of all rows or behind the
    // remembered row. A piece whose bars the group has already is refused, and any at MaxRows.
    void AddToTail(CStringArray& arrPiece, CString& strSteel, int& nFirstRow, int nType, CString strPiece);
    void Insert(CStringArray& arrPiece, CString& strSteel, int& nFirstRow, int nType, CString strPiece);
    bool CmpEssence(CString strA, CString strB);
    CString ReplaceSteel(CString strBare, CString strOld);

    void TestMoveWnd(CPoint point);
    void TranslateMessage(MSG* pMsg);
    BOOL PreTranslateMessage(MSG* pMsg) override;

    // What the user did.
    void OnSelchangeSteeltypeList();
    void OnSelchangeVdiaList();
    void OnSelchangePosList();
    void OnSelchangeSteelnumList();
    void OnSelchangeSteelsymList();
    void OnSelchangeSteeldiaList();
    void OnSelchangeSepList();
    void OnSelchangeListUp();
    void OnSelchangeListDown();
    void OnButtonDel();
    void OnRButtonDown(UINT nFlags, CPoint point);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);

protected:
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void ComposeOrRewrite();
    bool ComposeBarePiece(CString& strBare);
    bool Refuses(const CStringArray& arrPiece, int nType, const CString& strBare);
    void OpenGroup(CStringArray& arrPiece, CString& strSteel, int& nFirstRow, int nType,
                   const CString& strBare, int nRow);
    void AppendPiece(CStringArray& arrPiece, CString& strSteel, int nType, CString strPiece, int nRow);
    void InsertPiece(CStringArray& arrPiece, CString& strSteel, int nType, CString strPiece, int nPos,
                     int nRow);
    void AddRow(int nRow, int nType, int nPos, const CString& strPiece);
    void RewriteRow(int nRow, const CString& strPiece);
    [[nodiscard]] int FindRow(int nGroup, int nPos) const;
    [[nodiscard]] bool IsPiece(int nType, int nPos) const;
    void ClearRowTables();
    bool DeliverTexts();
    void ConfirmToItem();
    void ConfirmToParent();
    void ConfirmToHostData();
    void StripGroups(std::initializer_list<int> groups);

    bool m_bPressed = false;  // a left press has been seen

    DECLARE_MESSAGE_MAP()
};
