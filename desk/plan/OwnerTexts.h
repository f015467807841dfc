// The annotation texts of one beam or wall on the plan: which text is in which line, and where.
#pragma once

#include <optional>
#include <vector>

#include "desk/plan/PlanItem.h"
#include "desk/project/Fields.h"

namespace Desk {

struct Label {
    Field field = Field::Name;
    QString text;  // as it is drawn, with what joins it to its neighbours
    QRectF box;    // in its block; as high as the text
    int inPlace = -1;
    // Where the drawing has the text: turned by degrees clockwise about the box's lower left corner, and
    // drawn as drawings have it.
    std::optional<double> turn = std::nullopt;
    QPointF anchor = {};  // stays where it is when the text is drawn larger

    // Makes it so high if it is lower.
    void Grow(double height);
    // It is one of the texts that lie together beside their beam.
    [[nodiscard]] bool IsInBlock() const
    {
        return !turn && inPlace < 0 && field != Field::LeftEnd && field != Field::RightEnd;
    }
    // From the text as it is read to where it is.
    [[nodiscard]] QTransform Turned() const;
    // The box with some room around it, turned.
    [[nodiscard]] QPolygonF Outline() const;
};

// The height of a beam's texts, which those without a position of their own take over.
[[nodiscard]] double HeightOf(const Beam& beam);

// The concentrated block: name and section, stirrups, through bars, side bars, elevation; its upper left
// corner at 0, 0. For a wall its name with the thickness and its bars. Empty texts have a label of a
// nominal width after or below the others, in which nothing is drawn. A beam whose name a drawing places
// has no block.
[[nodiscard]] std::vector<Label> BlockOf(const Beam& beam);
[[nodiscard]] std::vector<Label> BlockOf(const Wall& wall);
// The height that the block's lines with texts take, and the width of the longest.
[[nodiscard]] QSizeF SizeOf(const std::vector<Label>& block);

// The texts of a beam that a drawing places, on the sheet, and below the label's last line those that its
// label has no position for.
[[nodiscard]] std::vector<Label> PlacedTexts(const Beam& beam);
// A beam from -length / 2 to length / 2 as texts are read along it, its start at the right if it is
// reversed.
struct BeamBody {
    double length = 0.0;  // mm
    double width = 0.0;
    bool isReversed = false;
};
// The other texts of a beam: those at its ends, and texts in place by their role and number.
[[nodiscard]] std::vector<Label> TextsBeside(const Beam& beam, const BeamBody& body);

}  // namespace Desk
