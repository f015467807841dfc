// What a person calls the annotations and the beams and walls that they belong to.
#pragma once

#include <QtCore>

#include "desk/project/Fields.h"

namespace Desk {

// "Stirrups"; in the interface's language.
[[nodiscard]] QString FieldName(Field field);

// "Stirrups", of a text in place "Top bars at support 2". The annotation must exist.
[[nodiscard]] QString FieldName(const Project& project, const FieldRef& ref);

// "KL1(7)", "Wall Q1", or "Beam 12" counted from 1 when it has no name. The beam or wall must exist.
[[nodiscard]] QString OwnerName(const Project& project, const FieldRef& ref);

// What a beam or wall is called and all its texts, with the area of bars, as rich text; the given one
// stands out.
[[nodiscard]] QString OwnerTip(const Project& project, const FieldRef& ref);

}  // namespace Desk
