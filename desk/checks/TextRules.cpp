// Rules of what a text says by itself.
#include <algorithm>
#include <cmath>

#include "desk/checks/Rules.h"
#include "desk/reading/Annotation.h"

namespace Desk {

namespace {

Message Unreadable(Field field)
{
    return {Phrase("Desk", "cannot be read; an example: %1"), std::string(ExampleOf(field))};
}

}  // namespace

// Each field by its own grammar; rule of practice.
void CheckReadable(const Station& at, const Tell& tell)
{
    for (const Field field : BeamFields()) {
        if (at.Looks(field) && !IsOfField(at.Text(field), field)) {
            tell(field, Unreadable(field));
        }
    }
}

void CheckWallReadable(const Wall& wall, const Tell& tell)
{
    for (const Field field : {Field::HorizontalBars, Field::VerticalBars}) {
        if (!IsOfField(wall.*RowOf(field).ofWall, field)) {
            tell(field, Unreadable(field));
        }
    }
}

// The outline of a beam is drawn as wide as its section says; rule of practice. Outlines are found again
// to within 12 mm.
void CheckSectionWidth(const Station& at, const Tell& tell)
{
    constexpr double Same = 12.0;
    const auto drawn = at.beam.drawnWidth;
    if (at.Looks(Field::Section) && at.section && at.section->width > 0 && drawn > 0.0 &&
        std::abs(drawn - at.section->width) > Same) {
        tell(Field::Section, {Phrase("Desk", "drawn %1 mm wide"), std::to_string(std::lround(drawn))});
    }
}

}  // namespace Desk
