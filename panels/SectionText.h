// Taking a beam section such as "300x600" apart and putting it together, as free functions on plain texts.
#pragma once

#include "host/Export.h"
#include "platform/text/CString.h"

namespace SectionText {

// A section's numbers as texts, in mm, and the sign between them. The sign outlives a text: one with
// "x" takes the sign that is there.
struct Fields {
    CString separator;
    CString width;
    CString height;

    bool operator==(const Fields&) const = default;
};

// Cuts the tail, from the first blank and then from the first "/" on, off the text itself, and the rest
// into the fields. False, with nothing changed, for an empty text. The sign is "x", else "X", else "*",
// the first that occurs; a text with none of them is all height and turns the sign to "*".
RANKER_API bool Decompose(CString& text, Fields& fields);

// Width, sign, height.
[[nodiscard]] RANKER_API CString Compose(const Fields& fields);

}  // namespace SectionText
