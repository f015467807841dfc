// One use at a time is emptied in the project that the host answers from, then put back. Hiding one use or
// another of the same text gives the same list, so most uses of a text share one run.
#include "desk/ranking/Replay.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "RankerModule.h"
#include "desk/project/Encoding.h"
#include "desk/ranking/ProjectHost.h"
#include "desk/ranking/SimpleOrders.h"

namespace Desk::Hitrate {

namespace {

CString Gbk(const std::string& text) { return GbkFromUtf8(text).value_or(CString()); }

int WidthOf(const Beam& beam)
{
    int width = 0;
    BEAMSIZE_HITNESS_RANKER().GetBeamWidth(Gbk(beam.section), width);
    return width;
}

CString WithoutHead(const CString& text)
{
    const char head = text.GetAt(0);
    return head == 'G' || head == 'N' || head == '*' ? text.Mid(1) : text;
}

using Member = std::string Beam::*;

CStringArray RankSections(const Beam&, Member)
{
    BEAMSIZE_HITNESS_RANKER ranker;
    CStringArray list;
    ranker.ProcessController(list);
    return list;
}

CStringArray RankElevations(const Beam&, Member)
{
    BEAMLEVEL_HITNESS_RANKER ranker;
    CStringArray list;
    ranker.ProcessController(list);
    list.RemoveAt(0);  // the row of blanks
    return list;
}

CStringArray RankStirrups(const Beam& beam, Member)
{
    GUJIN_HITNESS_RANKER ranker;
    ranker.SetPara(WidthOf(beam), beam.seismicClass, beam.concreteGrade, nullptr);
    CStringArray list;
    ranker.ProcessController(list);
    return list;
}

CString BarKind(const Beam& beam, Member member)
{
    if (member == &Beam::leftEnd || member == &Beam::rightEnd) {
        return Gbk(beam.topBars);
    }
    if (member == &Beam::topBars) {
        return "1";
    }
    if (member == &Beam::erection) {
        return "4";
    }
    return member == &Beam::bottomBars ? "5.1" : "5.2";
}

CStringArray RankBars(const Beam& beam, Member member)
{
    const int area = member == &Beam::leftEnd      ? beam.area.leftEnd
                     : member == &Beam::rightEnd   ? beam.area.rightEnd
                     : member == &Beam::bottomBars ? beam.area.bottom
                                                   : beam.area.top;
    CHABIAO_HITNESS_RANKER ranker;
    ranker.SetPara(WidthOf(beam), area, nullptr, BarKind(beam, member));
    CStringArray list;
    ranker.ProcessController(list);
    return list;
}

struct ListKind {
    const char* name;
    std::vector<Member> members;
    CStringArray (*rank)(const Beam& beam, Member member);
    bool isBars = false;
};

const std::vector<ListKind>& ListKinds()
{
    static const std::vector<ListKind> kinds = {
        {"section", {&Beam::section}, RankSections},
        {"elevation", {&Beam::elevation}, RankElevations},
        {"top bars", {&Beam::topBars}, RankBars, true},
        {"end bars", {&Beam::leftEnd, &Beam::rightEnd}, RankBars, true},
        {"bottom bars", {&Beam::bottomBars}, RankBars, true},
        {"erection bars", {&Beam::erection}, RankBars, true},
        {"torsion, side", {&Beam::torsion, &Beam::side}, RankBars, true},
        {"stirrups", {&Beam::stirrup}, RankStirrups},
    };
    return kinds;
}

std::size_t PlaceIn(const CStringArray& list, const CString& text)
{
    const auto found = std::find(list.begin(), list.end(), text);
    return found == list.end() ? 0 : static_cast<std::size_t>(found - list.begin()) + 1;
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
        ForEachUse([this](const Beam& beam, Member member) {
            const CString text = Gbk(beam.*member);
            Pool& pool = PoolOf(beam, member);
            pool.orders.Add(Shown(text));
            pool.alike[WithOneJoint(text)].insert(text);
        });
        KindTally tally{m_kind.name, {}, {}, {}};
        ForEachUse([this, &tally](Beam& beam, Member member) {
            Pool& pool = PoolOf(beam, member);
            tally.ranker.Add(RankerPlace(pool, beam, member));
            const SimplePlaces simple = pool.orders.PlacesWithout(Shown(Gbk(beam.*member)));
            tally.alphabetical.Add(simple.alphabetical);
            tally.frequency.Add(simple.frequency);
        });
        return tally;
    }

private:
    template <class Use>
    void ForEachUse(Use use)
    {
        for (Beam& beam : m_project.beams) {
            for (const Member member : m_kind.members) {
                if (!(beam.*member).empty()) {
                    use(beam, member);
                }
            }
        }
    }

    Pool& PoolOf(const Beam& beam, Member member)
    {
        return m_pools[m_kind.isBars ? BarKind(beam, member) : CString()];
    }

    CString Shown(const CString& text) const { return m_kind.isBars ? WithoutHead(text) : text; }

    static CString WithOneJoint(const CString& text)
    {
        std::string joined(text.View());
        std::replace(joined.begin(), joined.end(), '/', '+');
        return std::string_view(joined);
    }

    // The first use of a text can stand for the place of its text among equals, and so can every use
    // where the order of bars ties it with another text: these get a run of their own.
    std::size_t RankerPlace(Pool& pool, Beam& beam, Member member)
    {
        const CString text = Gbk(beam.*member);
        const bool isAgain = !pool.seen.insert(text).second;
        const bool isShared = isAgain && (!m_kind.isBars || pool.alike[WithOneJoint(text)].size() == 1);
        if (const auto known = pool.places.find(text); isShared && known != pool.places.end()) {
            return known->second;
        }
        std::string hidden;
        std::swap(beam.*member, hidden);
        const std::size_t place = PlaceIn(m_kind.rank(beam, member), Shown(text));
        std::swap(beam.*member, hidden);
        if (isShared) {
            pool.places.emplace(text, place);
        }
        return place;
    }

    Project& m_project;
    const ListKind& m_kind;
    std::map<CString, Pool> m_pools;  // by the kind text of the bar ranker
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
        BEAMNAME_HITNESS_RANKER ranker;
        CStringArray list;
        ranker.ProcessController(list);
        tally.ranker.Add(PlaceIn(list, name));
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
