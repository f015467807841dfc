// Each run is the ranker's own; the sources are told from its stamps and from what the project holds.
#include "desk/ranking/Ranking.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "desk/project/Encoding.h"
#include "desk/ranking/RankerTexts.h"

namespace Desk {

namespace {

// Uses of the project by candidate text: the writings that stand behind it.
using Uses = std::map<std::string, std::vector<Writing>, std::less<>>;

Uses UsesOf(const RankerTexts& texts, const TextCounts& counts)
{
    Uses uses;
    for (const int text : counts.InOrder()) {
        // The bar ranker offers texts without the head that tells side bars from torsion bars.
        const std::string& written = texts.Text(text);
        uses[texts.AreBars() ? written.substr(HeadOf(written).size()) : written].push_back(
            {written, counts.UsesOf(text)});
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
void TellNames(const List& list, const RankerTexts& texts, const TextCounts& counts,
               std::vector<Candidate>& names)
{
    std::map<std::string, int> forms;
    std::set<std::string> delivered;
    for (const int name : counts.InOrder()) {
        forms[texts.FormOf(name)] += counts.UsesOf(name);
        if (texts.IsDelivered(name)) {
            delivered.insert(texts.FormOf(name));
        }
    }
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string form = FormOfName(list.texts[static_cast<int>(i)]);
        if (delivered.contains(form)) {
            names[i].source = Source::Project;
            names[i].uses = forms[form];
            names[i].writings = {{form, forms[form]}};
        }
    }
}

// Delivered by their rank, bars are stamped by it: the stamps that all uses would give are five a use.
void RestoreStamps(List& list, const std::vector<int>& usesByRank)
{
    constexpr unsigned int StampPerUse = 5;
    for (unsigned int& stamp : list.stamps) {
        if (const unsigned int rank = stamp / StampPerUse; rank > 0) {
            stamp = StampPerUse * static_cast<unsigned int>(usesByRank[rank - 1]);
        }
    }
}

Ranking RankTexts(const Question& question, const RankerTexts& texts, const TextCounts& counts)
{
    const ProjectHost host(texts.Delivered(counts.ForList()));
    List list = RunRanker(question);
    Ranking ranking;
    ranking.focus = list.focus;
    ranking.isStamped = list.isStamped;
    if (question.ranker == Ranker::Names) {
        ranking.candidates = Candidates(list, {});
        TellNames(list, texts, counts, ranking.candidates);
        return ranking;
    }
    if (question.ranker == Ranker::Bars) {
        RestoreStamps(list, counts.UsesByRank());
    }
    ranking.candidates = Candidates(list, UsesOf(texts, counts));
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

TextCounts Counted(const RankerTexts& texts)
{
    TextCounts counts(texts);
    for (const RankerTexts::Use& use : texts.Uses()) {
        counts.Add(use.text);
    }
    return counts;
}

RankerTexts TextsFor(const Project& project, const Question& question)
{
    RankerTexts texts(question.ranker, question.barKind);
    for (std::size_t i = 0; i < project.beams.size(); ++i) {
        texts.Set(i, project.beams[i]);
    }
    return texts;
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
    const RankerTexts texts = TextsFor(project, question);
    return RankTexts(question, texts, Counted(texts));
}

Ranking ChoicesFor(const Project& project, const FieldRef& ref, bool wantsTable)
{
    return Rankings(project).For(ref, wantsTable);
}

struct Rankings::Kept {
    struct Last {
        Question question;
        Ranking ranking;
    };
    // What one ranker gets, by its kind of bars, and its last list for each field.
    struct Pool {
        RankerTexts texts;
        std::optional<TextCounts> counts;
        std::map<Field, Last> last;
    };

    Pool& PoolFor(const Question& question)
    {
        const auto [pool, isNew] = pools.try_emplace({question.ranker, question.barKind});
        if (isNew) {
            pool->second = std::make_unique<Pool>(Pool{TextsFor(project, question), {}, {}});
        }
        return *pool->second;
    }

    const Project& project;
    std::map<std::pair<Ranker, std::string>, std::unique_ptr<Pool>> pools = {};
    std::map<Field, Ranking> ofWalls = {};
};

Rankings::Rankings(const Project& project) : m_kept(std::make_unique<Kept>(Kept{project})) {}
Rankings::~Rankings() = default;

void Rankings::Update(std::size_t beam)
{
    for (const auto& [kind, pool] : m_kept->pools) {
        if (pool->texts.Set(beam, m_kept->project.beams.at(beam))) {
            pool->counts.reset();
            pool->last.clear();
        }
    }
}

void Rankings::UpdateWall(std::size_t /*wall*/) { m_kept->ofWalls.clear(); }

const Ranking& Rankings::For(const FieldRef& ref, bool wantsTable)
{
    if (ref.isWall) {
        const auto [kept, isNew] = m_kept->ofWalls.try_emplace(ref.field);
        if (const FieldRow& row = RowOf(ref.field); isNew && row.ranker == Ranker::OtherWalls) {
            kept->second = OtherWalls(m_kept->project, row.ofWall);
        }
        return kept->second;
    }
    Question question = QuestionFor(m_kept->project, ref, wantsTable);
    if (!question.wantsTable) {  // the table alone goes by these
        question.width.reset();
        question.area.reset();
        question.grade.reset();
        question.seismicClass.reset();
    }
    Kept::Pool& pool = m_kept->PoolFor(question);
    if (!pool.counts) {
        pool.counts.emplace(Counted(pool.texts));
    }
    auto last = pool.last.find(ref.field);
    if (last == pool.last.end() || last->second.question != question) {
        Ranking ranking = RankTexts(question, pool.texts, *pool.counts);
        last = pool.last.insert_or_assign(ref.field, Kept::Last{question, std::move(ranking)}).first;
    }
    return last->second.ranking;
}

}  // namespace Desk
