// What the import makes of one text of a drawing: annotations in the module's grammar, and an account of
// everything that was filled in or left out on the way.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "desk/project/Fields.h"
#include "desk/reading/DrawingText.h"

namespace Desk {

// What an annotation is called where a text is told for what it is: lower case, and no more than a loose
// text says of itself.
[[nodiscard]] std::string PlainFieldName(Field field);

// The text is in the grammar of the field; an empty one is.
[[nodiscard]] bool IsOfField(std::string_view text, Field field);
// A text of the field, for messages.
[[nodiscard]] const char* ExampleOf(Field field);

struct Annotation {
    Field field = Field::Name;
    std::string text;
    Stretch at = {};  // where the plain text has it; empty where that cannot be told

    bool operator==(const Annotation& other) const { return field == other.field && text == other.text; }
};

// What the text did not say in the module's words, and how it was understood.
enum class Filled {
    Grade,       // a grade sign that does not say which grade
    LostGrade,   // no grade sign where one belongs
    Legs,        // a stirrup without legs
    LostMark,    // no "@" between diameter and spacing
    LostBlank,   // no blank in front of a row part
    Bracket,     // legs without their closing bracket
    NameHyphen,  // KL-1
    NameCase,    // kl1, KL13a: kept, but the module's name rules do not find type or serial
    RowSum       // a row part that does not add up to the bars
};
inline constexpr Filled AllFilled[] = {Filled::Grade,      Filled::LostGrade, Filled::Legs,
                                       Filled::LostMark,   Filled::LostBlank, Filled::Bracket,
                                       Filled::NameHyphen, Filled::NameCase,  Filled::RowSum};

enum class Outcome {
    Read,    // every character of the text is in an annotation
    InPart,  // some of it is left out; why tells what
    NoBeam,  // understood, but nothing that a beam or a wall holds; why tells what it is
    Unread   // not understood; why tells where it fails
};

struct Reading {
    Outcome outcome = Outcome::Unread;
    std::vector<Annotation> annotations;  // each field at most once; empty unless Read or InPart
    std::set<Filled> filled;
    std::string why;            // in words; empty when Read
    std::string contradiction;  // how the text and the kind given beside it disagree; mostly empty
};

// What to write where a drawing leaves something open.
struct Choices {
    char barGrade = 'B';
    char stirrupGrade = 'A';  // of stirrups and wall bars
    int legs = 2;             // 0: a stirrup without legs stays unread
};

[[nodiscard]] std::string FilledWords(Filled filled, const Choices& choices);

}  // namespace Desk
