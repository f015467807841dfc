// What a drawing is made of, between reading and writing.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "desk/drawing/Drawing.h"
#include "desk/drawing/Labels.h"
#include "desk/drawing/Owners.h"

namespace Desk {

// Where the drawing has an annotation.
struct Source {
    std::size_t line = 0;        // of FoundTexts::lines
    std::size_t annotation = 0;  // of that line
};

struct Drawing::Parts {
    DxfFile file;
    Placed placed;
    FoundTexts found;
    std::unique_ptr<Owners> owners;
    Project project;
    Backdrop behind;
    std::vector<AnnotationText> texts;
    std::vector<std::size_t> lineOf;  // parallel to the texts: indices of found.lines
    // By beam, parallel to BeamFields(): where its own texts come from.
    std::vector<std::vector<std::optional<Source>>> sources;

    [[nodiscard]] const TextEntity& EntityOf(const TextLine& line) const
    {
        return *placed.texts[line.placed].text;
    }
    // The line of a label that goes the same way and is nearest, as a TEXT of its own; null for none.
    [[nodiscard]] const TextLine* LabelLike(const Frame& frame, const PlanPoint& near) const;
    // Of a text in place of a beam; nothing for one that the drawing does not have.
    [[nodiscard]] std::optional<Source> SourceOf(const InPlace& text) const;
};

// What Drawing::Parse makes of a file and its companion.
[[nodiscard]] std::unique_ptr<Drawing::Parts> ReadParts(std::string bytes, const std::string& name,
                                                        std::string_view companion);
// The texts in place that one text of the drawing is for its beam.
[[nodiscard]] std::vector<InPlace> InPlaceOf(const Drawing::Parts& parts, std::size_t text,
                                             const OwnerText& owner);
// The plan is as drawn, spans are as long as dimensions say.
void SetAxis(Beam& beam, const OwnerBeam& owner, double unit);
[[nodiscard]] inline PlanPoint MiddleOf(const Beam& beam)
{
    return {(beam.start.x + beam.end.x) / 2.0, (beam.start.y + beam.end.y) / 2.0};
}
// The ends of the beams of a project that have a label, but for those from an index on.
[[nodiscard]] std::vector<PlanLine> Labelled(const Project& project, std::size_t end);
// Where BeamFields() has a field.
[[nodiscard]] std::size_t NumberOf(Field field);

// Gives use the drawing with its texts as those of a project that was edited, in pieces: a large file is
// not copied in memory to be written.
void WriteEdited(const Drawing::Parts& parts, const Project& edited,
                 const std::function<void(std::span<const std::string_view>)>& use);

}  // namespace Desk
