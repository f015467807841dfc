// One use at a time is emptied in the project that the host answers from, then put back. Hiding one use or
// another of the same text gives the same list, so most uses of a text share one run.
#include "desk/ranking/Replay.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "desk/project/Encoding.h"
#include "desk/ranking/ProjectHost.h"
#include "desk/ranking/Question.h"
#include "desk/ranking/SimpleOrders.h"

namespace Desk::Hitrate {

namespace {

CString Gbk(const std::string& text) { return GbkFromUtf8(text).value_or(CString()); }

struct ListKind {
    const char* name;
    std::vector<Field> fields;
};

// One entry a list that the rankers make from the project's texts.
const std::vector<ListKind>& ListKinds()
{
    static const std::vector<ListKind> kinds = {
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

// The texts that a ranker gets from the project in one run.
struct Pool {
    SimpleOrders orders;
    std::map<CString, std::set<CString>> alike;  // texts that the order of bars does not tell apart
    std::set<CString> seen;
    std::map<CString, std::size_t> places;  // of a text that was seen before
};

class ListReplay {
public:
    ListReplay(Project& project, const ListKind& kind) : m_project(project), m_kind(kind) {}

    KindTally Run()
    {
        ForEachUse([this](const FieldRef& ref) {
            const std::string& text = TextAt(m_project, ref);
            for (const std::string& kind : std::set{AskedKind(ref), OwnKind(ref)}) {
                Pool& pool = m_pools[kind];
                pool.orders.Add(Shown(text));
                pool.alike[WithOneJoint(Gbk(text))].insert(Gbk(text));
            }
        });
        KindTally tally{m_kind.name, {}, {}, {}};
        ForEachUse([this, &tally](const FieldRef& ref) {
            Pool& pool = m_pools[AskedKind(ref)];
            tally.ranker.Add(RankerPlace(pool, ref));
            const SimplePlaces simple = pool.orders.PlacesWithout(Shown(TextAt(m_project, ref)));
            tally.alphabetical.Add(simple.alphabetical);
            tally.frequency.Add(simple.frequency);
        });
        return tally;
    }

private:
    template <class Use>
    void ForEachUse(Use use)
    {
        for (std::size_t i = 0; i < m_project.beams.size(); ++i) {
            for (const FieldRef& ref : RefsOf(m_project, {false, i})) {
                const auto& fields = m_kind.fields;
                if (std::find(fields.begin(), fields.end(), ref.field) != fields.end() &&
                    !TextAt(m_project, ref).empty()) {
                    use(ref);
                }
            }
        }
    }

    // The kind text that a use is looked for under.
    [[nodiscard]] std::string AskedKind(const FieldRef& ref) const
    {
        return QuestionFor(m_project, ref, false).barKind;
    }
    // That of its field, under which the ranker gets it whatever through bars it lies on.
    [[nodiscard]] std::string OwnKind(const FieldRef& ref) const
    {
        const Beam& beam = m_project.beams[ref.index];
        const bool inPlace = ref.inPlace >= 0;
        return RowOf(inPlace ? FieldAt(beam, beam.inPlace[static_cast<std::size_t>(ref.inPlace)])
                             : ref.field)
            .barKind;
    }

    // As the ranker lists it, which cuts the heads of bars.
    CString Shown(const std::string& text) const
    {
        return Gbk(IsBars() ? text.substr(HeadOf(text).size()) : text);
    }
    [[nodiscard]] bool IsBars() const { return RowOf(m_kind.fields.front()).ranker == Ranker::Bars; }

    static CString WithOneJoint(const CString& text)
    {
        std::string joined(text.View());
        std::replace(joined.begin(), joined.end(), '/', '+');
        return std::string_view(joined);
    }

    // The first use of a text can stand for the place of its text among equals, and so can every use
    // where the order of bars ties it with another text: these get a run of their own.
    std::size_t RankerPlace(Pool& pool, const FieldRef& ref)
    {
        std::string& held = TextAt(m_project, ref);
        const CString text = Gbk(held);
        const bool isAgain = !pool.seen.insert(text).second;
        const bool isShared = isAgain && (!IsBars() || pool.alike[WithOneJoint(text)].size() == 1);
        if (const auto known = pool.places.find(text); isShared && known != pool.places.end()) {
            return known->second;
        }
        std::string hidden;
        std::swap(held, hidden);
        const List list = RunRanker(QuestionFor(m_project, ref, false));
        std::swap(held, hidden);
        const std::size_t place = PlaceIn(list.texts, Shown(held));
        if (isShared) {
            pool.places.emplace(text, place);
        }
        return place;
    }

    Project& m_project;
    const ListKind& m_kind;
    std::map<std::string, Pool> m_pools;  // by the kind text of the bar ranker
};

KindTally ReplayNames(const Project& project)
{
    KindTally tally{"name", {}, {}, {}};
    Project before;
    const ProjectHost host(before);
    SimpleOrders orders;
    for (const Beam& beam : project.beams) {
        if (beam.name.empty()) {
            continue;
        }
        const CString name = Gbk(beam.name);
        tally.ranker.Add(PlaceIn(RunRanker({.ranker = Ranker::Names}).texts, name));
        const SimplePlaces simple = orders.PlacesOf(name);
        tally.alphabetical.Add(simple.alphabetical);
        tally.frequency.Add(simple.frequency);
        orders.Add(name);
        before.beams.emplace_back().name = beam.name;
    }
    return tally;
}

}  // namespace

std::vector<KindTally> ReplayProject(Project project)
{
    std::vector<KindTally> tallies = {ReplayNames(project)};
    const ProjectHost host(project);
    for (const ListKind& kind : ListKinds()) {
        tallies.push_back(ListReplay(project, kind).Run());
    }
    return tallies;
}

}  // namespace Desk::Hitrate
