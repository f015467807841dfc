// Groups and kinds as tables, and the rules of leaving texts.
#include "panels/BarGroup.h"

#include <array>
#include <string_view>

#include "panels/BarPiece.h"
#include "platform/windows/DialogTemplate.h"

namespace BarGroups {
namespace {

constexpr const char* StarTorsion = GbkLabel<u8"*扭筋">();
constexpr const char* NTorsion = GbkLabel<u8"N扭筋">();
constexpr const char* SideStructural = GbkLabel<u8"G侧面构造筋">();
constexpr const char* TenBlanks = "          ";

constexpr std::array StandardRows = {GbkLabel<u8"上部贯通筋">(),
                                     GbkLabel<u8"下部贯通筋">(),
                                     GbkLabel<u8"+(架立筋)">(),
                                     StarTorsion,
                                     NTorsion,
                                     SideStructural};
constexpr std::array LeftEndRows = {GbkLabel<u8"上部左端筋">()};
constexpr std::array RightEndRows = {GbkLabel<u8"上部右端筋">()};
constexpr std::array TopRows = {
    GbkLabel<u8"上部架立筋">(), TenBlanks, TenBlanks, StarTorsion, NTorsion, SideStructural};
constexpr std::array BottomRows = {
    GbkLabel<u8"下部纵筋">(), TenBlanks, TenBlanks, StarTorsion, NTorsion, SideStructural};

struct Kind {
    std::span<const char* const> rows;
    bool oneRowToItem;  // a panel that serves a property item shows the first row alone
    int firstRow;
    std::string_view allowedToItem;  // row numbers
    std::string_view allowed;
};

constexpr Kind Kinds[] = {
    {StandardRows, false, 0, "012345", "012345"},  // -1
    {StandardRows, false, 0, "0", "0"},            // 0
    {StandardRows, false, 1, "1", "1"},            // 1
    {StandardRows, false, 2, "2", "2"},            // 2
    {StandardRows, false, 3, "34", "34"},          // 3
    {StandardRows, false, 5, "5", "5"},            // 4
    {LeftEndRows, false, 0, "0", "0"},             // 5
    {RightEndRows, false, 0, "0", "0"},            // 6
    {TopRows, true, 0, "0", "0345"},               // 7
    {BottomRows, true, 0, "0", "0345"},            // 8
};

const Kind& KindOf(int nKind) { return Kinds[nKind >= 0 && nKind <= 8 ? nKind + 1 : 0]; }

}  // namespace

int OfType(int nType)
{
    constexpr int Groups[BarPiece::TypeCount] = {0, 1, 2, 3, 3, 4};
    return nType >= 0 && nType < BarPiece::TypeCount ? Groups[nType] : -1;
}

CString Join(const CStringArray& arrPiece)
{
    CString joined;
    for (const CString& piece : arrPiece) {
        joined += piece;
    }
    return joined;
}

std::span<const char* const> TypeRows(int nKind, bool bToItem)
{
    const Kind& kind = KindOf(nKind);
    return bToItem && kind.oneRowToItem ? kind.rows.first(1) : kind.rows;
}

int FirstRow(int nKind) { return KindOf(nKind).firstRow; }

bool IsAllowed(int nKind, bool bToItem, int nRow)
{
    const Kind& kind = KindOf(nKind);
    const std::string_view allowed = bToItem ? kind.allowedToItem : kind.allowed;
    return nRow >= 0 && nRow <= 9 && allowed.find(static_cast<char>('0' + nRow)) != std::string_view::npos;
}

CString WithoutTerminator(const CString& strGroup)
{
    const std::size_t terminator = strGroup.View().find_first_of("; ,");
    const int last = strGroup.GetLength() - 1;
    return last >= 0 && terminator == static_cast<std::size_t>(last) ? strGroup.Left(last) : strGroup;
}

CString WithoutBrackets(const CString& strErection)
{
    return strErection.Mid(2, strErection.GetLength() - 4);
}

}  // namespace BarGroups
