// AnalyseBarComment: reads the text of a wall's distributed bars, such as "A10@100/200".
#pragma once

#include "bartext/Export.h"
#include "platform/text/CString.h"

// Reads [count]grade diameter[.tenths][@tight[/normal]], blanks between them and row counts in brackets
// behind a number allowed, whatever stands in front of it or behind: "A10@100/200", "B6.5@150",
// "2A8@200(2)", "C14", "C25 A8@200". The diameter is the number in front of the "@", or else the one behind
// the grade. The grade is the letter A to D in front of the diameter, or else the first one that a digit
// follows, or else the first one. A text without a grade letter begins with the diameter.
//
// All outputs are written for every text, 0 for what it lacks; a number too large for an int gives the
// largest one. True when grade and diameter were found.
//   nGrade      1 to 4 for A to D, 0 for none
//   nDiameter   whole part, mm
//   nTight      spacing, of the dense zone where there are two, mm
//   nNormal     spacing outside of it, mm
//   pnTenths    tenths of the diameter, 0 to 9, further digits dropped; may be null
BARTEXT_API bool AnalyseBarComment(CString strText, int& nGrade, int& nDiameter, int& nTight, int& nNormal,
                                   int* pnTenths);
