// Each text is asked for by a run of its own, on as few texts as give its place.
#include "desk/ranking/Replay.h"

#include <deque>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "desk/ranking/Question.h"
#include "desk/ranking/RankerTexts.h"
#include "desk/ranking/SimpleOrders.h"

namespace Desk::Hitrate {

namespace {

struct ListKind {
    const char* name;
    std::vector<Field> fields;
};

// One entry a list that the rankers make from the project's texts.
const std::vector<ListKind>& ListKinds()
{
    static const std::vector<ListKind> kinds = {
        {"name", {Field::Name}},
        {"section", {Field::Section}},
        {"elevation", {Field::Elevation}},
        {"top bars", {Field::TopBars}},
        {"end bars", {Field::LeftEnd, Field::RightEnd}},
        {"bottom bars", {Field::BottomBars}},
        {"erection bars", {Field::Erection}},
        {"torsion, side", {Field::Torsion, Field::Side}},
        {"stirrups", {Field::Stirrup}},
    };
    return kinds;
}

// The row of blanks among the elevations is no candidate.
std::size_t PlaceIn(const CStringArray& list, const CString& text)
{
    std::size_t place = 0;
    for (const CString& each : list) {
        place += static_cast<std::size_t>(each.View().find_first_not_of(' ') != std::string_view::npos);
        if (each == text) {
            return place;
        }
    }
    return 0;
}

// The texts that a ranker gets from the project, and its last list.
class Pool {
public:
    explicit Pool(const Question& question)
        : m_question{.ranker = question.ranker, .barKind = question.barKind},
          m_texts(question.ranker, question.barKind), m_counts(m_texts)
    {
    }
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

    void Add(std::size_t beam, const std::string& text)
    {
        if (const std::optional<int> number = m_texts.NumberOf(text)) {
            m_texts.Add(beam, *number);
            m_counts.Add(*number);
            m_orders.Add(m_texts.Listed(*number));
        }
    }
    [[nodiscard]] std::size_t Size() const { return m_texts.Uses().size(); }
    [[nodiscard]] std::optional<int> NumberOf(const std::string& text) { return m_texts.NumberOf(text); }

    // Of a text in the ranker's list, given all uses.
    std::size_t PlaceOf(int text) { return Place(text, m_counts); }
    // Given all but the use at an index. Hiding one use or another of a text gives the same list, but for
    // the first one and for bars that the order of bars ties with others.
    std::size_t PlaceWithout(std::size_t hidden)
    {
        const int text = m_texts.Uses()[hidden].text;
        const bool isShared =
            !m_wasAsked.insert(text).second && (!m_texts.AreBars() || m_texts.IsAlone(text));
        if (const auto known = m_places.find(text); isShared && known != m_places.end()) {
            return known->second;
        }
        TextCounts counts(m_texts);
        for (std::size_t i = 0; i < Size(); ++i) {
            if (i != hidden) {
                counts.Add(m_texts.Uses()[i].text);
            }
        }
        const std::size_t place = Place(text, counts);
        if (isShared) {
            m_places.emplace(text, place);
        }
        return place;
    }

    [[nodiscard]] SimplePlaces SimplePlacesOf(int text, bool isItselfHidden) const
    {
        return isItselfHidden ? m_orders.PlacesWithout(m_texts.Listed(text))
                              : m_orders.PlacesOf(m_texts.Listed(text));
    }

private:
    std::size_t Place(int text, const TextCounts& counts)
    {
        if (m_question.ranker != Ranker::Names && !counts.Holds(text) && !IsGuess(text)) {
            return 0;
        }
        if (std::vector<int> delivered = counts.ForPlaceOf(text); !m_list || delivered != m_delivered) {
            m_delivered = std::move(delivered);
            const ProjectHost host(m_texts.Delivered(m_delivered));
            m_list = RunRanker(m_question).texts;
        }
        return PlaceIn(*m_list, m_texts.Listed(text));
    }
    // All guesses are in the list for an empty project.
    bool IsGuess(int text)
    {
        if (!m_guesses) {
            const ProjectHost host({});
            m_guesses = RunRanker(m_question).texts;
        }
        return PlaceIn(*m_guesses, m_texts.Listed(text)) != 0;
    }

    Question m_question;
    RankerTexts m_texts;
    TextCounts m_counts;
    SimpleOrders m_orders;
    std::vector<int> m_delivered;
    std::optional<CStringArray> m_list;  // for what was delivered last
    std::optional<CStringArray> m_guesses;
    std::set<int> m_wasAsked;
    std::map<int, std::size_t> m_places;
};

struct KindReplay {
    explicit KindReplay(const ListKind& kind) : tally{kind.name, {}} {}

    Pool& PoolFor(const Question& question)
    {
        return pools.try_emplace(question.barKind, question).first->second;
    }

    KindTally tally;
    std::map<std::string, Pool> pools;  // by the kind text of the bar ranker
    std::map<std::string, int> uses;    // of each text, as it is written
};

class Replay {
public:
    Replay(const Project& project, Known known) : m_project(project), m_proposer(project), m_known(known)
    {
        for (const ListKind& kind : ListKinds()) {
            for (const Field field : kind.fields) {
                m_kindOf[field] = m_kinds.size();
            }
            m_kinds.emplace_back(kind);
        }
    }

    std::vector<KindTally> Run()
    {
        // By beams, as one enters them: the proposer keeps what the fields of a beam have in common.
        for (std::size_t i = 0; i < m_project.beams.size(); ++i) {
            for (const FieldRef& ref : RefsOf(m_project, {false, i})) {
                if (TextAt(m_project, ref).empty()) {
                    continue;
                }
                if (m_known == Known::Before || ref.field == Field::Name) {
                    Ask(ref, std::nullopt);
                    Enter(ref);
                } else {
                    m_hidden.push_back({ref, Enter(ref)});
                }
            }
        }
        for (const auto& [ref, index] : m_hidden) {
            Ask(ref, index);
        }
        std::vector<KindTally> tallies = {{"all", {}}};
        for (const KindReplay& kind : m_kinds) {
            tallies.push_back(kind.tally);
            for (std::size_t i = 0; i < OrderNames.size() && &kind != &KindOf(Field::Name); ++i) {
                tallies.front().tallies[i] += kind.tally.tallies[i];
            }
        }
        return tallies;
    }

private:
    [[nodiscard]] KindReplay& KindOf(Field field) { return m_kinds[m_kindOf.at(field)]; }

    // The index of the use in the pool that it is asked for in, which is that of its kind text. The ranker
    // gets it under that of its field too, whatever through bars it lies on.
    std::size_t Enter(const FieldRef& ref)
    {
        const std::string& text = TextAt(m_project, ref);
        const Beam& beam = m_project.beams[ref.index];
        KindReplay& kind = KindOf(ref.field);
        ++kind.uses[text];
        Question question = QuestionFor(m_project, ref, false);
        Pool& asked = kind.PoolFor(question);
        const std::size_t index = asked.Size();
        asked.Add(ref.index, text);
        const Field field = ref.inPlace < 0
                                ? ref.field
                                : FieldAt(beam, beam.inPlace[static_cast<std::size_t>(ref.inPlace)]);
        question.barKind = RowOf(field).barKind;
        if (Pool& own = kind.PoolFor(question); &own != &asked) {
            own.Add(ref.index, text);
        }
        return index;
    }

    // Without the use at an index, or of what was entered so far.
    void Ask(const FieldRef& ref, std::optional<std::size_t> hidden)
    {
        const std::string& text = TextAt(m_project, ref);
        KindReplay& kind = KindOf(ref.field);
        Pool& pool = kind.PoolFor(QuestionFor(m_project, ref, false));
        std::size_t ofRanker = 0;
        SimplePlaces simple;
        if (const std::optional<int> number = pool.NumberOf(text)) {
            ofRanker = hidden ? pool.PlaceWithout(*hidden) : pool.PlaceOf(*number);
            simple = pool.SimplePlacesOf(*number, hidden.has_value());
        }
        const bool isSeen = kind.uses[text] > (hidden ? 1 : 0);
        const std::size_t proposed = m_proposer.PlaceOf(ref, hidden ? Known::All : Known::Before);
        kind.tally.Of(Order::Proposal).Add(proposed, isSeen);
        kind.tally.Of(Order::Ranker).Add(ofRanker, isSeen);
        kind.tally.Of(Order::Frequency).Add(simple.frequency, isSeen);
        kind.tally.Of(Order::Alphabetical).Add(simple.alphabetical, isSeen);
    }

    const Project& m_project;
    Proposer m_proposer;
    Known m_known;
    std::map<Field, std::size_t> m_kindOf;
    std::deque<KindReplay> m_kinds;
    std::vector<std::pair<FieldRef, std::size_t>> m_hidden;
};

}  // namespace

std::vector<KindTally> ReplayProject(const Project& project, Known known)
{
    return Replay(project, known).Run();
}

}  // namespace Desk::Hitrate
