// A panel with one control of each kind that writes down what reaches it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "RankerModule.h"

namespace TestPanelData {

constexpr int Label = 100;
constexpr int Box = 101;
constexpr int Digits = 102;
constexpr int List = 103;
constexpr int Dead = 104;
constexpr int Columns = 105;
constexpr int Button = 106;
constexpr int RightBox = 107;
constexpr UINT Id = 900;

// 60 x 60 units: 90 x 90 pixels. The list shows five rows, the column list three of 20 pixels.
constexpr ControlTemplate Controls[] = {
    {.id = Label, .place = {0, 0, 20, 8}, .text = GbkLabel<u8"梁宽">()},
    {.kind = ControlKind::EditBox, .id = Box, .place = {20, 0, 40, 8}},
    {.kind = ControlKind::EditBox, .id = Digits, .place = {0, 8, 20, 8}, .style = ControlStyle::DigitsOnly},
    {.kind = ControlKind::ListBox, .id = List, .place = {0, 16, 20, 40}},
    {.kind = ControlKind::ListBox, .id = Dead, .place = {20, 16, 20, 40}, .style = ControlStyle::Disabled},
    {.kind = ControlKind::ListBox,
     .id = Columns,
     .place = {20, 8, 40, 8},
     .style = ControlStyle::MultiColumn},
    {.kind = ControlKind::Button, .id = Button, .place = {40, 16, 20, 8}, .text = "go"},
    {.kind = ControlKind::EditBox,
     .id = RightBox,
     .place = {40, 24, 20, 8},
     .style = ControlStyle::AlignRight},
};
constexpr DialogTemplate Shape = {.id = Id, .width = 60, .height = 60, .controls = Controls};

}  // namespace TestPanelData

class TestPanel : public CDialog {
public:
    TestPanel() : CDialog(TestPanelData::Shape) {}

    // Made, filled with rows "0" to "9" in the lists, put at 100, 100 and shown.
    TestPanel& Open(CWnd* pParent = nullptr)
    {
        Create(TestPanelData::Id, pParent);
        for (int row = 0; row < 10; ++row) {
            CString text;
            text.Format("%d", row);
            m_list.AddString(text);
            m_columns.AddString(text);
        }
        m_columns.SetColumnWidth(20);
        MoveWindow(100, 100, 90, 90);
        ShowWindow(SW_SHOW);
        return *this;
    }

    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        m_log.push_back("offer " + Number(pMsg->message));
        if (m_onOffer) {
            return m_onOffer(*pMsg) ? TRUE : FALSE;
        }
        return CDialog::PreTranslateMessage(pMsg);
    }
    void OnRButtonDown(UINT nFlags, CPoint point)
    {
        m_log.push_back("right " + Number(point.x) + "," + Number(point.y));
        const HWND hWnd = m_hWnd;
        Then();
        if (IsWindow(hWnd)) {
            CDialog::OnRButtonDown(nFlags, point);
        }
    }
    void OnKeyDown(UINT nChar, UINT /*nRepCnt*/, UINT /*nFlags*/) { Note("key " + Number(nChar)); }
    void OnBox() { Note("box"); }
    void OnDigits() { Note("digits"); }
    void OnList() { Note("list " + Number(m_list.GetCurSel())); }
    void OnColumns() { Note("columns " + Number(m_columns.GetCurSel())); }
    void OnButton() { Note("button"); }

    CString TextOf(int id) const
    {
        CString text;
        GetDlgItem(id)->GetWindowText(text);
        return text;
    }
    // What was written down since the last call, offers left out unless they are asked for.
    std::vector<std::string> Heard(bool bOffers = false)
    {
        std::vector<std::string> heard;
        for (const std::string& line : m_log) {
            if (bOffers || line.rfind("offer", 0) != 0) {
                heard.push_back(line);
            }
        }
        m_log.clear();
        return heard;
    }

    CListBox m_list;
    CListBox m_columns;
    CString m_strBox;
    CString m_strDigits;
    std::function<bool(const MSG&)> m_onOffer;
    std::function<void()> m_then;      // run in each handler, as a host's callback
    std::function<void()> m_exchange;  // run in each data exchange
    std::vector<std::string> m_log;

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, TestPanelData::List, m_list);
        DDX_Control(pDX, TestPanelData::Columns, m_columns);
        DDX_Text(pDX, TestPanelData::Box, m_strBox);
        DDX_Text(pDX, TestPanelData::Digits, m_strDigits);
        if (m_exchange) {
            m_exchange();
        }
    }

private:
    template <class Integer>
    static std::string Number(Integer value)
    {
        return std::to_string(value);
    }
    void Note(const std::string& line)
    {
        m_log.push_back(line);
        Then();
    }
    // The function may delete the panel and itself with it.
    void Then()
    {
        if (const std::function<void()> then = m_then) {
            then();
        }
    }

    DECLARE_MESSAGE_MAP()
};

using Lines = std::vector<std::string>;
