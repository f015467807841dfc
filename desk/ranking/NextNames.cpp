#include "desk/ranking/NextNames.h"

#include <algorithm>
#include <optional>
#include <set>

#include "desk/reading/BeamName.h"

namespace Desk {

namespace {

constexpr int MostSerial = 999;  // a name has up to three digits
constexpr int Recent = 4;        // beams before it whose votes count double

// KL, WKL and LKL are frame beams; LL and LLK are coupling beams.
std::string FamilyOf(std::string type)
{
    std::transform(type.begin(), type.end(), type.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    if (type.ends_with("KL")) {
        return "KL";
    }
    return type == "LLK" ? "LL" : type;
}

int NumberIn(std::unordered_map<std::string, int>& numbers, const std::string& text)
{
    return numbers.emplace(text, static_cast<int>(numbers.size()) + 1).first->second;
}

// Floors, and plans side by side, number their beams each for itself.
std::string OnFloor(const std::string& type, const Beam& beam)
{
    return type + '\n' + std::to_string(beam.plan) + '\n' + beam.floor;
}

void Insert(std::vector<int>& beams, int beam)
{
    beams.insert(std::lower_bound(beams.begin(), beams.end(), beam), beam);
}

void Remove(std::vector<int>& beams, int beam)
{
    beams.erase(std::lower_bound(beams.begin(), beams.end(), beam));
}

// Whether a beam before the end, other than the one that is asked for, is among these.
bool HasOther(const std::vector<int>& beams, int beam, int end)
{
    for (const int each : beams) {
        if (each != beam) {
            return each < end;
        }
    }
    return false;
}

}  // namespace

void NextNames::Set(std::size_t at, const Beam& beam, Traits& traits)
{
    const int number = static_cast<int>(at);
    if (m_forms[at] != 0) {
        Remove(m_ofForm[static_cast<std::size_t>(m_forms[at])].beams, number);
        Type& type = m_onFloor[static_cast<std::size_t>(m_types[at])];
        Remove(type.beams, number);
        const auto serial = type.bySerial.find(m_serials[at]);
        Remove(serial->second, number);
        if (serial->second.empty()) {
            type.bySerial.erase(serial);
        }
        m_forms[at] = 0;
    }
    const std::optional<BeamName> read = ReadName(beam.name);
    if (!read) {
        return;
    }
    BeamName form = *read;
    form.serial = 0;
    form.letter = '\0';
    const std::string text = form.Text();
    const std::string suffix = text.substr(std::min(text.size(), text.find('(')));
    const int typeNumber = NumberIn(m_typeNumbers, read->type);
    const int onFloor = NumberIn(m_onFloorNumbers, OnFloor(read->type, beam));
    m_onFloor.resize(std::max(m_onFloor.size(), m_onFloorNumbers.size() + 1));
    m_forms[at] = NumberIn(m_formNumbers, text);
    if (m_ofForm.size() <= m_formNumbers.size()) {
        m_ofForm.push_back({read->type, suffix, {}});
    }
    m_types[at] = onFloor;
    m_serials[at] = read->serial;
    Insert(m_ofForm[static_cast<std::size_t>(m_forms[at])].beams, number);
    Type& type = m_onFloor[static_cast<std::size_t>(onFloor)];
    Insert(type.beams, number);
    Insert(type.bySerial[read->serial], number);
    traits.family = NumberIn(m_families, FamilyOf(read->type));
    traits.spans = NumberIn(m_suffixes, suffix);
    traits.serial = typeNumber * (MostSerial + 3) + read->serial;
}

int NextNames::UsesOf(int form, int beam, int end) const
{
    const std::vector<int>& beams = m_ofForm[static_cast<std::size_t>(form)].beams;
    const auto to = std::lower_bound(beams.begin(), beams.end(), end);
    return static_cast<int>(to - beams.begin()) - (std::binary_search(beams.begin(), to, beam) ? 1 : 0);
}

std::vector<NextNames::Serial> NextNames::SerialsFor(const std::string& called, int type, int beam, int end,
                                                     const std::vector<int>& near) const
{
    const Type& of = m_onFloor[static_cast<std::size_t>(type)];
    std::vector<Serial> serials;
    const auto isFree = [&](int serial) {
        const auto found = of.bySerial.find(serial);
        return found == of.bySerial.end() || !HasOther(found->second, beam, end);
    };
    const auto add = [&](int from, int to, int worth, const Message& reason) {
        while (from < to && !isFree(from)) {
            ++from;
        }
        const auto isSame = [from](const Serial& each) { return each.number == from; };
        if (from < to && std::none_of(serials.begin(), serials.end(), isSame)) {
            serials.push_back({from, worth, reason});
        }
    };
    const auto name = [&called](int serial) { return Message(called + std::to_string(serial)); };

    // The last one entered before the beam, else the last of all.
    const auto before = std::lower_bound(of.beams.begin(), of.beams.end(), beam);
    int last = before != of.beams.begin() ? *(before - 1) : of.beams.empty() ? beam : of.beams.back();
    if (last != beam && last < end) {
        const int serial = m_serials[static_cast<std::size_t>(last)];
        add(serial + 1, MostSerial + 1, 4, {Phrase("Desk", "the number after %1"), name(serial)});
    }
    std::vector<int> around;
    for (const int other : near) {
        if (m_forms[static_cast<std::size_t>(other)] != 0 &&
            m_types[static_cast<std::size_t>(other)] == type && around.size() < 2) {
            around.push_back(m_serials[static_cast<std::size_t>(other)]);
        }
    }
    if (around.size() == 2) {
        const auto [low, high] = std::minmax(around[0], around[1]);
        add(low + 1, high, 2,
            {Phrase("Desk", "a free number between %1 and %2, near it"), name(low), name(high)});
    }
    add(1, MostSerial + 1, 1, Phrase("Desk", "the first free number"));
    return serials;
}

std::vector<NextName> NextNames::For(const Beam& asked, int beam, int end, const Likeness& likeness) const
{
    std::vector<Voter> voters = likeness.Voters(beam, end, 0, m_forms);
    const auto isRecent = [beam](int other) { return other < beam && other >= beam - Recent; };
    for (int other = std::max(0, beam - Recent); other < beam; ++other) {
        const int form = m_forms[static_cast<std::size_t>(other)];
        if (form != 0 && std::none_of(voters.begin(), voters.end(),
                                      [other](const Voter& voter) { return voter.beam == other; })) {
            voters.push_back({0, other, form});
        }
    }
    std::map<int, int> votes;
    int all = 0;
    for (const Voter& voter : voters) {
        const int worth = 1 << (voter.points + (isRecent(voter.beam) ? 1 : 0));
        votes[voter.text] += worth;
        all += worth;
    }

    struct Choice {
        int worth;
        int uses;
        NextName name;
    };
    std::vector<Choice> choices;
    std::map<std::string, std::vector<Serial>> serials;
    for (const auto& [form, worth] : votes) {
        const Form& of = m_ofForm[static_cast<std::size_t>(form)];
        if (!serials.contains(of.type)) {
            const auto type = m_onFloorNumbers.find(OnFloor(of.type, asked));
            serials.emplace(of.type, SerialsFor(of.type, type == m_onFloorNumbers.end() ? 0 : type->second,
                                                beam, end, likeness.Near(beam, end, 0)));
        }
        for (const Serial& serial : serials.at(of.type)) {
            choices.push_back(
                {worth * serial.worth,
                 UsesOf(form, beam, end),
                 {of.type + std::to_string(serial.number) + of.suffix,
                  std::max(1, static_cast<int>(std::int64_t{100} * worth / all)), form, serial.reason}});
        }
    }
    std::sort(choices.begin(), choices.end(), [](const Choice& a, const Choice& b) {
        return a.worth != b.worth ? a.worth > b.worth
               : a.uses != b.uses ? a.uses > b.uses
                                  : a.name.text < b.name.text;
    });
    std::vector<NextName> names;
    for (Choice& choice : choices) {
        names.push_back(std::move(choice.name));
    }
    return names;
}

}  // namespace Desk
