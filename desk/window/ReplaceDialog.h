// Find and replace in the annotations of a project.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "desk/Toolkit.h"
#include "desk/window/Group.h"

namespace Desk {

struct Sought {
    QString what;
    QString by;
    std::optional<Field> field;  // nothing for all fields
    QString type;                // letters of beams' names, "L"; empty for all beams and walls
};

struct Hit {
    FieldRef ref;
    QString before;
    QString after;
};

// All that the replacement changes, in reading order. A number is found whole: 2B25 is not in 12B25. No
// name becomes empty.
[[nodiscard]] std::vector<Hit> HitsOf(const Project& project, const Sought& sought);

// Asks over a window, beginning with the text of an annotation; the new texts of the hits that a person
// left ticked, none where that was given up.
[[nodiscard]] NewTexts AskReplace(QWidget& over, const Project& project,
                                  const std::optional<FieldRef>& from);

}  // namespace Desk
