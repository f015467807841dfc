// The annotation texts of a drawing: labels, which are lines below a beam's name, and texts in place.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "desk/drawing/Outlines.h"
#include "desk/drawing/Placed.h"
#include "desk/reading/ReadText.h"

namespace Desk {

// One line of a text: the whole of a TEXT or ATTRIB, a line of an MTEXT.
struct TextLine {
    std::size_t placed = 0;  // index in the placed texts
    std::size_t part = 0;    // which line of it
    TextPlace place;         // as for PlacedText, of this line
    double length = 0.0;     // along the text, about
    std::string plain;
    std::vector<Stretch> spelled;         // by bytes of plain, in the entity's value
    Stretch whole;                        // of the line in the value
    std::vector<Annotation> annotations;  // in the module's grammar
    bool isWhole = false;                 // the annotations are all that the line says
};

struct FoundLabel {
    std::vector<std::size_t> lines;  // the name's line first, downwards
    std::optional<PlanPoint> leaderEnd;
    Frame frame;          // of its texts
    double top = 0.0;     // v of the name's upper edge
    double bottom = 0.0;  // v of the last line's lower edge
    double from = 0.0;    // u of the texts' start
    double to = 0.0;      // u of the longest line's end, about
};

struct FoundTexts {
    std::vector<TextLine> lines;       // with an annotation
    std::vector<FoundLabel> labels;    // in the file's order
    std::vector<std::size_t> inPlace;  // lines that are in no label
};

[[nodiscard]] FoundTexts FindTexts(const DxfFile& file, const Placed& placed);

}  // namespace Desk
