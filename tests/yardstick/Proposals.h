// Yardstick of the proposals: the votes of the beams most alike, written as one says them, for a beam's own
// texts where no steel is required and nothing is in place; and floors made of bytes to compare on.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "desk/project/Generate.h"
#include "desk/ranking/Proposals.h"
#include "desk/reading/Bars.h"
#include "desk/reading/BeamName.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"

namespace Yardstick {

using namespace Desk;

struct Floor {
    const Project& project;
    std::size_t beam;  // that is asked for
    Field field;
    bool isDrawn;  // only beams before it are known

    struct Use {
        std::size_t beam;
        Field field;
    };

    [[nodiscard]] const Beam& Asked() const { return project.beams[beam]; }
    static const std::string& TextOf(const Beam& of, Field field) { return of.*RowOf(field).ofBeam; }
    [[nodiscard]] bool IsKnown(std::size_t other) const
    {
        return other != beam && (!isDrawn || other < beam);
    }
    // Where it comes in the order of entry; what is not named there comes last.
    static int Entry(Field field)
    {
        static const std::vector<Field> order = {Field::Name, Field::Section, Field::Stirrup,
                                                 Field::TopBars};
        return static_cast<int>(std::find(order.begin(), order.end(), field) - order.begin());
    }
    [[nodiscard]] bool Knows(Field known) const { return Entry(known) < Entry(field); }

    static std::string Family(const BeamName& name)
    {
        std::string type = name.type;
        for (char& c : type) {
            c = static_cast<char>(std::toupper(c));
        }
        return type.ends_with("KL") ? "KL" : type == "LLK" ? "LL" : type;
    }
    static std::int64_t Middle(double a, double b) { return std::llround(a) + std::llround(b); }
    static char Direction(const Beam& of)
    {
        const auto dx = std::abs(std::llround(of.start.x) - std::llround(of.end.x));
        const auto dy = std::abs(std::llround(of.start.y) - std::llround(of.end.y));
        return dx > dy ? 'x' : dx < dy ? 'y' : dx > 0 ? '/' : ' ';
    }
    static std::int64_t Along(const Beam& of)
    {
        return Direction(of) == 'y' ? Middle(of.start.y, of.end.y) : Middle(of.start.x, of.end.x);
    }

    [[nodiscard]] bool IsAnnotated(const Beam& of) const
    {
        if (field == Field::Name || field == Field::Section) {
            return !of.section.empty();
        }
        const auto& fields = BeamFields();
        return std::any_of(fields.begin(), fields.end(), [&of](Field each) {
            return each != Field::Name && each != Field::Section && each != Field::Elevation &&
                   !TextOf(of, each).empty();
        });
    }

    // The nearest three 3, the next two 2, the next four 1; those of the same direction first.
    [[nodiscard]] std::map<std::size_t, int> Nearness() const
    {
        struct Near {
            bool isTurned;
            std::int64_t distance;
            std::size_t beam;
        };
        std::vector<Near> near;
        for (std::size_t i = 0; i < project.beams.size(); ++i) {
            const Beam& other = project.beams[i];
            if (IsKnown(i) && IsAnnotated(other) && Direction(other) != ' ' && Direction(Asked()) != ' ') {
                const std::int64_t x =
                    Middle(Asked().start.x, Asked().end.x) - Middle(other.start.x, other.end.x);
                const std::int64_t y =
                    Middle(Asked().start.y, Asked().end.y) - Middle(other.start.y, other.end.y);
                near.push_back({Direction(other) != Direction(Asked()), x * x + y * y, i});
            }
        }
        std::sort(near.begin(), near.end(), [](const Near& a, const Near& b) {
            return std::tuple(a.isTurned, a.distance, b.beam) < std::tuple(b.isTurned, b.distance, a.beam);
        });
        std::map<std::size_t, int> nearness;
        for (std::size_t i = 0; i < std::min<std::size_t>(near.size(), 9); ++i) {
            nearness[near[i].beam] = i < 3 ? 3 : i < 5 ? 2 : 1;
        }
        return nearness;
    }

    [[nodiscard]] int Points(std::size_t of, const std::map<std::size_t, int>& nearness) const
    {
        const Beam& other = project.beams[of];
        const auto near = nearness.find(of);
        int points = near == nearness.end() ? 0 : near->second;
        points += (Direction(Asked()) == 'x' || Direction(Asked()) == 'y') &&
                          Direction(other) == Direction(Asked()) &&
                          std::abs(Along(other) - Along(Asked())) <= 1000
                      ? 1
                      : 0;
        const std::optional<BeamName> a = ReadName(Asked().name);
        const std::optional<BeamName> b = ReadName(other.name);
        if (Knows(Field::Name) && a && b) {
            points += Family(*a) == Family(*b) ? 3 : 0;
            points += a->spans == b->spans && a->cantilever == b->cantilever ? 1 : 0;
            points += a->type == b->type && std::abs(a->serial - b->serial) == 1 ? 1 : 0;
        }
        if (Knows(Field::Section) && !Asked().section.empty()) {
            const std::optional<Section> mine = ReadSection(Asked().section);
            const std::optional<Section> its = ReadSection(other.section);
            const int height = its ? its->height : 0;
            points += mine && mine->width > 0 && its && mine->width == its->width ? 1 : 0;
            points += mine && mine->width > 0 && mine->height == height ? 1 : 0;
            points += Asked().section == other.section ? 2 : 0;
        }
        points += Knows(Field::Stirrup) && Asked().stirrup == other.stirrup ? 3 : 0;
        points += Knows(Field::TopBars) && Asked().topBars == other.topBars ? 3 : 0;
        return points;
    }

    [[nodiscard]] bool IsReadable(const std::string& text) const
    {
        switch (RowOf(field).ranker) {
        case Ranker::Sections: return ReadSection(text).has_value();
        case Ranker::Elevations: return ReadElevation(text).has_value();
        case Ranker::Stirrups: return ReadStirrup(text).has_value();
        default: return ReadBars(text).has_value();
        }
    }

    // "text share uses" of each text in order.
    [[nodiscard]] std::vector<std::string> Told() const
    {
        struct Text {
            std::int64_t votes = 0;
            int uses = 0;
            std::size_t last = 0;
        };
        std::map<std::string, Text> texts;
        const bool isEnd = field == Field::LeftEnd || field == Field::RightEnd;
        const auto use = [&](std::size_t at, const std::string& text) {
            if (!text.empty() && IsReadable(text)) {
                ++texts[text].uses;
                texts[text].last = std::max(texts[text].last, at);
            }
        };
        for (std::size_t i = 0; i < project.beams.size(); ++i) {
            if (IsKnown(i)) {
                use(i, TextOf(project.beams[i], isEnd ? Field::LeftEnd : field));
                use(i, isEnd ? project.beams[i].rightEnd : "");
            }
        }
        const std::map<std::size_t, int> nearness = Nearness();
        std::vector<std::pair<int, std::size_t>> voters;
        for (std::size_t i = 0; i < project.beams.size(); ++i) {
            const std::string& text = TextOf(project.beams[i], field);
            if (IsKnown(i) && !text.empty() && IsReadable(text)) {
                voters.emplace_back(Points(i, nearness), i);
            }
        }
        std::sort(voters.rbegin(), voters.rend());
        voters.resize(std::min<std::size_t>(voters.size(), 16));
        std::int64_t all = 0;
        const auto vote = [&](const std::string& text, int points) {
            texts[text].votes += std::int64_t{1} << points;
            all += std::int64_t{1} << points;
        };
        for (const auto& [points, voter] : voters) {
            vote(TextOf(project.beams[voter], field), points);
        }
        if (field == Field::RightEnd && !Asked().leftEnd.empty() && IsReadable(Asked().leftEnd)) {
            use(beam, Asked().leftEnd);
            vote(Asked().leftEnd, 16);
        }
        std::vector<std::pair<std::string, Text>> order(texts.begin(), texts.end());
        std::stable_sort(order.begin(), order.end(), [](const auto& a, const auto& b) {
            const auto key = [](const Text& of) { return std::tuple(of.votes, of.uses, of.last); };
            return key(a.second) > key(b.second);
        });
        std::vector<std::string> told;
        for (const auto& [text, of] : order) {
            const auto share = of.votes == 0 ? 0 : std::max<std::int64_t>(1, of.votes * 100 / all);
            told.push_back(text + ' ' + std::to_string(share) + ' ' + std::to_string(of.uses));
        }
        return told;
    }
};

// What the proposer says, as Told.
inline std::vector<std::string> Said(const Proposer& proposer, const FieldRef& ref, Known known)
{
    std::vector<std::string> said;
    for (const Proposal& each : proposer.For(ref, 1000, known)) {
        said.push_back(each.text + ' ' + std::to_string(each.share) + ' ' + std::to_string(each.uses));
    }
    return said;
}

// Beams of five bytes each. Few different texts, so that ties are many.
inline Project FloorOf(const std::uint8_t* data, std::size_t size, bool withInPlace)
{
    Project project;
    for (std::size_t i = 0; i + 5 <= size && project.beams.size() < 60; i += 5) {
        const auto part = [&data, i](int byte, int from, int count) {
            return (data[i + static_cast<std::size_t>(byte)] >> from) % count;
        };
        const auto pick = [](int at, std::vector<const char*> texts) {
            return std::string(texts[static_cast<std::size_t>(at)]);
        };
        Beam& beam = project.beams.emplace_back();
        beam.name = pick(part(0, 0, 7), {"KL", "L", "WKL", "LLk", "LL", "roof", ""});
        if (beam.name.ends_with("L") || beam.name == "LLk") {
            beam.name += std::to_string(part(0, 3, 31) + 1) + pick(part(4, 4, 3), {"(1)", "(2A)", ""});
        }
        beam.section = pick(part(1, 0, 8), {"", "300x600", "300x700", "250x600", "300X600", "wide",
                                            "300x600/500", "250x500"});
        beam.elevation = pick(part(1, 3, 4), {"", "", "-0.050", "low"});
        beam.stirrup = pick(part(1, 5, 4), {"", "A8@100/200(2)", "A8@200(2)", "as drawn"});
        beam.topBars = pick(part(2, 0, 4), {"", "2B16", "2B20", "2B25"});
        beam.bottomBars = pick(part(2, 2, 4), {"", "3B22", "2B25+1B22", "as KL1"});
        beam.leftEnd = pick(part(2, 4, 4), {"", "4B25", "4B20", "2B20+2B16"});
        beam.rightEnd = pick(part(2, 6, 4), {"", "4B25", "4B20", "2B20+2B16"});
        beam.side = pick(part(4, 6, 3), {"", "G4B12", "G6B12"});
        beam.start = {3000.0 * part(3, 0, 8) + 400.5 * part(4, 2, 3), 3000.0 * part(3, 3, 8)};
        const PlanPoint extents[] = {{4000, 0}, {0, 4000}, {4000, 4000}, {0, 0}};
        const PlanPoint extent = extents[part(4, 0, 4)];
        beam.end = {beam.start.x + extent.x, beam.start.y + extent.y};
        if (withInPlace && part(3, 6, 4) > 0) {
            beam.spans = {2000, 2000};
            beam.inPlace = {
                {Role::TopSupport, part(0, 4, 3) + 1, beam.rightEnd, {}, -1, {}},
                {Role::TopSupport, part(0, 2, 3) + 1, beam.leftEnd, {}, -1, {}},
                {Role::Bottom, part(3, 1, 2) + 1, pick(part(3, 4, 3), {"4B22", "3B22", ""}), {}, -1, {}},
                {Role::Bottom, part(3, 2, 2) + 1, "3B25", {}, -1, {}},
            };
            beam.area = {700, 300 * part(3, 6, 4), 900, 1200};
        }
    }
    return project;
}

// A floor as the benchmarks have them, without the steel that would come before the rule.
inline Project Generated(int beams, unsigned seed)
{
    Project project = GenerateProject(beams, seed);
    for (Beam& beam : project.beams) {
        beam.area = {};
    }
    return project;
}

// How the proposer differs from the yardstick, where texts go by its rule alone, or from itself after a
// change or for the text it asks of; empty where it does not.
inline std::string Differs(const Project& project, bool isByTheRuleAlone)
{
    Project changed = project;
    Proposer kept(changed);
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        // Turns each beam into another one and back; every third stays the other one.
        const std::size_t other = (i * 7 + 3) % project.beams.size();
        const Beam own = changed.beams[i];
        changed.beams[i] = project.beams[other];
        kept.Update(i);
        (void)kept.For({false, other, Field::TopBars}, 3, i % 2 == 0 ? Known::All : Known::Before);
        if (i % 3 != 0) {
            changed.beams[i] = own;
            kept.Update(i);
        }
    }
    const Proposer fresh(changed);
    for (const Known known : {Known::Before, Known::All}) {
        for (std::size_t i = 0; i < changed.beams.size(); ++i) {
            const auto sets = [i, known](const Proposer& of) {
                std::string told;
                for (const BeamProposal& each : of.ForBeam(i, 100, known)) {
                    told += std::to_string(each.share) + each.reason.English();
                    for (const auto& [ref, text] : each.texts) {
                        told += text;
                    }
                }
                return told;
            };
            if (sets(kept) != sets(fresh)) {
                return "beam " + std::to_string(i) + ": otherwise after changes";
            }
            for (const FieldRef& ref : RefsOf(changed, {false, i})) {
                const std::vector<std::string> said = Said(fresh, ref, known);
                const std::string where = "beam " + std::to_string(i) + ' ' + RowOf(ref.field).key + ' ' +
                                          std::to_string(ref.inPlace) +
                                          (known == Known::All ? " of all" : " of those before");
                if (Said(kept, ref, known) != said) {
                    return where + ": otherwise after changes";
                }
                const std::string& own = TextAt(changed, ref);
                const auto at = std::find_if(said.begin(), said.end(), [&own](const std::string& each) {
                    return each.substr(0, each.find_last_of(' ', each.find_last_of(' ') - 1)) == own;
                });
                const std::size_t place =
                    at == said.end() ? 0 : static_cast<std::size_t>(at - said.begin()) + 1;
                if (kept.PlaceOf(ref, known) != place) {
                    return where + ": at place " + std::to_string(place) + ", not " +
                           std::to_string(kept.PlaceOf(ref, known));
                }
                if (!isByTheRuleAlone || ref.field == Field::Name) {
                    continue;
                }
                // Slow: a part of the fields at each beam.
                if ((static_cast<std::size_t>(ref.field) + i) % 3 != 0) {
                    continue;
                }
                const Floor floor = {changed, i, ref.field, known == Known::Before};
                if (floor.Told() != said) {
                    std::string told = where + ": said";
                    for (const std::string& each : said) {
                        told += ", " + each;
                    }
                    told += "; but it is";
                    for (const std::string& each : floor.Told()) {
                        told += ", " + each;
                    }
                    return told;
                }
            }
        }
    }
    return "";
}

}  // namespace Yardstick
