// What a project has otherwise than another state of its file.
#pragma once

#include <vector>

#include "desk/Toolkit.h"
#include "desk/project/Project.h"

namespace Desk {

// Texts for people, in the interface's language.
struct Difference {
    QString owner;  // the beam or wall
    QString field;  // an annotation or a datum; empty where only one of the two has the beam or wall
    QString mine;
    QString theirs;
};

// Beams and walls are the same that lie in the same place, the same name first, or else have the same name;
// in the order of mine, and after them what only the other has.
[[nodiscard]] std::vector<Difference> DifferencesOf(const Project& mine, const Project& theirs);

// Lists them over a window until a person closes the list.
void ShowDifferences(QWidget& over, const QString& file, const std::vector<Difference>& differences);

}  // namespace Desk
