// Each run is the ranker's own; the sources are told from its stamps and from what the project holds.
#include "desk/ranking/Ranking.h"

#include <algorithm>
#include <map>
#include <unordered_set>

#include "desk/project/Encoding.h"
#include "desk/ranking/ProjectHost.h"

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

Uses UsesOf(const Project& project, Field field)
{
    Uses uses;
    for (const Beam& beam : project.beams) {
        ForEachText(beam, field, [&uses](const std::string& text) {
            if (!text.empty()) {
                Count(uses, text, text);
            }
        });
    }
    return uses;
}

// The bar ranker offers texts without the head character that tells side bars from torsion bars.
Uses BarUses(const Project& project, const std::string& kind)
{
    Uses uses;
    for (const Beam& beam : project.beams) {
        for (const std::string* text : BarTexts(beam, kind)) {
            if (!text->empty()) {
                Count(uses, text->substr(HeadOf(*text).size()), *text);
            }
        }
    }
    return uses;
}

Uses UsesFor(const Project& project, const Question& question)
{
    switch (question.ranker) {
    case Ranker::Sections: return UsesOf(project, Field::Section);
    case Ranker::Elevations: return UsesOf(project, Field::Elevation);
    case Ranker::Stirrups: return UsesOf(project, Field::Stirrup);
    default: return BarUses(project, question.barKind);
    }
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

std::vector<Candidate> Candidates(const List& list, const Uses& uses)
{
    std::vector<Candidate> candidates;
    candidates.reserve(static_cast<std::size_t>(list.texts.GetSize()));
    for (int i = 0; i < list.texts.GetSize(); ++i) {
        Candidate candidate;
        candidate.text = Utf8FromGbk(list.texts[i]);
        candidate.stamp = i < list.stamps.GetSize() ? static_cast<int>(list.stamps[i]) : 0;
        if (i >= list.table) {
            candidate.source = Source::Table;
        } else {
            SetUses(candidate, uses);
        }
        candidates.push_back(std::move(candidate));
    }
    return candidates;
}

// Type and suffix of a name, "KL(3)" of KL12(3).
std::string FormOf(const CString& name)
{
    CString type;
    BEAMNAME_HITNESS_RANKER::GetBeamType(name, type);
    CString suffix;
    BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(name, suffix);
    return Utf8FromGbk(type + suffix);
}

// The ranker's texts carry no head character; the field has its own, and its uses are those written so.
void DressWithHead(Ranking& ranking, const std::string& heads)
{
    for (Candidate& candidate : ranking.candidates) {
        std::string best = heads.front() + candidate.text;
        int bestUses = 0;
        candidate.uses = 0;
        for (const Writing& writing : candidate.writings) {
            if (!writing.text.empty() && heads.find(writing.text.front()) != std::string::npos) {
                candidate.uses += writing.uses;
                if (writing.uses > bestUses) {
                    best = writing.text;
                    bestUses = writing.uses;
                }
            }
        }
        candidate.text = best;
        if (candidate.source == Source::Project && candidate.uses == 0) {
            candidate.source = Source::Guess;  // the project has them with the other head alone
        }
    }
}

// A name is free by nature; it comes from the project when its neighbours do.
void TellNames(const Project& project, std::vector<Candidate>& names)
{
    BEAMNAME_HITNESS_RANKER ranker;
    CStringArray fromProject;
    ranker.SelectFromProject(fromProject);
    std::unordered_set<std::string> known;
    for (const CString& name : fromProject) {
        known.insert(Utf8FromGbk(name));
    }
    std::map<std::string, int> forms;
    for (const Beam& beam : project.beams) {
        if (const std::optional<CString> name = GbkFromUtf8(beam.name)) {
            ++forms[FormOf(*name)];
        }
    }
    for (Candidate& candidate : names) {
        if (known.contains(candidate.text)) {
            candidate.source = Source::Project;
            const std::string form = FormOf(GbkFromUtf8(candidate.text).value_or(CString()));
            candidate.uses = forms[form];
            candidate.writings = {{form, candidate.uses}};
        }
    }
}

Ranking OtherWalls(const Project& project, std::string Wall::*member)
{
    std::map<std::string, int> uses;
    for (const Wall& wall : project.walls) {
        if (!(wall.*member).empty()) {
            ++uses[wall.*member];
        }
    }
    Ranking ranking;
    for (const auto& [text, count] : uses) {
        ranking.candidates.push_back({text, count, Source::Project, count, {}});
    }
    std::stable_sort(ranking.candidates.begin(), ranking.candidates.end(),
                     [](const Candidate& a, const Candidate& b) { return a.uses > b.uses; });
    return ranking;
}

}  // namespace

Ranking Rank(const Project& project, const Question& question)
{
    const ProjectHost host(project);
    const List list = RunRanker(question);
    Ranking ranking;
    ranking.focus = list.focus;
    ranking.isStamped = list.isStamped;
    if (question.ranker == Ranker::Names) {
        ranking.candidates = Candidates(list, {});
        TellNames(project, ranking.candidates);
        return ranking;
    }
    ranking.candidates = Candidates(list, UsesFor(project, question));
    // The look-up for given through bars begins with these bars themselves.
    if (const auto table = static_cast<std::size_t>(list.table);
        table < ranking.candidates.size() && ranking.candidates[table].text == question.barKind) {
        ranking.candidates[table].source = Source::Given;
    }
    if (!question.heads.empty()) {
        DressWithHead(ranking, question.heads);
    }
    return ranking;
}

Ranking ChoicesFor(const Project& project, const FieldRef& ref, bool wantsTable)
{
    const FieldRow& row = RowOf(ref.field);
    if (!ref.isWall) {
        return Rank(project, QuestionFor(project, ref, wantsTable));
    }
    return row.ranker == Ranker::OtherWalls ? OtherWalls(project, row.ofWall) : Ranking();
}

Rankings::Rankings(const Project& project) : m_project(project) {}

void Rankings::Update(std::size_t /*beam*/) {}
void Rankings::UpdateWall(std::size_t /*wall*/) {}

const Ranking& Rankings::For(const FieldRef& ref, bool wantsTable)
{
    m_ranking = ChoicesFor(m_project, ref, wantsTable);
    return m_ranking;
}

}  // namespace Desk
