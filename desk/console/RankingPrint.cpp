// One candidate a line: mark, place, text, stamp, origin.
#include "desk/console/RankingPrint.h"

#include <algorithm>
#include <ostream>

#include "desk/console/Print.h"

namespace Desk {

namespace {

bool IsBlank(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }

std::size_t Shown(const Ranking& ranking, const RankingView& view)
{
    const std::size_t count = ranking.candidates.size();
    return view.limit > 0 ? std::min(count, static_cast<std::size_t>(view.limit)) : count;
}

bool IsPresent(const Candidate& candidate, const RankingView& view)
{
    return !view.beam.empty() && IsAmong(candidate, view.present);
}

const char* Name(Source source)
{
    switch (source) {
    case Source::Project: return "project";
    case Source::Guess: return "guess";
    case Source::Given: return "given";
    case Source::Table: return "table";
    }
    return "";
}

int TextWidth(const Ranking& ranking, std::size_t shown)
{
    int width = DisplayWidth("text");
    for (std::size_t i = 0; i < shown; ++i) {
        width = std::max(width, DisplayWidth(Visible(ranking.candidates[i].text)));
    }
    return width;
}

void PrintMarks(const Ranking& ranking, const RankingView& view, std::ostream& out)
{
    if (ranking.focus >= 0) {
        out << "> the focus: "
            << (ranking.isStamped ? "the last candidate that the project supports" : "the first free name")
            << " (place " << ranking.focus + 1 << ")\n";
    } else if (ranking.isStamped) {
        out << "  no focus: the project supports no candidate\n";
    }
    if (view.beam.empty()) {
        return;
    }
    std::string places;
    std::vector<std::string> missing = view.present;
    for (std::size_t i = 0; i < ranking.candidates.size(); ++i) {
        const Candidate& candidate = ranking.candidates[i];
        if (IsPresent(candidate, view)) {
            places += (places.empty() ? "" : ", ") + std::to_string(i + 1);
            std::erase_if(missing,
                          [&candidate](const std::string& text) { return IsAmong(candidate, {text}); });
        }
    }
    if (!places.empty()) {
        out << "* what " << view.beam << " has now ("
            << (places.find(',') == std::string::npos ? "place " : "places ") << places << ")\n";
    }
    for (const std::string& text : missing) {
        out << "  " << view.beam << " has " << text << " now, which is not in the list\n";
    }
}

}  // namespace

bool IsAmong(const Candidate& candidate, const std::vector<std::string>& texts)
{
    const auto isText = [&candidate](const std::string& text) {
        const auto isWriting = [&text](const Writing& writing) { return writing.text == text; };
        return text == candidate.text || (text.empty() && IsBlank(candidate.text)) ||
               std::any_of(candidate.writings.begin(), candidate.writings.end(), isWriting);
    };
    return std::any_of(texts.begin(), texts.end(), isText);
}

std::string OriginOf(const Candidate& candidate)
{
    if (IsBlank(candidate.text)) {
        return "no elevation: " + std::to_string(candidate.text.size()) + " blanks";
    }
    if (candidate.source == Source::Given) {
        return "the through bars themselves";
    }
    if (candidate.source != Source::Project) {
        return Name(candidate.source);
    }
    std::string origin = "project, " + Times(candidate.uses);
    for (std::size_t i = 0; i < candidate.writings.size(); ++i) {
        const Writing& writing = candidate.writings[i];
        origin += i == 0 ? " as " : ", ";
        origin += writing.text;
        if (candidate.writings.size() > 1) {
            origin += ' ';
            origin += Times(writing.uses);
        }
    }
    return origin;
}

void PrintRanking(const Ranking& ranking, const RankingView& view, std::ostream& out)
{
    out << view.heading << "\n\n";
    const std::size_t count = ranking.candidates.size();
    const std::size_t shown = Shown(ranking, view);
    if (count == 0) {
        out << "   no candidates\n";
    } else {
        const int width = TextWidth(ranking, shown);
        out << "   place  " << PadRight("text", width) << "  stamp  where from\n";
        for (std::size_t i = 0; i < shown; ++i) {
            const Candidate& candidate = ranking.candidates[i];
            out << (static_cast<int>(i) == ranking.focus ? '>' : ' ')
                << (IsPresent(candidate, view) ? '*' : ' ') << ' ' << PadLeft(std::to_string(i + 1), 5)
                << "  " << PadRight(Visible(candidate.text), width) << "  "
                << PadLeft(ranking.isStamped ? std::to_string(candidate.stamp) : "-", 5) << "  "
                << OriginOf(candidate) << '\n';
        }
    }
    if (shown < count) {
        out << "   ... and " << count - shown << " more; --limit 0 shows all " << count << '\n';
    }
    if (!view.tableRemark.empty()) {
        out << "   table: " << view.tableRemark << '\n';
    }
    out << '\n';
    PrintMarks(ranking, view, out);
}

void PrintRankingJson(const Ranking& ranking, const RankingView& view, std::ostream& out)
{
    nlohmann::ordered_json answer = view.question;
    if (!view.beam.empty()) {
        answer["beam"] = view.beam;
        answer["present"] = view.present;
    }
    answer["total"] = ranking.candidates.size();
    answer["focus"] =
        ranking.focus < 0 ? nlohmann::ordered_json() : nlohmann::ordered_json(ranking.focus + 1);
    auto& list = answer["candidates"] = nlohmann::ordered_json::array();
    for (std::size_t i = 0; i < Shown(ranking, view); ++i) {
        const Candidate& candidate = ranking.candidates[i];
        nlohmann::ordered_json row = {{"place", i + 1}, {"text", candidate.text}};
        if (ranking.isStamped) {
            row["stamp"] = candidate.stamp;
        }
        row["source"] = Name(candidate.source);
        if (candidate.source == Source::Project) {
            row["uses"] = candidate.uses;
        }
        for (const Writing& writing : candidate.writings) {
            row["writings"].push_back({{"text", writing.text}, {"uses", writing.uses}});
        }
        list.push_back(std::move(row));
    }
    if (!view.tableRemark.empty()) {
        answer["tableRemark"] = view.tableRemark;
    }
    PrintJson(answer, out);
}

}  // namespace Desk
