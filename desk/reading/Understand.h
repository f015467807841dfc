// What a text is that a person typed for one annotation, by the grammars of all annotations of its beam or
// wall.
#pragma once

#include <string>
#include <vector>

#include "desk/project/Fields.h"

namespace Desk {

struct TextFor {
    FieldRef at;
    std::string text;

    bool operator==(const TextFor&) const = default;
};

// Nothing but fits, or fits is false and what is known instead follows.
struct Understood {
    // The text is in the grammar of its annotation, or the project has it there already.
    bool fits = false;
    // Where it fits instead, empty annotations first; at the annotation itself another spelling of the
    // text. Empty when the text is no annotation at all.
    std::vector<TextFor> instead;
    // What a text of several annotations says, such as "2B25+1B22;3B20" or a whole label.
    std::vector<TextFor> parts;
    // The parts are top and bottom bars of which the text is one or the other: they need no question.
    bool isSplit = false;
};

// The annotation must exist; the text is UTF-8 without blanks around it.
[[nodiscard]] Understood Understand(const Project& project, const FieldRef& at, const std::string& text);

}  // namespace Desk
