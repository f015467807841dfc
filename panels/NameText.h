// Taking a beam name such as "KL3(2A)" apart and putting it together, as free functions on plain texts.
#pragma once

#include "host/Export.h"
#include "platform/text/CString.h"

namespace NameText {

// The four pieces of a beam name. Span and cantilever mark stand together in brackets behind the serial.
struct Fields {
    CString type;  // up to and including the last "L"
    CString serial;
    CString span;        // empty or "0" when the name has no span count
    CString cantilever;  // empty, "A" or "B"

    bool operator==(const Fields&) const = default;
};

// Cuts a name into the fields. False, with nothing changed, when it holds no "L". A name without "(" or
// without ")" leaves span and cantilever as they were. Pieces that stand the wrong way round are empty.
// Here and in Compose the name can be one of the fields.
RANKER_API bool Decompose(CString name, Fields& fields);

// Writes type and serial, and behind them the bracket with span and cantilever. False when there is
// neither a span nor a cantilever, which is no complete name: then type and serial stand alone.
RANKER_API bool Compose(const Fields& fields, CString& name);

// The digit that a row of a digit list stands for: rows 0 to 8 are "1" to "9", row 9 is "0". Empty for
// any other row.
[[nodiscard]] RANKER_API CString DigitOfRow(int row);

}  // namespace NameText
