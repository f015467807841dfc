// The text rules of pieces.
#include "panels/BarPiece.h"

#include <algorithm>
#include <string_view>

#include "platform/text/Numbers.h"

namespace BarPiece {
namespace {

bool IsDigit(char ch) { return ch >= '0' && ch <= '9'; }

char Last(const CString& text) { return text.GetAt(text.GetLength() - 1); }

void DropLast(CString& text) { text = text.Left(text.GetLength() - 1); }

// ")" in front of the terminator.
CString Closed(CString text)
{
    const CString terminator = text.Right(1);
    DropLast(text);
    return text + ")" + terminator;
}

bool TakeHead(std::string_view& text, std::string_view head)
{
    const bool found = text.starts_with(head);
    if (found) {
        text.remove_prefix(head.size());
    }
    return found;
}

// The row of a count in a list of so many rows, -1 when it has none.
int RowIn(int nRow, int nRows) { return nRow >= 0 && nRow < nRows ? nRow : -1; }

// "6B25 2/4": takes the split off the core and selects the rows of its counts.
void ReadSplit(std::string_view& text, Rows& rows)
{
    const std::size_t blank = text.find(' ');
    if (text.find('/') == std::string_view::npos || blank == std::string_view::npos) {
        rows.upper = 0;
        rows.lower = 0;
        return;
    }
    const std::string_view split = text.substr(blank + 1);
    const std::size_t slash = std::min(split.find('/'), split.size());
    constexpr int CountRows = static_cast<int>(Counts.size()) + 1;
    rows.upper = RowIn(NumberValue(split.substr(0, slash)), CountRows);
    rows.lower = RowIn(NumberValue(split.substr(std::min(slash + 1, split.size()))), CountRows);
    text = text.substr(0, blank);
}

void ReadCore(std::string_view text, Rows& rows)
{
    rows.count = -1;
    for (const int row : {RowOfGradeB, 0, 2, 3}) {
        const std::size_t letter = text.find(Grades[static_cast<std::size_t>(row)]);
        if (letter == std::string_view::npos) {
            continue;
        }
        rows.grade = row;
        rows.count = RowIn(NumberValue(text.substr(0, letter)) - 1, static_cast<int>(Counts.size()));
        const auto diameter = std::find(Diameters.begin(), Diameters.end(), text.substr(letter + 1));
        if (diameter != Diameters.end()) {
            rows.diameter = static_cast<int>(diameter - Diameters.begin());
        }
        return;
    }
}

}  // namespace

CString Compose(const Columns& columns)
{
    CString piece = columns.count + columns.grade + columns.diameter;
    if (!columns.upper.IsEmpty() && !columns.lower.IsEmpty()) {
        piece += " " + columns.upper + "/" + columns.lower;
    }
    return piece + columns.terminator;
}

const char* HeadOf(int nType)
{
    switch (nType) {
    case Erection: return "+(";
    case StarTorsion: return "*";
    case NTorsion: return "N";
    case SideStructural: return "G";
    default: return "";
    }
}

CString HeadFirst(int nType, const CString& strBare)
{
    return HeadOf(nType) + (nType == Erection ? Closed(strBare) : strBare);
}

void OpenEnd(int nType, CString& strGroup, CString& strLast, CString& strFollower)
{
    DropLast(strGroup);
    DropLast(strLast);
    if (nType == Erection) {
        DropLast(strGroup);
        DropLast(strLast);
        strFollower = Closed(strFollower);
    }
}

CString TailOf(int nType, const CString& strLast) { return strLast.Right(nType == Erection ? 2 : 1); }

CString Replace(const CString& strBare, const CString& strOld)
{
    CString result;
    if (!IsDigit(strOld.GetAt(0))) {
        result = strOld.Left(!IsDigit(strOld.GetAt(1)) ? 2 : 1);
    }
    result += strBare;
    if (IsDigit(Last(strOld))) {
        while (!result.IsEmpty() && !IsDigit(Last(result))) {
            DropLast(result);
        }
        return result;
    }
    return IsDigit(strOld.GetAt(strOld.GetLength() - 2)) ? result : Closed(result);
}

Rows ReadBack(const CString& strPiece, int nType)
{
    Rows rows;
    if (strPiece.IsEmpty()) {
        rows.count = -1;
        rows.diameter = -1;
        rows.grade = RowOfGradeB;
        rows.upper = 0;
        rows.lower = 0;
        rows.terminator = RowOfNoTerminator;
        return rows;
    }
    std::string_view text = strPiece.View();
    if (IsDigit(text.back())) {
        rows.terminator = RowOfNoTerminator;
    } else if (const auto end =
                   std::find(Terminators.begin(), Terminators.end(), text.substr(text.size() - 1));
               end != Terminators.end()) {
        rows.terminator = static_cast<int>(end - Terminators.begin());
        text.remove_suffix(1);
    }
    if (!text.starts_with("+(") && TakeHead(text, "+")) {
        rows.later = 0;
    }
    for (const int type : {StarTorsion, NTorsion, SideStructural, Erection}) {
        if (TakeHead(text, HeadOf(type))) {
            rows.type = type;
        }
    }
    if (text.ends_with(')')) {
        text.remove_suffix(1);
    }
    ReadSplit(text, rows);
    ReadCore(text, rows);
    if (nType == TopThrough || nType == BottomThrough) {
        rows.type = nType;
    }
    return rows;
}

}  // namespace BarPiece
