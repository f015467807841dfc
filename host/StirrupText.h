// The text rules of stirrup annotations, <grade><diameter>@[<tight>[(<tight legs>)]/]<spacing>(<legs>),
// as free functions on plain values.
#pragma once

#include "host/Export.h"
#include "platform/text/CString.h"

namespace StirrupText {

// The six fields of a stirrup annotation as texts. Diameter and spacings in mm; legs as bare numbers
// when a text was cut, with or without brackets when a person typed them. Empty means absent.
struct Fields {
    CString grade;
    CString diameter;
    CString tightSpacing;
    CString tightLegs;
    CString spacing;
    CString legs;

    bool operator==(const Fields&) const = default;
};

// Cuts a text into the fields and returns whether it reached the legs. Fields that the text does not
// reach keep what they held: all of them for a text without spacing mark ("@", or "-" when there is
// no "@") or without grade letter, spacing and legs for one without "(" behind the spacing. The text
// can be one of the fields.
RANKER_API bool Decompose(CString text, Fields& fields);

// What the order of stirrups goes by: numbers of diameter, spacing and tight spacing in mm and the
// number of legs, 0 for what the text lacks. Of the legs only the one character behind the "("
// counts, also when the bracket is not closed.
struct Measures {
    int diameter = 0;
    int spacing = 0;
    int tightSpacing = 0;
    int legs = 0;

    auto operator<=>(const Measures&) const = default;
};
[[nodiscard]] RANKER_API Measures Measure(const CString& text);

// Composes from list rows, where legs hold their brackets and an absent tight zone is empty:
// "/" stands only behind a tight spacing. Tight legs without tight spacing are left out.
[[nodiscard]] RANKER_API CString ComposeFromRows(const Fields& rows);

// Composes from typed boxes: trims every field in place, clears tight legs without tight spacing,
// puts brackets around legs that have none, and writes the text. Returns false and leaves the text
// alone when grade, diameter, spacing or legs are empty; what was done to the fields so far stays.
RANKER_API bool ComposeFromBoxes(Fields& boxes, CString& text);

// The same stirrup with a tight zone of spacing 100: "100/" behind the first "@", or in front of a
// text without one.
[[nodiscard]] RANKER_API CString TightForm(const CString& text);

}  // namespace StirrupText
