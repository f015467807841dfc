// The bar groups of a beam annotation: which type goes where, what each kind of annotation offers,
// and what is taken off a group's text before it leaves the panel.
#pragma once

#include <span>

#include "host/Export.h"
#include "platform/text/Arrays.h"
#include "platform/text/CString.h"

// One bar field of the beam. While the panel composes, the text is the join of the pieces.
struct BarGroup {
    CString m_strSteel;
    CStringArray m_arrPiece;
    int m_nFirstRow = -1;  // row of the first piece in the list of all pieces, -1 for an empty group
};

namespace BarGroups {

inline constexpr int Count = 5;

// The group that holds bars of a type: both torsion types share one. -1 for what is no type.
[[nodiscard]] RANKER_API int OfType(int nType);

[[nodiscard]] RANKER_API CString Join(const CStringArray& arrPiece);

// What the panel is open for: -1 all groups, 0 to 4 one group, 5 and 6 the end bars at the left and
// the right, 7 and 8 a top or bottom annotation with torsion and side bars. Any other number counts
// as -1. A panel that serves a property item (bToItem) offers a single bar field.
[[nodiscard]] constexpr bool IsOneGroup(int nKind) { return nKind >= 0 && nKind <= 4; }
[[nodiscard]] constexpr bool IsOneAnnotation(int nKind) { return nKind >= 5 && nKind <= 8; }

// Rows of the type list, as GBK texts.
[[nodiscard]] RANKER_API std::span<const char* const> TypeRows(int nKind, bool bToItem);
// The row that the panel opens on.
[[nodiscard]] RANKER_API int FirstRow(int nKind);
// Whether a click may choose the row. Row -1 is never allowed.
[[nodiscard]] RANKER_API bool IsAllowed(int nKind, bool bToItem, int nRow);

// Takes the terminator off a text when no other terminator character stands before it, so that
// "6B25 2/4;" keeps its own.
[[nodiscard]] RANKER_API CString WithoutTerminator(const CString& strGroup);
// "+(2B12+2B14);" gives "2B12+2B14".
[[nodiscard]] RANKER_API CString WithoutBrackets(const CString& strErection);

}  // namespace BarGroups
