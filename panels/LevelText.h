// What each key of the elevation keypad makes of a text such as "(-0.300)", as free functions on plain
// texts.
#pragma once

#include "host/Export.h"
#include "platform/text/CString.h"

namespace LevelText {

// Adds a text at the end, inside the brackets of a text that begins with "(".
RANKER_API void Add(CString& level, const CString& text);

// The other keys answer whether they apply; one that does not leaves the text alone.
RANKER_API bool AddPoint(CString& level);     // not behind another point
RANKER_API bool AddMinus(CString& level);     // in front, inside the brackets; not beside another minus
RANKER_API bool AddBrackets(CString& level);  // around the whole; not where there is a "("
// Takes the brackets off a text with a ")", else its last character, a GBK pair as a whole. Not on an
// empty text.
RANKER_API bool TakeBack(CString& level);

}  // namespace LevelText
