// Annotations that get one text together, and texts that go from one annotation or beam to others.
#pragma once

#include <optional>
#include <set>
#include <utility>
#include <vector>

#include <QtCore>

#include "desk/project/Fields.h"

class QMimeData;

namespace Desk {

using NewTexts = std::vector<std::pair<FieldRef, QString>>;

// A text of the one can be the other's: they are of one field, or both of bars without a head.
[[nodiscard]] bool TakeSameTexts(const FieldRef& one, const FieldRef& other);
// What of the beam or wall that was pointed at takes part with the annotation in work: the annotation
// itself where it takes the same texts, else the one that is alike. Nothing for a wall with a beam.
[[nodiscard]] std::optional<FieldRef> PartOf(const Project& project, const FieldRef& inWork,
                                             const FieldRef& pointedAt);

// All annotations of the field with the same text, also in place.
[[nodiscard]] std::vector<FieldRef> WithSameText(const Project& project, const FieldRef& ref);
// The annotation of all beams of the same type and section, of all walls of the same thickness.
[[nodiscard]] std::vector<FieldRef> OfLikeOwners(const Project& project, const FieldRef& ref);

// The others after one of the chosen annotations went on to another one of its beam: theirs that is alike.
[[nodiscard]] std::set<FieldRef> WentOn(const Project& project, const std::set<FieldRef>& others,
                                        const FieldRef& from, const FieldRef& to);

// NewTexts without their beam: of one annotation, or of a beam or wall all but its name.
struct Copied {
    bool isWall = false;
    std::vector<std::pair<Field, QString>> texts;
};

[[nodiscard]] Copied CopyOf(const Project& project, const FieldRef& ref);
[[nodiscard]] Copied CopyOfOwner(const Project& project, const FieldRef& owner);
// Where the texts go at an annotation that was pointed at: a single one to it where it can, else each to
// its own field of that beam or wall. Empty where they cannot go.
[[nodiscard]] NewTexts TextsAt(const FieldRef& pointedAt, const Copied& copied);

// On a clipboard: for other programs the texts line by line. A line of text from elsewhere is for the
// annotation that it is given to; nothing where there is no single line.
[[nodiscard]] QMimeData* ToClipboard(const Copied& copied);
[[nodiscard]] std::optional<Copied> FromClipboard(const QMimeData& data, const FieldRef& to);

}  // namespace Desk
