// Where everything of a cross section lies, and what is wrong with it.
#pragma once

#include <string>
#include <vector>

#include "desk/project/Fields.h"
#include "desk/reading/Section.h"

namespace Desk {

// Positions in mm from the upper left corner of the section.
struct BarDot {
    double x = 0.0;
    double y = 0.0;
    int diameter = 0;
};

enum class Fault { NoSize, Unreadable, TooWide, TooLittleSteel };

struct SectionFault {
    Fault fault = Fault::Unreadable;
    Field field = Field::Section;  // whose text it is
};

// A text beside the section, and whether its steel is enough.
struct SectionNote {
    Field field = Field::TopBars;
    std::string text;
    double area = 0.0;  // mm², 0 for bars that carry no required area
    int required = 0;   // mm²
};

struct SectionLayout {
    Section size;
    double cover = 0.0;             // mm from the face to the stirrup
    int stirrup = 0;                // mm, its diameter; 0 for none
    std::vector<double> innerLegs;  // x of the legs between the two outer ones
    std::vector<BarDot> dots;
    std::vector<SectionNote> notes;  // top, sides, bottom
    std::vector<SectionFault> faults;
};

// The section where the field counts: at the left or the right end for their bars, else in the span.
[[nodiscard]] SectionLayout LayOutSection(const Beam& beam, Field field);

}  // namespace Desk
