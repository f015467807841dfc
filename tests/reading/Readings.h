// What the tests of the import say about a reading.
#pragma once

#include <algorithm>
#include <string>

#include "desk/reading/DrawingText.h"
#include "desk/reading/ReadText.h"

namespace Desk {

// "name KL1, section 250x600"; for a text that gives no annotation "-" or, when it belongs to no beam, "no
// beam". In front of what was read in part stands "part: ".
inline std::string Told(const Reading& reading)
{
    if (reading.annotations.empty()) {
        return reading.outcome == Outcome::NoBeam ? "no beam" : "-";
    }
    std::string told = reading.outcome == Outcome::InPart ? "part:" : "";
    for (const Annotation& annotation : reading.annotations) {
        told.append(told.empty() ? "" : told == "part:" ? " " : ", ");
        told.append(PlainFieldName(annotation.field)).append(" ").append(annotation.text);
    }
    return told;
}

// The digits of a text, sorted.
inline std::string Digits(std::string_view text)
{
    std::string digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
                 [](char ch) { return ch >= '0' && ch <= '9'; });
    std::sort(digits.begin(), digits.end());
    return digits;
}

// Empty when a reading is sound: its parts fit together, and every digit of the text stands in an
// annotation or among what was left out, and none stands there that the text does not have.
inline std::string Fault(std::string_view drawn, const Reading& reading, const Choices& choices)
{
    const bool takes = reading.outcome == Outcome::Read || reading.outcome == Outcome::InPart;
    if (takes == reading.annotations.empty()) {
        return "annotations against the outcome";
    }
    if ((reading.outcome == Outcome::Read) != reading.why.empty()) {
        return "a reason against the outcome";
    }
    std::string given = PlainText(drawn);
    std::string found = reading.why;
    for (const Annotation& annotation : reading.annotations) {
        found += annotation.text;
    }
    if (reading.filled.count(Filled::Legs) > 0) {
        given += std::to_string(choices.legs);
    }
    return takes && Digits(given) != Digits(found) ? "digits lost or made up: " + Told(reading) : "";
}

}  // namespace Desk
