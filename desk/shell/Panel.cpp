// How each panel takes a text, and what the bar panel holds.
#include "desk/shell/Panel.h"

#include <iterator>

namespace Desk {

void PanelRules::Fill(CBeamNameDlg& panel, const PanelUse& use, bool isFirst)
{
    const CString text = use.text.value_or(CString());
    if (isFirst) {
        panel.m_strResult = text;
        panel.Init();
    } else {
        panel.SetFocusBeamname(text);
    }
}

void PanelRules::Fill(CBeamSecDlg& panel, const PanelUse& use, bool /*isFirst*/)
{
    panel.Init(use.text.value_or(CString()));
}

void PanelRules::Fill(CBeamLevelDlg& panel, const PanelUse& use, bool isFirst)
{
    if (isFirst) {
        panel.Init();
    }
    panel.SetFocusLevel(use.text.value_or(CString()));
}

void PanelRules::Fill(CBeamGujinDlg& panel, const PanelUse& use, bool isFirst)
{
    const CString text = use.text.value_or(CString());
    if (isFirst) {
        panel.m_strResult = text;
        panel.Init();
    } else {
        panel.SetFocusGujin(text);
    }
}

// The piece that is entered last is the one in work.
void PanelRules::Fill(CBeamSteelDlg& panel, const PanelUse& use, bool /*isFirst*/)
{
    panel.m_nSteelKind = use.barKind;
    panel.Init();
    for (const CString& piece : use.pieces) {
        BarGroup& group = panel.m_Group[BarGroups::OfType(use.pieceType)];
        panel.AddToTail(group.m_arrPiece, group.m_strSteel, group.m_nFirstRow, use.pieceType, piece + " ");
    }
}

Holding PanelRules::HeldBy(const CBeamSteelDlg& panel)
{
    Holding holding;
    for (std::size_t i = 0; i < std::size(panel.m_Group); ++i) {
        const BarGroup& group = panel.m_Group[i];
        if (group.m_arrPiece.GetSize() == 0 && group.m_strSteel.IsEmpty()) {
            continue;
        }
        Holding::Group& held = holding.groups.emplace_back();
        held.number = static_cast<int>(i);
        held.text = group.m_strSteel;
        for (int at = 0; at < group.m_arrPiece.GetSize(); ++at) {
            held.pieces.push_back(group.m_arrPiece.GetAt(at));
        }
    }
    holding.editedRow = panel.m_bNewPiece ? -1 : panel.m_PosList.GetCurSel();
    return holding;
}

}  // namespace Desk
