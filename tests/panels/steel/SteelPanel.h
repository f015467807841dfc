// A bar panel in a parent window, worked by mouse and keyboard, and what its receivers got.
#pragma once

#include <algorithm>
#include <memory>
#include <ostream>

#include "panels/private/BeamSteelTemplate.h"
#include "platform/windows/Hands.h"
#include "tests/panels/Receiver.h"
#include "tests/panels/steel/SteelModel.h"

namespace SteelModel {

inline void PrintTo(const State& s, std::ostream* out)
{
    *out << (s.newPiece ? "new" : "edit") << " cur " << s.curType << '/' << s.curPos << " remembered "
         << s.remembered << "\n  lists: type " << s.type << " later " << s.later << " count " << s.count
         << " grade " << s.grade << " diameter " << s.diameter << " split " << s.upper << '/' << s.lower
         << " end " << s.end << " row " << s.row << '\n';
    for (std::size_t row = 0; row < s.rows.size(); ++row) {
        *out << "  [" << s.rows[row] << "] " << s.rowType[row] << '/' << s.rowPos[row] << '\n';
    }
    for (std::size_t g = 0; g < 5; ++g) {
        *out << "  group " << g << " from " << s.firstRows[g] << " [" << s.texts[g] << "]";
        for (const std::string& piece : s.pieces[g]) {
            *out << " [" << piece << ']';
        }
        *out << '\n';
    }
    for (const std::string& sent : s.sent) {
        *out << "  sent " << sent << '\n';
    }
}

}  // namespace SteelModel

class SteelPanel {
public:
    explicit SteelPanel(int kind, bool toItem = false, bool inParent = true)
    {
        m_frame.CreateFrame(CRect(100, 100, 900, 700));
        m_dlg = std::make_unique<CBeamSteelDlg>(nullptr);
        m_dlg->m_pItem = &m_receiver;
        m_dlg->m_pHostData = &m_hostData;
        m_dlg->Create(CBeamSteelDlg::IDD, &m_frame);
        Open(kind, toItem, inParent);
    }

    void Open(int kind, bool toItem, bool inParent)
    {
        m_dlg->m_nSteelKind = kind;
        m_dlg->m_bToItem = toItem;
        m_dlg->m_bInParent = inParent;
        m_dlg->Init();
        m_dlg->ShowWindow(SW_SHOW);
    }

    void Pick(int id, int row) { m_hands.ClickRow(*m_dlg, id, row); }
    // Columns in the order count, diameter, then the others as far as they are given.
    void Compose(int count, int diameter, int end = -1)
    {
        Pick(BeamSteelTemplate::SteelnumList, count);
        Pick(BeamSteelTemplate::SteeldiaList, diameter);
        if (end != -1) {
            Pick(BeamSteelTemplate::SepList, end);
        }
    }
    void Delete() { m_hands.Click(*m_dlg, BeamSteelTemplate::DeleteButton); }
    bool Confirm() { return m_hands.RightClick(*m_dlg, BeamSteelTemplate::SepList); }

    [[nodiscard]] std::string Text(std::size_t group) const
    {
        return std::string(m_dlg->m_Group[group].m_strSteel.View());
    }

    [[nodiscard]] SteelModel::State Seen() const
    {
        SteelModel::State state;
        for (std::size_t g = 0; g < 5; ++g) {
            state.texts[g] = m_dlg->m_Group[g].m_strSteel.View();
            state.pieces[g] = TextsOf(m_dlg->m_Group[g].m_arrPiece);
            state.firstRows[g] = m_dlg->m_Group[g].m_nFirstRow;
        }
        std::copy_n(m_dlg->m_nRowType, 100, state.rowType.begin());
        std::copy_n(m_dlg->m_nRowPos, 100, state.rowPos.begin());
        state.rows = RowsOf(m_dlg->m_PosList);
        state.newPiece = m_dlg->m_bNewPiece;
        state.curType = m_dlg->m_nCurType, state.curPos = m_dlg->m_nCurPos;
        state.remembered = m_dlg->m_nPosListSel;
        state.type = m_dlg->m_SteeltypeList.GetCurSel(), state.later = m_dlg->m_VdiaList.GetCurSel();
        state.count = m_dlg->m_SteelnumList.GetCurSel(), state.grade = m_dlg->m_SteelsymList.GetCurSel();
        state.diameter = m_dlg->m_SteeldiaList.GetCurSel();
        state.upper = m_dlg->m_UpList.GetCurSel(), state.lower = m_dlg->m_DownList.GetCurSel();
        state.end = m_dlg->m_SepList.GetCurSel(), state.row = m_dlg->m_PosList.GetCurSel();
        state.sent = Sent();
        return state;
    }

    // What went out, in the model's words.
    [[nodiscard]] Texts Sent() const
    {
        Texts sent;
        for (const std::string& text : m_receiver.m_items) {
            sent.push_back(SteelModel::Sent("item", 0, text, 0));
        }
        for (const Delivery& call : m_receiver.m_calls) {
            const std::string to = call.first == &m_frame      ? "parent"
                                   : call.first == &m_hostData ? "host"
                                                               : "?";
            sent.push_back(SteelModel::Sent(to, call.mode, call.text, call.code));
        }
        return sent;
    }

    static Texts RowsOf(const CListBox& list)
    {
        Texts rows;
        CString text;
        for (int row = 0; row < list.GetCount(); ++row) {
            list.GetText(row, text);
            rows.emplace_back(text.View());
        }
        return rows;
    }

    Receiver m_receiver;
    Hands m_hands;
    CWnd m_frame;
    std::unique_ptr<CBeamSteelDlg> m_dlg;

private:
    int m_hostData = 0;
};
