#include "desk/ranking/KnownTexts.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

#include "desk/reading/Bars.h"
#include "desk/reading/Section.h"
#include "desk/reading/Stirrup.h"

namespace Desk {

namespace {

// What the beam's own texts are worth, as the points of a beam alike: much where they are mostly the same,
// little where a text in place is there because it differs.
constexpr int OtherEndPoints = 16;
constexpr int NextSpanPoints = 15;
constexpr int OwnTextPoints = 4;

std::size_t At(Field field) { return static_cast<std::size_t>(field); }
Field PoolField(Field field) { return field == Field::RightEnd ? Field::LeftEnd : field; }

bool IsAtEnd(const InPlace& text, Field field)
{
    return text.role == Role::TopSupport && (text.number == 1 || field == Field::RightEnd);
}

bool IsSectionText(const std::string& text) { return ReadSection(text).has_value(); }
bool IsElevationText(const std::string& text) { return ReadElevation(text).has_value(); }
bool IsStirrupText(const std::string& text) { return ReadStirrup(text).has_value(); }
bool IsBarText(const std::string& text) { return ReadBars(text).has_value(); }

TextPool NewPool(Field field)
{
    switch (RowOf(field).ranker) {
    case Ranker::Sections: return TextPool(IsSectionText);
    case Ranker::Elevations: return TextPool(IsElevationText);
    case Ranker::Stirrups: return TextPool(IsStirrupText);
    case Ranker::Bars: return TextPool(IsBarText, true);
    default: return TextPool();
    }
}

void PlaceOnPlan(const Beam& beam, Traits& traits)
{
    const auto rounded = [](double at) -> std::int64_t { return std::llround(std::clamp(at, -1e9, 1e9)); };
    const std::int64_t dx = std::abs(rounded(beam.start.x) - rounded(beam.end.x));
    const std::int64_t dy = std::abs(rounded(beam.start.y) - rounded(beam.end.y));
    traits.direction = dx > dy ? 1 : dx < dy ? 2 : dx > 0 ? 3 : 0;
    traits.x = static_cast<int>(rounded(beam.start.x) + rounded(beam.end.x));
    traits.y = static_cast<int>(rounded(beam.start.y) + rounded(beam.end.y));
}

}  // namespace

KnownTexts::KnownTexts(const Project& project)
    : m_project(project), m_hasSet(project.beams.size()), m_slotsOf(project.beams.size()),
      m_likeness(project.beams.size()), m_names(project.beams.size())
{
    for (std::size_t i = 0; i < Fields; ++i) {
        m_pools.push_back(NewPool(static_cast<Field>(i)));
        m_pools.back().SetBeams(project.beams.size());
        m_columns[i].resize(project.beams.size());
    }
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        Set(i);
    }
}

void KnownTexts::Set(std::size_t at)
{
    const Beam& beam = m_project.beams[at];
    std::array<std::vector<int>, Fields> texts;
    Traits traits;
    for (const Field field : BeamFields()) {
        const Field pool = PoolField(field);
        const int text = m_pools[At(pool)].Number(beam.*RowOf(field).ofBeam);
        texts[At(pool)].push_back(text);
        m_columns[At(field)][at] = m_pools[At(pool)].IsReadable(text) ? text : 0;
    }
    SetInPlace(at, texts);
    for (const Field field : BeamFields()) {
        const auto hasText = [](int text) { return text != 0; };
        traits.hasBars =
            traits.hasBars || (field > Field::Elevation &&
                               std::any_of(texts[At(field)].begin(), texts[At(field)].end(), hasText));
        m_pools[At(field)].Set(at, std::move(texts[At(field)]));
    }
    m_hasSet[at] = 0;
    for (const Field field : SetFields) {
        m_hasSet[at] |= m_columns[At(field)][at] != 0 ? 1 : 0;
    }
    const auto own = [&](Field field) { return m_pools[At(field)].Of(static_cast<int>(at)).front(); };
    traits.section = own(Field::Section);
    traits.hasSection = traits.section != 0;
    if (const std::optional<Section> section = ReadSection(beam.section)) {
        traits.width = section->width;
        traits.height = section->height;
    }
    traits.stirrup = own(Field::Stirrup);
    traits.topBars = own(Field::TopBars);
    PlaceOnPlan(beam, traits);
    m_names.Set(at, beam, traits);
    m_likeness.Set(at, traits);
}

void KnownTexts::SetInPlace(std::size_t at, std::array<std::vector<int>, Fields>& texts)
{
    const int number = static_cast<int>(at);
    for (const Slot& slot : m_slotsOf[at]) {
        SlotTexts& entries = m_slots[slot];
        entries.erase(std::lower_bound(entries.begin(), entries.end(), std::pair(number, 0)));
    }
    m_slotsOf[at].clear();
    const Beam& beam = m_project.beams[at];
    for (const InPlace& inPlace : beam.inPlace) {
        const Field field = FieldAt(beam, inPlace);
        const int text = m_pools[At(PoolField(field))].Number(inPlace.text);
        texts[At(PoolField(field))].push_back(text);
        if (text == 0 || !PoolOf(field).IsReadable(text)) {
            continue;
        }
        if (IsAtEnd(inPlace, field)) {
            int& own = m_columns[At(field)][at];
            own = own == 0 ? text : own;
        } else {
            const Slot slot = {inPlace.role, inPlace.number};
            SlotTexts& entries = m_slots[slot];
            entries.insert(std::lower_bound(entries.begin(), entries.end(), std::pair(number + 1, 0)),
                           {number, text});
            m_slotsOf[at].push_back(slot);
        }
    }
}

Field KnownTexts::FieldOf(const FieldRef& ref) const
{
    const Beam& beam = m_project.beams[ref.index];
    return ref.inPlace < 0 ? ref.field : FieldAt(beam, beam.inPlace[static_cast<std::size_t>(ref.inPlace)]);
}

const TextPool& KnownTexts::PoolOf(Field field) const { return m_pools[At(PoolField(field))]; }

UsesKnown KnownTexts::UsesFor(const FieldRef& ref, int end) const
{
    const Beam& beam = m_project.beams[ref.index];
    const Field pool = PoolField(FieldOf(ref));
    std::size_t before = 0;
    for (const Field field : BeamFields()) {
        before += PoolField(field) == pool && (ref.inPlace >= 0 || field < ref.field) ? 1U : 0U;
    }
    for (int i = 0; i < ref.inPlace; ++i) {
        before += PoolField(FieldAt(beam, beam.inPlace[static_cast<std::size_t>(i)])) == pool ? 1U : 0U;
    }
    return {static_cast<int>(ref.index), end, before};
}

// Entered are name, section, stirrups, top, bottom and side bars, then all others.
KnownTraits KnownTexts::TraitsFor(const FieldRef& ref)
{
    if (ref.inPlace >= 0) {
        return KnowsAll;
    }
    switch (ref.field) {
    case Field::Name: return 0;
    case Field::Section: return KnowsName;
    case Field::Stirrup: return KnowsName | KnowsSection;
    case Field::TopBars: return KnowsName | KnowsSection | KnowsStirrup;
    default: return KnowsAll;
    }
}

template <class Vote>
void KnownTexts::VoteByOwn(const FieldRef& ref, Vote vote) const
{
    const Beam& beam = m_project.beams[ref.index];
    const Field field = FieldOf(ref);
    const auto own = [&](Field of) {
        return m_pools[At(PoolField(of))].Of(static_cast<int>(ref.index))[of == Field::RightEnd ? 1 : 0];
    };
    if (ref.inPlace < 0) {
        if (field == Field::RightEnd) {
            vote(own(Field::LeftEnd), OtherEndPoints, VoteOf::OtherEnd);
        }
        return;
    }
    const InPlace& asked = beam.inPlace[static_cast<std::size_t>(ref.inPlace)];
    std::size_t at = 0;
    for (const Field each : BeamFields()) {
        at += PoolField(each) == PoolField(field) ? 1U : 0U;
    }
    const std::vector<int>& texts = PoolOf(field).Of(static_cast<int>(ref.index));
    for (int i = 0; i < ref.inPlace; ++i) {
        const InPlace& other = beam.inPlace[static_cast<std::size_t>(i)];
        if (PoolField(FieldAt(beam, other)) != PoolField(field)) {
            continue;
        }
        if (other.role == asked.role && std::abs(other.number - asked.number) == 1) {
            const bool isEnd = asked.role == Role::TopSupport;
            vote(texts[at], isEnd ? OtherEndPoints : NextSpanPoints,
                 isEnd ? VoteOf::OtherEnd : VoteOf::NextSpan);
        }
        ++at;
    }
    if (asked.role != Role::TopSupport || IsAtEnd(asked, field)) {
        vote(own(field), OwnTextPoints, VoteOf::OwnText);
    }
}

Votes KnownTexts::VotesFor(const FieldRef& ref, int end) const
{
    const int beam = static_cast<int>(ref.index);
    const Field field = FieldOf(ref);
    const TextPool& pool = PoolOf(field);
    const UsesKnown uses = UsesFor(ref, end);
    const InPlace* const inPlace =
        ref.inPlace < 0 ? nullptr
                        : &m_project.beams[ref.index].inPlace[static_cast<std::size_t>(ref.inPlace)];
    Votes votes;
    const auto vote = [&](int text, int points, VoteOf by, int voter) {
        const std::int64_t worth = std::int64_t{1} << points;
        const auto same = std::find_if(votes.texts.begin(), votes.texts.end(),
                                       [text](const VotedText& each) { return each.text == text; });
        votes.all += worth;
        if (same == votes.texts.end()) {
            votes.texts.push_back({text, worth, by, voter, points, pool.UseOf(text, uses)});
            return;
        }
        same->votes += worth;
        if (points > same->points) {
            std::tie(same->first, same->beam, same->points) = std::tuple(by, voter, points);
        }
    };
    std::vector<Voter> voters;
    if (inPlace == nullptr || IsAtEnd(*inPlace, field)) {
        voters = m_likeness.Voters(beam, end, TraitsFor(ref), m_columns[At(field)]);
    } else if (const auto slot = m_slots.find({inPlace->role, inPlace->number}); slot != m_slots.end()) {
        voters = m_likeness.Voters(beam, end, TraitsFor(ref), slot->second);
    }
    for (const Voter& voter : voters) {
        vote(voter.text, voter.points, VoteOf::BeamAlike, voter.beam);
    }
    VoteByOwn(ref, [&](int text, int points, VoteOf by) {
        if (text != 0 && pool.IsReadable(text)) {
            vote(text, points, by, beam);
        }
    });
    std::sort(votes.texts.begin(), votes.texts.end(), [&pool](const VotedText& a, const VotedText& b) {
        return a.votes != b.votes ? a.votes > b.votes : pool.IsBefore(a.text, a.use, b.text, b.use);
    });
    return votes;
}

KnownTraits KnownTexts::TraitsForSet(int beam) const
{
    const Traits& of = m_likeness.Of(beam);
    return KnowsName | KnowsSection | (of.stirrup != 0 ? KnowsStirrup : 0) |
           (of.topBars != 0 ? KnowsTopBars : 0);
}

std::vector<VotedSet> KnownTexts::SetVotesFor(int beam, int end) const
{
    std::vector<VotedSet> sets;
    for (const Voter& voter : m_likeness.Voters(beam, end, TraitsForSet(beam), m_hasSet)) {
        VotedSet set = {{}, std::int64_t{1} << voter.points, voter.beam};
        for (std::size_t i = 0; i < SetFields.size(); ++i) {
            const std::vector<int>& column = m_columns[At(SetFields[i])];
            const std::string& own =
                m_project.beams[static_cast<std::size_t>(beam)].*RowOf(SetFields[i]).ofBeam;
            set.texts[i] = own.empty() ? column[static_cast<std::size_t>(voter.beam)] : 0;
        }
        const auto same = std::find_if(sets.begin(), sets.end(),
                                       [&set](const VotedSet& each) { return each.texts == set.texts; });
        if (same != sets.end()) {
            same->votes += set.votes;
        } else {
            sets.push_back(set);
        }
    }
    // Of equals the one with the strongest voter, which was entered first.
    std::stable_sort(sets.begin(), sets.end(),
                     [](const VotedSet& a, const VotedSet& b) { return a.votes > b.votes; });
    return sets;
}

}  // namespace Desk
