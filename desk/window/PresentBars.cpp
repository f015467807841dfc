// A text such as "2B25+1B22" or "G4B12" cut into the panel's bare pieces.
#include "desk/window/PresentBars.h"

#include <string>
#include <string_view>
#include <utility>

namespace Desk {

namespace {

// What the panel is open for, and the type of the pieces without a head character.
std::pair<int, int> KindAndType(Field field)
{
    constexpr int Top = 0, Bottom = 1, Erection = 2, NTorsion = 4, Side = 5;
    switch (field) {
    case Field::TopBars: return {0, Top};
    case Field::BottomBars: return {1, Bottom};
    case Field::Erection: return {2, Erection};
    case Field::Torsion: return {3, NTorsion};
    case Field::Side: return {4, Side};
    case Field::LeftEnd: return {5, Top};
    default: return {6, Top};
    }
}

}  // namespace

void ShowBars(CBeamSteelDlg& panel, Field field, const CString& text)
{
    constexpr int StarTorsion = 3;
    auto [kind, type] = KindAndType(field);
    panel.m_nSteelKind = kind;
    panel.m_bToItem = true;
    panel.Init();
    std::string_view rest = text.View();
    if ((field == Field::Torsion || field == Field::Side) && !rest.empty() &&
        std::string_view("GN*").find(rest.front()) != std::string_view::npos) {
        type = field == Field::Torsion && rest.front() == '*' ? StarTorsion : type;
        rest.remove_prefix(1);
    }
    BarGroup& group = panel.m_Group[BarGroups::OfType(type)];
    while (!rest.empty()) {
        const std::size_t plus = rest.find('+');
        const std::string piece(rest.substr(0, plus));
        rest = plus == std::string_view::npos ? std::string_view() : rest.substr(plus + 1);
        if (!piece.empty()) {
            panel.AddToTail(group.m_arrPiece, group.m_strSteel, group.m_nFirstRow, type,
                            CString(piece + " "));
        }
    }
}

}  // namespace Desk
