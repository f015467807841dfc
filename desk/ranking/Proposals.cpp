#include "desk/ranking/Proposals.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>

#include "desk/ranking/Likeness.h"
#include "desk/ranking/NextNames.h"
#include "desk/ranking/TextPool.h"
#include "desk/reading/Bars.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"

namespace Desk {

namespace {

constexpr std::size_t FieldCount = static_cast<std::size_t>(Field::Side) + 1;  // of beams

std::size_t At(Field field) { return static_cast<std::size_t>(field); }

// Both ends have the same kind of texts.
Field PoolOf(Field field) { return field == Field::RightEnd ? Field::LeftEnd : field; }

// An annotation has a column of its own with an entry a beam, or is one of those in place in the middle.
bool HasColumn(const FieldRef& ref, Field field, const Beam& beam)
{
    if (ref.inPlace < 0) {
        return true;
    }
    const InPlace& text = beam.inPlace[static_cast<std::size_t>(ref.inPlace)];
    return text.role == Role::TopSupport && (text.number == 1 || field == Field::RightEnd);
}

bool IsReadableSection(const std::string& text) { return ReadSection(text).has_value(); }
bool IsReadableElevation(const std::string& text) { return ReadElevation(text).has_value(); }
bool IsReadableStirrup(const std::string& text) { return ReadStirrup(text).has_value(); }
bool IsReadableBars(const std::string& text) { return ReadBars(text).has_value(); }

TextPool NewPool(Field field)
{
    switch (RowOf(field).ranker) {
    case Ranker::Sections: return TextPool(IsReadableSection);
    case Ranker::Elevations: return TextPool(IsReadableElevation);
    case Ranker::Stirrups: return TextPool(IsReadableStirrup);
    case Ranker::Bars: return TextPool(IsReadableBars);
    default: return TextPool();
    }
}

// What is entered before a field: name, section, stirrups, top, bottom and side bars, then the others.
KnownTraits KnownBefore(Field field)
{
    switch (field) {
    case Field::Name: return 0;
    case Field::Section: return KnowsName;
    case Field::Stirrup: return KnowsName | KnowsSection;
    case Field::TopBars: return KnowsName | KnowsSection | KnowsStirrup;
    default: return KnowsAll;
    }
}

void PlaceOnPlan(const Beam& beam, Traits& traits)
{
    const auto rounded = [](double at) { return std::llround(std::clamp(at, -1e9, 1e9)); };
    const std::int64_t x = rounded(beam.start.x) + rounded(beam.end.x);
    const std::int64_t y = rounded(beam.start.y) + rounded(beam.end.y);
    const std::int64_t dx = std::abs(rounded(beam.start.x) - rounded(beam.end.x));
    const std::int64_t dy = std::abs(rounded(beam.start.y) - rounded(beam.end.y));
    traits.direction = dx > dy ? 1 : dx < dy ? 2 : dx > 0 ? 3 : 0;
    traits.along = static_cast<int>(traits.direction == 2 ? y : x);
    traits.across = static_cast<int>(traits.direction == 2 ? x : y);
}

// A text that stands to be proposed, by votes.
struct Voted {
    int text = 0;
    std::int64_t votes = 0;
    Voter best;  // the first of its voters
    TextUse use;
};

}  // namespace

struct Proposer::Kept {
    explicit Kept(const Project& of) : project(of), count(of.beams.size()), likeness(count), names(count)
    {
        for (std::size_t i = 0; i < FieldCount; ++i) {
            pools.push_back(NewPool(static_cast<Field>(i)));
            pools.back().SetBeams(count);
            columns[i].resize(count);
        }
    }

    void Set(std::size_t beam);
    [[nodiscard]] int End(std::size_t beam, Known known) const
    {
        return static_cast<int>(known == Known::All ? count : beam);
    }
    [[nodiscard]] Field FieldOf(const FieldRef& ref) const;
    [[nodiscard]] UsesKnown UsesFor(const FieldRef& ref, int end) const;
    [[nodiscard]] std::vector<Voted> VotesFor(const FieldRef& ref, int end, std::int64_t& all) const;
    template <class Visit>
    void Walk(const FieldRef& ref, int end, Visit visit) const;
    [[nodiscard]] std::string Called(int beam) const
    {
        return project.beams[static_cast<std::size_t>(beam)].name;
    }
    [[nodiscard]] Message ReasonFor(const FieldRef& ref, int end, const Voter& best,
                                    KnownTraits known) const;

    const Project& project;
    std::size_t count;
    std::vector<TextPool> pools;                       // by field
    std::array<std::vector<int>, FieldCount> columns;  // text of each beam; of end bars those in place too
    // Of texts in place without a column, by role and number: beam and text, in the order of beams.
    std::map<std::pair<Role, int>, std::vector<std::pair<int, int>>> slots;
    std::vector<std::vector<std::pair<Role, int>>> slotsOf;  // where the beam has an entry
    Likeness likeness;
    NextNames names;
};

void Proposer::Kept::Set(std::size_t at)
{
    const Beam& beam = project.beams[at];
    std::array<std::vector<int>, FieldCount> texts;
    Traits traits;
    slotsOf.resize(count);
    for (const auto& slot : slotsOf[at]) {
        auto& entries = slots[slot];
        entries.erase(std::lower_bound(entries.begin(), entries.end(), std::pair(static_cast<int>(at), 0)));
    }
    slotsOf[at].clear();
    for (const Field field : BeamFields()) {
        const std::string& text = beam.*RowOf(field).ofBeam;
        const int number = pools[At(PoolOf(field))].Number(text);
        texts[At(PoolOf(field))].push_back(number);
        columns[At(field)][at] = number;
        traits.hasBars = traits.hasBars || (number != 0 && field > Field::Elevation);
    }
    for (const InPlace& text : beam.inPlace) {
        const Field field = FieldAt(beam, text);
        const int number = pools[At(PoolOf(field))].Number(text.text);
        texts[At(PoolOf(field))].push_back(number);
        traits.hasBars = traits.hasBars || (number != 0 && field > Field::Elevation);
        if (text.role == Role::TopSupport && (text.number == 1 || field == Field::RightEnd)) {
            int& own = columns[At(field)][at];
            own = own == 0 ? number : own;
        } else if (number != 0) {
            auto& entries = slots[{text.role, text.number}];
            entries.insert(
                std::lower_bound(entries.begin(), entries.end(), std::pair(static_cast<int>(at) + 1, 0)),
                {static_cast<int>(at), number});
            slotsOf[at].push_back({text.role, text.number});
        }
    }
    for (std::size_t i = 0; i < FieldCount; ++i) {
        pools[i].Set(at, std::move(texts[i]));
    }
    traits.section = columns[At(Field::Section)][at];
    traits.hasSection = traits.section != 0;
    if (const std::optional<Section> section = ReadSection(beam.section)) {
        traits.width = section->width;
        traits.height = section->height;
    }
    traits.stirrup = columns[At(Field::Stirrup)][at];
    traits.topBars = columns[At(Field::TopBars)][at];
    PlaceOnPlan(beam, traits);
    names.Set(at, beam.name, traits);
    likeness.Set(at, traits);
}

Field Proposer::Kept::FieldOf(const FieldRef& ref) const
{
    const Beam& beam = project.beams[ref.index];
    return ref.inPlace < 0 ? ref.field : FieldAt(beam, beam.inPlace[static_cast<std::size_t>(ref.inPlace)]);
}

UsesKnown Proposer::Kept::UsesFor(const FieldRef& ref, int end) const
{
    const Beam& beam = project.beams[ref.index];
    const Field pool = PoolOf(FieldOf(ref));
    std::size_t before = 0;
    for (const Field field : BeamFields()) {
        before += PoolOf(field) == pool && (ref.inPlace >= 0 || field < ref.field) ? 1U : 0U;
    }
    for (int i = 0; i < ref.inPlace; ++i) {
        before += PoolOf(FieldAt(beam, beam.inPlace[static_cast<std::size_t>(i)])) == pool ? 1U : 0U;
    }
    return {static_cast<int>(ref.index), end, before};
}

std::vector<Voted> Proposer::Kept::VotesFor(const FieldRef& ref, int end, std::int64_t& all) const
{
    const Beam& beam = project.beams[ref.index];
    const int at = static_cast<int>(ref.index);
    const Field field = FieldOf(ref);
    const KnownTraits known = ref.inPlace < 0 ? KnownBefore(field) : KnowsAll;
    std::vector<Voter> voters;
    if (HasColumn(ref, field, beam)) {
        voters = likeness.Voters(at, end, known, columns[At(field)]);
    } else {
        const InPlace& text = beam.inPlace[static_cast<std::size_t>(ref.inPlace)];
        if (const auto slot = slots.find({text.role, text.number}); slot != slots.end()) {
            voters = likeness.Voters(at, end, known, slot->second);
        }
    }
    const TextPool& pool = pools[At(PoolOf(field))];
    const UsesKnown uses = UsesFor(ref, end);
    std::vector<Voted> voted;
    for (const Voter& voter : voters) {
        const std::int64_t worth = std::int64_t{1} << voter.points;
        all += worth;
        const auto same = std::find_if(voted.begin(), voted.end(),
                                       [&](const Voted& each) { return each.text == voter.text; });
        if (same != voted.end()) {
            same->votes += worth;
        } else {
            voted.push_back({voter.text, worth, voter, pool.UseOf(voter.text, uses)});
        }
    }
    std::sort(voted.begin(), voted.end(), [&pool](const Voted& a, const Voted& b) {
        return a.votes != b.votes ? a.votes > b.votes : pool.IsBefore(a.text, a.use, b.text, b.use);
    });
    return voted;
}

// Calls visit(text, votes) in order until it answers false.
template <class Visit>
void Proposer::Kept::Walk(const FieldRef& ref, int end, Visit visit) const
{
    std::int64_t all = 0;
    const std::vector<Voted> voted = VotesFor(ref, end, all);
    const TextPool& pool = pools[At(PoolOf(FieldOf(ref)))];
    const UsesKnown uses = UsesFor(ref, end);
    for (const bool readable : {true, false}) {
        for (const Voted& each : voted) {
            if (pool.IsReadable(each.text) == readable && !visit(each, all)) {
                return;
            }
        }
        const bool goesOn = pool.Walk(readable, uses, [&](int text) {
            const bool isVoted = std::any_of(voted.begin(), voted.end(),
                                             [text](const Voted& each) { return each.text == text; });
            return isVoted || visit(Voted{text, 0, {}, pool.UseOf(text, uses)}, all);
        });
        if (!goesOn) {
            return;
        }
    }
}

Message Proposer::Kept::ReasonFor(const FieldRef& ref, int end, const Voter& best, KnownTraits known) const
{
    const Message shared = likeness.Shared(static_cast<int>(ref.index), end, known, best.beam);
    const std::string name = Called(best.beam);
    const Message called = name.empty() ? Message(Phrase("Desk", "a beam without a name")) : Message(name);
    return shared.English().empty() ? Message(Phrase("Desk", "as %1"), called)
                                    : Message(Phrase("Desk", "as %1: %2"), called, shared);
}

Proposer::Proposer(const Project& project) : m_kept(std::make_unique<Kept>(project))
{
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        m_kept->Set(i);
    }
}
Proposer::~Proposer() = default;

void Proposer::Update(std::size_t beam) { m_kept->Set(beam); }

std::vector<Proposal> Proposer::For(const FieldRef& ref, std::size_t most, Known known) const
{
    std::vector<Proposal> proposals;
    if (ref.isWall || most == 0) {
        return proposals;
    }
    const int end = m_kept->End(ref.index, known);
    if (ref.field == Field::Name) {
        for (NextName& name : m_kept->names.For(static_cast<int>(ref.index), end, m_kept->likeness)) {
            if (proposals.size() < most) {
                proposals.push_back({std::move(name.text), name.share,
                                     m_kept->names.UsesOf(name.form, static_cast<int>(ref.index), end),
                                     name.reason});
            }
        }
        return proposals;
    }
    const TextPool& pool = m_kept->pools[At(PoolOf(m_kept->FieldOf(ref)))];
    const KnownTraits traits = ref.inPlace < 0 ? KnownBefore(ref.field) : KnowsAll;
    m_kept->Walk(ref, end, [&](const Voted& voted, std::int64_t all) {
        const int share = voted.votes == 0 ? 0 : std::max(1, static_cast<int>(voted.votes * 100 / all));
        proposals.push_back(
            {pool.Text(voted.text), share, voted.use.uses,
             voted.votes == 0 ? Message(std::string()) : m_kept->ReasonFor(ref, end, voted.best, traits)});
        return proposals.size() < most;
    });
    return proposals;
}

std::size_t Proposer::PlaceOf(const FieldRef& ref, Known known) const
{
    const std::string& wanted = TextAt(m_kept->project, ref);
    if (ref.isWall || wanted.empty()) {
        return 0;
    }
    const int end = m_kept->End(ref.index, known);
    std::size_t place = 0;
    bool isFound = false;
    if (ref.field == Field::Name) {
        for (const NextName& name : m_kept->names.For(static_cast<int>(ref.index), end, m_kept->likeness)) {
            ++place;
            if (name.text == wanted) {
                return place;
            }
        }
        return 0;
    }
    const TextPool& pool = m_kept->pools[At(PoolOf(m_kept->FieldOf(ref)))];
    const UsesKnown uses = m_kept->UsesFor(ref, end);
    const int text = pool.Of(static_cast<int>(ref.index))[uses.ofBeam];
    if (pool.UseOf(text, uses).uses == 0) {
        return 0;
    }
    m_kept->Walk(ref, end, [&](const Voted& voted, std::int64_t) {
        ++place;
        isFound = voted.text == text;
        return !isFound;
    });
    return isFound ? place : 0;
}

std::vector<BeamProposal> Proposer::ForBeam(std::size_t /*beam*/, std::size_t /*most*/,
                                            Known /*known*/) const
{
    return {};
}

}  // namespace Desk
