// From one annotation of a project to another, in reading order: beams first, then walls, and from the end
// to the beginning again.
#pragma once

#include <optional>

#include <QtCore>

#include "desk/project/Fields.h"

namespace Desk {

// The annotation of a beam or wall that is to it what the given one is to its own: of a text in place that
// at the same support or span, else the field that serves it.
[[nodiscard]] FieldRef Alike(const Project& project, FieldRef owner, const FieldRef& from);

// by is 1 for the next one, -1 for the previous one; from nothing: the first one, or the last. Nothing for
// a project without beams and walls.

// Another annotation of the same beam or wall, the texts in place after the others.
[[nodiscard]] std::optional<FieldRef> StepField(const Project& project, const std::optional<FieldRef>& from,
                                                int by);
// The same field of another beam or wall; its name where it does not have the field. From a text in place:
// that at the same support or span, else the field that serves it.
[[nodiscard]] std::optional<FieldRef> StepOwner(const Project& project, const std::optional<FieldRef>& from,
                                                int by);
// One of the texts that were wanted.
struct FoundText {
    FieldRef ref;
    int number = 0;  // among all, from 1
    int count = 0;
};
// Another text that contains the wanted one in any case of letters, or, where the wanted one is in quotes,
// is the same; the one that is left at last. Nothing when there is none.
[[nodiscard]] std::optional<FoundText> FindText(const Project& project, const std::optional<FieldRef>& from,
                                                int by, const QString& wanted);

}  // namespace Desk
