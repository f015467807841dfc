// Each run is the ranker's own; the sources are told from its stamps and from what the project holds.
#include "desk/ranking/Ranking.h"

#include <algorithm>
#include <map>
#include <unordered_set>

#include "RankerModule.h"
#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"
#include "desk/ranking/ProjectHost.h"
#include "desk/ranking/Tables.h"

namespace Desk {

namespace {

// Uses of the project by candidate text: the writings that stand behind it.
using Uses = std::map<std::string, std::vector<Writing>, std::less<>>;

void Count(Uses& uses, const std::string& candidate, const std::string& written)
{
    std::vector<Writing>& writings = uses[candidate];
    const auto known = std::find_if(writings.begin(), writings.end(),
                                    [&written](const Writing& writing) { return writing.text == written; });
    if (known != writings.end()) {
        ++known->uses;
    } else {
        writings.push_back({written, 1});
    }
}

Uses UsesOf(const Project& project, std::string Beam::*member)
{
    Uses uses;
    for (const Beam& beam : project.beams) {
        if (const std::string& text = beam.*member; !text.empty()) {
            Count(uses, text, text);
        }
    }
    return uses;
}

// The bar ranker offers texts without the head character that tells side bars from torsion bars.
Uses BarUses(const Project& project, const CString& kind)
{
    Uses uses;
    for (const Beam& beam : project.beams) {
        for (const std::string* text : BarTexts(beam, kind)) {
            if (!text->empty()) {
                const bool hasHead = std::string_view("GN*").find(text->front()) != std::string_view::npos;
                Count(uses, text->substr(hasHead ? 1 : 0), *text);
            }
        }
    }
    return uses;
}

void SetUses(Candidate& candidate, const Uses& uses)
{
    const auto found = uses.find(candidate.text);
    if (found == uses.end()) {
        return;
    }
    candidate.source = Source::Project;
    for (const Writing& writing : found->second) {
        candidate.uses += writing.uses;
    }
    if (found->second.size() > 1 || found->second.front().text != candidate.text) {
        candidate.writings = found->second;
    }
}

// The list as it stands, stamped or not; entries from `table` on are table rows.
std::vector<Candidate> Candidates(const CStringArray& list, const CUIntArray& stamps, const Uses& uses,
                                  int table)
{
    std::vector<Candidate> candidates;
    candidates.reserve(static_cast<std::size_t>(list.GetSize()));
    for (int i = 0; i < list.GetSize(); ++i) {
        Candidate candidate;
        candidate.text = Utf8FromGbk(list[i]);
        candidate.stamp = i < stamps.GetSize() ? static_cast<int>(stamps[i]) : 0;
        if (i >= table) {
            candidate.source = Source::Table;
        } else {
            SetUses(candidate, uses);
        }
        candidates.push_back(std::move(candidate));
    }
    return candidates;
}

std::string Behind(const std::string& name, const std::string& type)
{
    const std::size_t bracket = name.find('(');
    return type + (bracket == std::string::npos ? std::string() : name.substr(bracket));
}

// Type and suffix of a name, "KL(3)" of KL12(3).
std::string FormOf(const CString& name)
{
    CString type;
    BEAMNAME_HITNESS_RANKER::GetBeamType(name, type);
    return Behind(Utf8FromGbk(name), Utf8FromGbk(type));
}

}  // namespace

Ranking RankNames(const Project& project, int projectKind)
{
    const ProjectHost host(project);
    BEAMNAME_HITNESS_RANKER ranker;
    ranker.m_nProjectKind = projectKind;
    CStringArray list;
    ranker.ProcessController(list);

    // A name is free by nature; it comes from the project when its neighbours do.
    BEAMNAME_HITNESS_RANKER again;
    CStringArray fromProject;
    again.SelectFromProject(fromProject);
    std::unordered_set<std::string_view> known;
    for (const CString& name : fromProject) {
        known.insert(name.View());
    }
    std::map<std::string, int> forms;
    for (const Beam& beam : project.beams) {
        if (const std::optional<CString> name = GbkFromUtf8(beam.name)) {
            ++forms[FormOf(*name)];
        }
    }
    Ranking ranking;
    ranking.focus = list.IsEmpty() ? -1 : ranker.GetMostFixedBeamNameIndex();
    for (const CString& name : list) {
        Candidate candidate;
        candidate.text = Utf8FromGbk(name);
        if (known.contains(name.View())) {
            candidate.source = Source::Project;
            const std::string form = FormOf(name);
            candidate.uses = forms[form];
            candidate.writings = {{form, candidate.uses}};
        }
        ranking.candidates.push_back(std::move(candidate));
    }
    return ranking;
}

Ranking RankSections(const Project& project, int projectKind)
{
    const ProjectHost host(project);
    BEAMSIZE_HITNESS_RANKER ranker;
    ranker.m_nProjectKind = projectKind;
    CStringArray list;
    ranker.ProcessController(list);
    return {Candidates(list, {}, UsesOf(project, &Beam::section), list.GetSize()), -1, false};
}

Ranking RankElevations(const Project& project)
{
    const ProjectHost host(project);
    BEAMLEVEL_HITNESS_RANKER ranker;
    CStringArray list;
    ranker.ProcessController(list);
    return {Candidates(list, {}, UsesOf(project, &Beam::elevation), list.GetSize()), -1, false};
}

Ranking RankBars(const Project& project, const BarQuery& query)
{
    const std::optional<CString> kind = GbkFromUtf8(query.kind);
    if (!kind) {
        throw Failure(query.kind + ": holds a character that GBK does not have");
    }
    const ProjectHost host(project);
    CHABIAO_HITNESS_RANKER ranker;
    ranker.m_nProjectKind = query.projectKind;
    ranker.SetPara(query.width, query.area, &BarTable(), *kind);
    CStringArray list;
    ranker.ProcessController(list);
    const int table = list.GetSize();
    if (query.table) {
        ranker.ChaBiao(list);
    }
    Ranking ranking{Candidates(list, ranker.m_arFlags, BarUses(project, *kind), table),
                    ranker.FindIndexOfFocusByArFlags(), true};
    // The look-up for given through bars begins with these bars themselves.
    if (table < list.GetSize() && list[table] == *kind) {
        ranking.candidates[static_cast<std::size_t>(table)].source = Source::Given;
    }
    return ranking;
}

Ranking RankStirrups(const Project& project, const StirrupQuery& query)
{
    const ProjectHost host(project);
    GUJIN_HITNESS_RANKER ranker;
    ranker.m_nProjectKind = query.projectKind;
    ranker.SetPara(query.width, query.seismicClass, query.grade, &StirrupTable());
    CStringArray list;
    ranker.ProcessController(list);
    const int table = list.GetSize();
    if (query.table) {
        ranker.ChaBiao(list);
    }
    return {Candidates(list, ranker.m_arFlags, UsesOf(project, &Beam::stirrup), table),
            ranker.FindIndexOfFocusByArFlags(), true};
}

}  // namespace Desk
