// Rules of names, which look at all beams of a floor.
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "desk/checks/Rules.h"
#include "desk/reading/BeamName.h"

namespace Desk {

namespace {

// What a label writes beside the name; bars at the ends differ from place to place.
constexpr Field OfLabel[] = {Field::Section,    Field::Elevation, Field::Stirrup, Field::TopBars,
                             Field::BottomBars, Field::Erection,  Field::Torsion, Field::Side};

// The first text in which two beams of a name differ; a text that only one of them has is written once.
std::optional<Field> Difference(const Beam& first, const Beam& second)
{
    for (const Field field : OfLabel) {
        const auto text = RowOf(field).ofBeam;
        if (first.*text != second.*text && !(first.*text).empty() && !(second.*text).empty()) {
            return field;
        }
    }
    return std::nullopt;
}

// Beams with a name that is read, in an order.
template <std::size_t Size, class KeyOf>
std::vector<std::pair<std::array<int, Size>, std::size_t>> Sorted(const std::vector<NameParts>& names,
                                                                  KeyOf keyOf)
{
    std::vector<std::pair<std::array<int, Size>, std::size_t>> sorted;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (names[i].isRead) {
            sorted.emplace_back(keyOf(names[i]), i);
        }
    }
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

Message Serials(const std::string& type, int from, int to)
{
    const std::string first = type + std::to_string(from);
    return from == to ? Message{Phrase("Desk", "there is no %1 before it"), first}
                      : Message{Phrase("Desk", "there are no %1 to %2 before it"), first,
                                type + std::to_string(to)};
}

}  // namespace

NameParts NameReader::Read(const Beam& beam)
{
    const std::optional<BeamName> read = ReadNameInAnyCase(beam.name);
    if (!read) {
        return {};
    }
    const auto number = [this](const std::string& text) {
        return m_numbers.emplace(text, static_cast<int>(m_numbers.size())).first->second;
    };
    return {number(beam.floor), beam.plan, number(read->type), read->serial,
            read->letter,       true,      number(beam.name)};
}

// One name on one floor is one kind of beam: rule of practice. On a drawing with several floors side by
// side each plan is a floor.
void CheckNamesTwice(const Project& project, const std::vector<NameParts>& names, const TellAt& tell)
{
    const auto sorted = Sorted<5>(names, [](const NameParts& name) { return name.Number(); });
    std::size_t first = 0;
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        if (sorted[i].first != sorted[first].first) {
            first = i;
            continue;
        }
        const Beam& one = project.beams[sorted[first].second];
        const Beam& other = project.beams[sorted[i].second];
        if (one.name != other.name) {
            tell({false, sorted[i].second, Field::Name},
                 {Phrase("Desk", "the number is that of %1 already"), one.name});
        } else if (const std::optional<Field> field = Difference(one, other)) {
            tell({false, sorted[i].second, *field},
                 {Phrase("Desk", "another %1 has %2"), one.name, one.*RowOf(*field).ofBeam});
        }
    }
}

// The numbers of a type run on; rule of practice. Plans side by side share the numbers of their floor.
void CheckNameGaps(const Project& project, const std::vector<NameParts>& names, const TellAt& tell)
{
    const auto sorted = Sorted<3>(names, [](const NameParts& name) {
        return std::array{name.floor, name.type, name.serial};
    });
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        const auto& [floor, type, serial] = sorted[i].first;
        const auto& [floorBefore, typeBefore, before] = sorted[i - 1].first;
        if (floor == floorBefore && type == typeBefore && serial > before + 1) {
            tell({false, sorted[i].second, Field::Name},
                 Serials(ReadNameInAnyCase(project.beams[sorted[i].second].name)->type, before + 1,
                         serial - 1));
        }
    }
}

}  // namespace Desk
