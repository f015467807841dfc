// How each panel takes a text, and what the bar panel holds.
#include "desk/shell/Panel.h"

#include <algorithm>
#include <initializer_list>
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

namespace {

// A count, or nothing in the first row; the second list's rows but the first need one in the first list.
// The panel puts the second one back when it composes, which needs a row in every other list.
bool TakesNoSecond(const CListBox& first, std::initializer_list<const CListBox*> others)
{
    return first.GetCurSel() == 0 && std::all_of(others.begin(), others.end(), [](const CListBox* list) {
               return list->GetCurSel() >= 0;
           });
}

bool CanChooseIn(const CBeamSteelDlg& panel, const CListBox& list, int row)
{
    if (&list == &panel.m_SteeltypeList) {
        if (!BarGroups::IsAllowed(panel.m_nSteelKind, panel.m_bToItem, row)) {
            return false;
        }
        const int first = panel.m_Group[BarGroups::OfType(row)].m_nFirstRow;  // types may share a group
        return first < 0 || panel.m_nRowType[first] == row;
    }
    if (&list == &panel.m_VdiaList) {  // a group's first piece has no other before it
        const int group = BarGroups::OfType(panel.m_SteeltypeList.GetCurSel());
        return row == 0 && (group < 0 || !panel.m_Group[group].m_strSteel.IsEmpty());
    }
    return &list != &panel.m_DownList || row == 0 ||
           !TakesNoSecond(panel.m_UpList, {&panel.m_SteeltypeList, &panel.m_SteelsymList,
                                           &panel.m_SteelnumList, &panel.m_SteeldiaList, &panel.m_SepList});
}

bool CanChooseIn(const CBeamGujinDlg& panel, const CListBox& list, int row)
{
    return &list != &panel.m_JiamizhishuList || row == 0 ||
           !TakesNoSecond(panel.m_JiamiintervalList, {&panel.m_SteelsymList, &panel.m_DiaList,
                                                      &panel.m_IntervalList, &panel.m_ZhishuList});
}

}  // namespace

bool CanChoose(const CListBox& list, int row)
{
    const CWnd* const holder = list.GetParent();
    if (const auto* const bars = dynamic_cast<const CBeamSteelDlg*>(holder)) {
        return CanChooseIn(*bars, list, row);
    }
    const auto* const stirrups = dynamic_cast<const CBeamGujinDlg*>(holder);
    return stirrups == nullptr || CanChooseIn(*stirrups, list, row);
}

}  // namespace Desk
