#include "desk/ranking/RankerTexts.h"

#include <algorithm>
#include <set>
#include <utility>

#include "desk/project/Encoding.h"

namespace Desk {

namespace {

// Calls use with the beam's texts that a ranker gets, empty ones too.
template <class Use>
void ForEachOf(const Beam& beam, Ranker ranker, const std::string& barKind, Use use)
{
    switch (ranker) {
    case Ranker::Names: use(beam.name); break;
    case Ranker::Sections: ForEachText(beam, Field::Section, use); break;
    case Ranker::Elevations: ForEachText(beam, Field::Elevation, use); break;
    case Ranker::Stirrups: ForEachText(beam, Field::Stirrup, use); break;
    case Ranker::Bars:
        for (const std::string* const text : BarTexts(beam, barKind)) {
            use(*text);
        }
        break;
    case Ranker::OtherWalls:
    case Ranker::None: break;
    }
}

// The number of a text, from 0; a text that is not among them yet gets the next one.
int Number(std::unordered_map<std::string, int>& numbers, std::string text)
{
    return numbers.try_emplace(std::move(text), static_cast<int>(numbers.size())).first->second;
}

// The order of bars goes by the pieces between the joints.
std::string WithOneJoint(std::string text)
{
    std::replace(text.begin(), text.end(), '/', '+');
    return text;
}

int& Grown(std::vector<int>& counts, int number)
{
    const auto at = static_cast<std::size_t>(number);
    if (at >= counts.size()) {
        counts.resize(at + 1);
    }
    return counts[at];
}

}  // namespace

RankerTexts::RankerTexts(Ranker ranker, std::string barKind)
    : m_ranker(ranker), m_barKind(std::move(barKind))
{
}

bool RankerTexts::Set(std::size_t beam, const Beam& texts)
{
    const auto from = std::partition_point(m_uses.begin(), m_uses.end(),
                                           [beam](const Use& use) { return use.beam < beam; });
    const auto to = std::find_if(from, m_uses.end(), [beam](const Use& use) { return use.beam > beam; });
    std::vector<Use> now;
    ForEachOf(texts, m_ranker, m_barKind, [&](const std::string& text) {
        if (const std::optional<int> number = NumberOf(text)) {
            now.push_back({beam, *number});
        }
    });
    if (std::equal(from, to, now.begin(), now.end())) {
        return false;
    }
    m_uses.insert(m_uses.erase(from, to), now.begin(), now.end());
    return true;
}

std::optional<int> RankerTexts::NumberOf(const std::string& text)
{
    if (text.empty()) {
        return std::nullopt;
    }
    const auto [known, isNew] = m_numbers.try_emplace(text, -1);
    if (!isNew) {
        return known->second < 0 ? std::nullopt : std::optional(known->second);
    }
    std::optional<CString> gbk = IsInGrammar(text, m_ranker) ? GbkFromUtf8(text) : std::nullopt;
    if (!gbk) {
        return std::nullopt;
    }
    Entry entry;
    entry.text = text;
    entry.listed = AreBars() ? gbk->Mid(static_cast<int>(HeadOf(text).size())) : *gbk;
    entry.ofListed = Number(m_listed, std::string(entry.listed.View()));
    entry.ofClass = Number(m_classes, WithOneJoint(std::string(gbk->View())));
    ++Grown(m_sizes, entry.ofClass);
    if (m_ranker == Ranker::Names) {
        BEAMNAME_HITNESS_RANKER::GetBeamType(*gbk, entry.type);
        BEAMNAME_HITNESS_RANKER::GetBeamXu(*gbk, entry.serial);
        BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(*gbk, entry.suffix);
        entry.form = FormOfName(*gbk);
    }
    entry.gbk = *std::move(gbk);
    known->second = static_cast<int>(m_texts.size());
    m_texts.push_back(std::move(entry));
    return known->second;
}

bool RankerTexts::IsAlone(int number) const
{
    return m_sizes[static_cast<std::size_t>(ClassOf(number))] == 1;
}

bool RankerTexts::IsDelivered(int number) const
{
    return m_ranker != Ranker::Names || (!At(number).type.IsEmpty() && At(number).serial > 0);
}

Delivery RankerTexts::Delivered(const std::vector<int>& numbers) const
{
    if (m_ranker == Ranker::Names) {
        return DeliveredNames(numbers);
    }
    Delivery delivery;
    delivery.texts.Reserve(static_cast<int>(numbers.size()));
    for (const int number : numbers) {
        delivery.texts.Add(At(number).gbk);
    }
    return delivery;
}

Delivery RankerTexts::DeliveredNames(const std::vector<int>& numbers) const
{
    Delivery delivery;
    std::map<std::string_view, std::size_t> types;
    std::set<std::pair<std::size_t, std::string_view>> suffixes;
    for (const int number : numbers) {
        const Entry& name = At(number);
        if (!IsDelivered(number)) {
            continue;
        }
        const auto [type, isNew] = types.try_emplace(name.type.View(), delivery.names.size());
        if (isNew) {
            delivery.names.push_back({name.type, {}, {}});
        }
        Delivery::Names& names = delivery.names[type->second];
        names.serials.Add(static_cast<unsigned int>(name.serial));
        if (suffixes.emplace(type->second, name.suffix.View()).second) {
            names.suffixes.Add(name.suffix);
        }
    }
    for (Delivery::Names& names : delivery.names) {
        std::sort(names.serials.begin(), names.serials.end());
        const auto repeats = std::unique(names.serials.begin(), names.serials.end());
        names.serials.SetSize(static_cast<int>(repeats - names.serials.begin()));
    }
    return delivery;
}

std::string FormOfName(const CString& name)
{
    CString type;
    BEAMNAME_HITNESS_RANKER::GetBeamType(name, type);
    CString suffix;
    BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(name, suffix);
    return Utf8FromGbk(type + suffix);
}

void TextCounts::Add(int text)
{
    int& uses = Grown(m_uses, text);
    int& run = Grown(m_runs, text);
    int& last = Grown(m_last, m_texts.ClassOf(text));
    if (uses == 0) {
        m_order.push_back(text);
    }
    // A run that ended has fewer uses than the text, and never goes on.
    if (uses == 0 || (last == text + 1 && run == uses)) {
        ++run;
    }
    ++uses;
    last = text + 1;
}

int TextCounts::RunOfListed(int text) const
{
    int most = 0;
    for (const int other : m_order) {
        if (m_texts.ListedNumber(other) == m_texts.ListedNumber(text)) {
            most = std::max(most, Of(other, m_runs));
        }
    }
    return most;
}

template <class Times>
std::vector<int> TextCounts::Repeated(Times times) const
{
    std::vector<int> numbers;
    for (const int text : m_order) {
        numbers.insert(numbers.end(),
                       m_texts.AreBars() ? static_cast<std::size_t>(times(Of(text, m_runs))) : 1, text);
    }
    return numbers;
}

std::vector<int> TextCounts::UsesByRank() const
{
    std::vector<int> uses;
    for (const int text : m_order) {
        uses.push_back(Of(text, m_runs));
    }
    std::sort(uses.begin(), uses.end());
    uses.erase(std::unique(uses.begin(), uses.end()), uses.end());
    return uses;
}

std::vector<int> TextCounts::ForList() const
{
    const std::vector<int> byRank = UsesByRank();
    return Repeated([&byRank](int run) {
        return std::lower_bound(byRank.begin(), byRank.end(), run) - byRank.begin() + 1;
    });
}

std::vector<int> TextCounts::ForPlaceOf(int text) const
{
    const int pivot = RunOfListed(text);
    return Repeated([pivot](int run) { return run < pivot ? 1 : run == pivot ? 2 : 3; });
}

}  // namespace Desk
