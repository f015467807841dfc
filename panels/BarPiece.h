// One piece of a bar group as text: composed from column texts, dressed, rewritten and read back.
#pragma once

#include <array>
#include <optional>

#include "host/Export.h"
#include "platform/text/CString.h"

// A bare piece is count, grade, diameter, a row split where there is one, and the terminator:
// "2B25;", "6B25 2/4 ". What stands around it, "+", "*", "N", "G", "+(" and ")", follows from its
// type and from where it stands in its group. Only a group's last piece ends in ")" and terminator.
namespace BarPiece {

// What the column lists of the bar panel offer, by row. The lists of upper and lower counts have a
// row for none in front of the counts, so that their row number is the count.
inline constexpr std::array Counts = {"1", "2", "3", "4", "5", "6", "7", "8"};
inline constexpr std::array Grades = {"A", "B", "C", "D"};
inline constexpr std::array Diameters = {"10", "12", "14", "16", "18", "20", "22", "25"};  // mm
inline constexpr std::array Terminators = {";", ",", " "};

inline constexpr int RowOfGradeB = 1;
inline constexpr int RowOfNoTerminator = 2;  // the list shows it as a word, the piece gets a blank

// Rows of the type list.
enum Type { TopThrough, BottomThrough, Erection, StarTorsion, NTorsion, SideStructural, TypeCount };

struct Columns {
    CString count;
    CString grade;
    CString diameter;
    CString upper;  // bars in the upper and the lower row, empty for none
    CString lower;
    CString terminator;
};

// The bare piece. A row split is written only when both counts are there.
[[nodiscard]] RANKER_API CString Compose(const Columns& columns);

// What stands in front of the first piece of a group of that type.
[[nodiscard]] RANKER_API const char* HeadOf(int nType);
// A bare piece as first and only piece of its group.
[[nodiscard]] RANKER_API CString HeadFirst(int nType, const CString& strBare);

// Lets a piece follow a group's last one: takes the tail from the group's text and from that last
// piece, and gives the follower the closing bracket where the type has one.
RANKER_API void OpenEnd(int nType, CString& strGroup, CString& strLast, CString& strFollower);
// What closes the last piece of a group: terminator, with the bracket where the type has one.
[[nodiscard]] RANKER_API CString TailOf(int nType, const CString& strLast);

// The bare piece with the head and tail of the old one.
[[nodiscard]] RANKER_API CString Replace(const CString& strBare, const CString& strOld);

// List rows that show a piece. Absent: the list stays as it is; -1: no row.
struct Rows {
    std::optional<int> type;
    std::optional<int> later;  // the list that marks a piece of another diameter
    std::optional<int> count;
    std::optional<int> grade;
    std::optional<int> diameter;
    std::optional<int> upper;
    std::optional<int> lower;
    std::optional<int> terminator;

    bool operator==(const Rows&) const = default;
};

// Reads a piece from the outside in: terminator, "+", heads, bracket, row split, core. nType 0 or 1
// selects that row of the type list, any other value leaves it to the head. The empty text gives
// the lists' start state. A text that the panel did not write gives rows for what is recognised.
[[nodiscard]] RANKER_API Rows ReadBack(const CString& strPiece, int nType);

}  // namespace BarPiece
