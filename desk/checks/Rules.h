// The rules, one a function. Of a station they tell a field and what is wrong with it; those of names look
// at all beams.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "desk/checks/Checks.h"
#include "desk/checks/Station.h"

namespace Desk {

using Tell = std::function<void(Field, Message)>;

void CheckReadable(const Station& at, const Tell& tell);
void CheckSectionWidth(const Station& at, const Tell& tell);
void CheckSteelArea(const Station& at, const Tell& tell);
void CheckBarSpacing(const Station& at, const Tell& tell);
void CheckEndBars(const Station& at, const Tell& tell);
void CheckThroughBars(const Station& at, const Tell& tell);
void CheckStirrupSpacing(const Station& at, const Tell& tell);
void CheckStirrupDiameter(const Station& at, const Tell& tell);
void CheckStirrupLegs(const Station& at, const Tell& tell);

// Of the texts of a whole beam.
using TellAt = std::function<void(const FieldRef&, Message)>;
void CheckSupportBars(const Beam& beam, const TellAt& tell);

// Of a wall.
void CheckWallReadable(const Wall& wall, const Tell& tell);

// Of all beams: what a beam is called, read once, with numbers for texts, which are compared often.
struct NameParts {
    int floor = 0;
    int plan = 0;
    int type = 0;
    int serial = 0;
    char letter = '\0';
    bool isRead = false;
    int text = 0;

    bool operator==(const NameParts&) const = default;
    // Equal for beams that are one kind of beam by their names.
    [[nodiscard]] std::array<int, 5> Number() const { return {floor, plan, type, serial, letter}; }
};
class NameReader {
public:
    [[nodiscard]] NameParts Read(const Beam& beam);

private:
    std::map<std::string, int> m_numbers;  // of floors, types and names
};
void CheckNamesTwice(const Project& project, const std::vector<NameParts>& names, const TellAt& tell);
void CheckNameGaps(const Project& project, const std::vector<NameParts>& names, const TellAt& tell);

}  // namespace Desk
