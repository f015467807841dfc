#include "desk/checks/Checks.h"

#include <algorithm>
#include <set>
#include <span>
#include <tuple>
#include <utility>

#include "desk/checks/Rules.h"

namespace Desk {

namespace {

Message Practice() { return Phrase("Desk", "rule of practice"); }
Message Code(const char* clauses) { return std::string("GB 50010-2010 (2015), ") + clauses; }

// By their order in the list.
enum class Which {
    Unreadable,
    SteelArea,
    BarSpacing,
    EndBars,
    ThroughBars,
    SupportBars,
    StirrupSpacing,
    StirrupDiameter,
    StirrupLegs,
    SectionWidth,
    NameTwice,
    NameGap
};

const std::vector<Rule>& Table()
{
    static const std::vector<Rule> rules = {
        {"unreadable", Phrase("Desk", "Text that cannot be read"), Practice()},
        {"steel-area", Phrase("Desk", "Less steel than required"), Practice()},
        {"bar-spacing", Phrase("Desk", "Bars do not fit the width"), Code("9.2.1")},
        {"end-bars", Phrase("Desk", "End bars without the through bars"), std::string("16G101-1, 4.2.4")},
        {"through-bars", Phrase("Desk", "Through bars of a frame beam"), Code("11.3.7")},
        {"support-bars", Phrase("Desk", "Bars change over a support"), Practice()},
        {"stirrup-spacing", Phrase("Desk", "Stirrups too far apart"),
         Code("9.2.9, 11.3.6, 11.3.9, 11.7.11")},
        {"stirrup-diameter", Phrase("Desk", "Stirrups too thin"), Code("9.2.9, 11.3.6")},
        {"stirrup-legs",
         Phrase("Desk", "Too few legs"),
         {Phrase("Desk", "%1; beams of other types: %2"), Code("11.3.8"), Practice()}},
        {"section-width", Phrase("Desk", "Section against the drawn width"), Practice()},
        {"name-twice", Phrase("Desk", "One name, different texts"), Practice()},
        {"name-gap", Phrase("Desk", "Gap in the names"), Practice()},
    };
    return rules;
}

using StationRule = void (*)(const Station&, const Tell&);
constexpr std::pair<Which, StationRule> StationRules[] = {
    {Which::Unreadable, CheckReadable},
    {Which::SteelArea, CheckSteelArea},
    {Which::BarSpacing, CheckBarSpacing},
    {Which::EndBars, CheckEndBars},
    {Which::ThroughBars, CheckThroughBars},
    {Which::StirrupSpacing, CheckStirrupSpacing},
    {Which::StirrupDiameter, CheckStirrupDiameter},
    {Which::StirrupLegs, CheckStirrupLegs},
    {Which::SectionWidth, CheckSectionWidth},
};

// Gathers what rules tell; a text of a beam that is looked at in several spans is told once a rule.
class Gathering {
public:
    explicit Gathering(const Project& project) : m_project(project) {}

    [[nodiscard]] bool IsOn(Which which) const
    {
        const std::vector<std::string>& off = m_project.checksOff;
        return std::find(off.begin(), off.end(), Table()[static_cast<std::size_t>(which)].key) == off.end();
    }

    void Add(Which which, const FieldRef& at, Message message)
    {
        const Rule* const rule = &Table()[static_cast<std::size_t>(which)];
        const auto isSame = [&](const Problem& other) { return other.at == at && other.rule == rule; };
        if (std::none_of(m_problems.begin(), m_problems.end(), isSame)) {
            m_problems.push_back({at, rule, TextAt(m_project, at), std::move(message)});
        }
    }

    [[nodiscard]] std::vector<Problem> Done()
    {
        std::stable_sort(m_problems.begin(), m_problems.end(), [](const Problem& a, const Problem& b) {
            return std::tie(a.at, a.rule) < std::tie(b.at, b.rule);
        });
        return std::move(m_problems);
    }

private:
    const Project& m_project;
    std::vector<Problem> m_problems;
};

std::vector<Problem> CheckWall(const Project& project, std::size_t wall)
{
    Gathering found(project);
    if (found.IsOn(Which::Unreadable)) {
        CheckWallReadable(project.walls.at(wall), [&](Field field, Message message) {
            found.Add(Which::Unreadable, {true, wall, field}, std::move(message));
        });
    }
    return found.Done();
}

using NameRule = void (*)(const Project&, const std::vector<NameParts>&, const TellAt&);
constexpr std::pair<Which, NameRule> NameRules[] = {
    {Which::NameTwice, CheckNamesTwice},  // of the beams of one name alone
    {Which::NameGap, CheckNameGaps},
};

// Not gathered: a beam is told once by each of them.
std::vector<Problem> CheckNames(const Project& project, const std::vector<NameParts>& names,
                                std::span<const std::pair<Which, NameRule>> nameRules = NameRules)
{
    const Gathering rules(project);
    std::vector<Problem> problems;
    for (const auto& [which, check] : nameRules) {
        if (rules.IsOn(which)) {
            check(project, names, [&, which = which](const FieldRef& at, Message message) {
                problems.push_back({at, &Table()[static_cast<std::size_t>(which)], TextAt(project, at),
                                    std::move(message)});
            });
        }
    }
    return problems;
}

}  // namespace

std::span<const Rule> AllRules() { return Table(); }

const Rule* RuleOf(std::string_view key)
{
    const auto found =
        std::find_if(Table().begin(), Table().end(), [&](const Rule& rule) { return key == rule.key; });
    return found == Table().end() ? nullptr : &*found;
}

std::vector<Problem> CheckBeam(const Project& project, std::size_t beam)
{
    Gathering found(project);
    for (const Station& station : StationsOf(project.beams.at(beam))) {
        for (const auto& [which, check] : StationRules) {
            if (found.IsOn(which)) {
                check(station, [&, which = which](Field field, Message message) {
                    const int inPlace = station.inPlace[static_cast<std::size_t>(field)];
                    const Field served =
                        inPlace < 0
                            ? field
                            : RowOf(station.beam.inPlace[static_cast<std::size_t>(inPlace)].role).field;
                    found.Add(which, {false, beam, served, inPlace}, std::move(message));
                });
            }
        }
    }
    if (found.IsOn(Which::SupportBars)) {
        CheckSupportBars(project.beams[beam], [&](const FieldRef& at, Message message) {
            found.Add(Which::SupportBars, {false, beam, at.field, at.inPlace}, std::move(message));
        });
    }
    return found.Done();
}

std::vector<Problem> CheckProject(const Project& project) { return Checks(project).All(); }

struct Checks::Kept {
    explicit Kept(const Project& of) : project(of) {}

    const Project& project;
    std::vector<std::vector<Problem>> beams;
    std::vector<std::vector<Problem>> walls;
    NameReader reader;
    std::vector<NameParts> names;
    std::vector<Problem> ofNames;
    std::vector<Problem> all;

    // Answers whether a beam has another name than before.
    bool Look(const FieldRef& owner)
    {
        if (owner.isWall) {
            walls.at(owner.index) = CheckWall(project, owner.index);
            return false;
        }
        beams.at(owner.index) = CheckBeam(project, owner.index);
        const NameParts now = reader.Read(project.beams[owner.index]);
        return std::exchange(names.at(owner.index), now) != now;
    }

    // Texts of a beam have changed, not its name.
    void LookAtThoseNamedAs(std::size_t beam)
    {
        const NameParts& name = names[beam];
        if (!name.isRead) {
            return;
        }
        const Rule* const twice = &Table()[static_cast<std::size_t>(Which::NameTwice)];
        std::erase_if(ofNames, [&](const Problem& problem) {
            return problem.rule == twice && names[problem.at.index].Number() == name.Number();
        });
        std::vector<NameParts> alike(names.size());
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (names[i].isRead && names[i].Number() == name.Number()) {
                alike[i] = names[i];
            }
        }
        const std::vector<Problem> found = CheckNames(project, alike, std::span(NameRules).first<1>());
        ofNames.insert(ofNames.end(), found.begin(), found.end());
    }

    void Gather()
    {
        all = ofNames;
        for (const auto* const owners : {&beams, &walls}) {
            for (const std::vector<Problem>& problems : *owners) {
                all.insert(all.end(), problems.begin(), problems.end());
            }
        }
        std::stable_sort(all.begin(), all.end(), [](const Problem& a, const Problem& b) {
            return std::tie(a.at, a.rule) < std::tie(b.at, b.rule);
        });
    }
};

Checks::Checks(const Project& project) : m_kept(std::make_unique<Kept>(project)) { Renew(); }

Checks::~Checks() = default;

void Checks::Update(const std::vector<FieldRef>& owners)
{
    constexpr std::size_t MostOneByOne = 16;  // for more, all names are looked at once
    std::set<std::pair<bool, std::size_t>> looked;
    bool isNamed = false;
    for (const FieldRef& owner : owners) {
        if (looked.emplace(owner.isWall, owner.index).second) {
            isNamed = m_kept->Look(owner) || isNamed;
        }
    }
    if (isNamed || looked.size() > MostOneByOne) {
        m_kept->ofNames = CheckNames(m_kept->project, m_kept->names);
    } else {
        for (const auto& [isWall, index] : looked) {
            if (!isWall) {
                m_kept->LookAtThoseNamedAs(index);
            }
        }
    }
    m_kept->Gather();
}

void Checks::Renew()
{
    m_kept->beams.resize(m_kept->project.beams.size());
    m_kept->names.resize(m_kept->project.beams.size());
    m_kept->walls.resize(m_kept->project.walls.size());
    for (std::size_t i = 0; i < m_kept->beams.size(); ++i) {
        m_kept->Look({false, i});
    }
    for (std::size_t i = 0; i < m_kept->walls.size(); ++i) {
        m_kept->Look({true, i});
    }
    m_kept->ofNames = CheckNames(m_kept->project, m_kept->names);
    m_kept->Gather();
}

const std::vector<Problem>& Checks::All() const { return m_kept->all; }

}  // namespace Desk
