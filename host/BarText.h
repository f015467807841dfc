// The reading rules of longitudinal bar annotations, as free functions on plain texts.
#pragma once

#include "host/Export.h"
#include "platform/text/CString.h"

namespace BarText {

// One bar term, count-grade-diameter: "2B25" is two bars of grade B, diameter 25 mm.
struct Term {
    int count = 0;
    int diameter = 0;  // mm
};

// Splits a term at its first "B", or at its first "A" when it has no "B". What stands left of the
// letter is the count, what stands right of it the diameter, each as far as it is a number; with
// neither letter both are 0. In "2B20+2B22" the diameter is 20.
[[nodiscard]] RANKER_API Term SplitTerm(const CString& text);

// The first piece of a candidate text: up to the first "+" or "/", without one leading "*", "N" or
// "G".
[[nodiscard]] RANKER_API CString HeadPiece(const CString& text);

// True when the head pieces of both texts have a grade letter, the second one's count is not above
// the first one's, and their diameter texts are equal. The letters are not compared.
[[nodiscard]] RANKER_API bool SameFirstDiameter(const CString& a, const CString& b);

// True when two pieces hold the same bars whatever their dressing: up to two characters that are no
// digits go from each end of each text, then the texts are compared.
[[nodiscard]] RANKER_API bool SameEssence(const CString& a, const CString& b);

}  // namespace BarText
