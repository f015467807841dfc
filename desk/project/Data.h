// The data of beams and walls that are no annotations: what each is called, how a person reads and writes
// it.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "desk/project/Failure.h"
#include "desk/project/Project.h"

namespace Desk {

enum class Datum {
    Floor,
    Concrete,
    SeismicClass,
    RequiredTop,
    RequiredBottom,
    RequiredLeft,
    RequiredRight,
    Spans,
    Thickness,
    Start,
    End,
};

struct DatumRow {
    Datum datum;
    const char* english;  // with the unit
    const char* chinese;
};

// In the order in which a person reads them.
[[nodiscard]] std::span<const DatumRow> DataOf(const Beam& beam);
[[nodiscard]] std::span<const DatumRow> DataOf(const Wall& wall);

// "C30", "6000 + 5700", "0, 8400". The datum must be one of the beam or the wall.
[[nodiscard]] std::string DatumText(const Beam& beam, Datum datum);
[[nodiscard]] std::string DatumText(const Wall& wall, Datum datum);

// Takes what a person typed; answers why it is refused, and nothing is changed then.
[[nodiscard]] std::optional<Message> SetDatum(Beam& beam, Datum datum, const std::string& text);
[[nodiscard]] std::optional<Message> SetDatum(Wall& wall, Datum datum, const std::string& text);

}  // namespace Desk
