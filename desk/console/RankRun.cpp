// Parameters come from the command line first, then from the beam.
#include "desk/console/RankRun.h"

#include <algorithm>
#include <functional>

#include <CLI/CLI.hpp>

#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/drawing/Drawing.h"
#include "desk/project/Failure.h"
#include "desk/project/FindBeam.h"
#include "desk/project/ProjectFile.h"
#include "desk/reading/Bars.h"

namespace Desk {

namespace {

// The fields of beams that have a kind text of their own.
std::vector<const FieldRow*> FieldsOfKind(const std::string& kind)
{
    std::vector<const FieldRow*> rows;
    for (const Field field : BeamFields()) {
        if (const FieldRow& row = RowOf(field); row.ranker == Ranker::Bars && kind == row.barKind) {
            rows.push_back(&row);
        }
    }
    return rows;
}

// "Top through bars (kind 1)".
std::string NameOfKind(const std::string& kind)
{
    std::string name;
    for (const FieldRow* const row : FieldsOfKind(kind)) {
        name += (name.empty() ? "" : " / ") + std::string(row->english);
    }
    return name.empty() ? "Complete top bars at the ends, on through bars " + kind
                        : name + " (kind " + kind + ")";
}

TableAnswer RowsFor(const Question& question)
{
    const int width = question.width.value_or(0);
    const int area = question.area.value_or(0);
    if (FieldsOfKind(question.barKind).empty()) {
        return BarsOn(width, area, question.barKind);
    }
    const bool isBottom = question.barKind.starts_with("5.");
    return BarsFor(width, area, isBottom ? BarColumn::Bottom : BarColumn::Top);
}

// The end that a word stands for; of both ends the one that needs more steel.
std::optional<Field> EndOf(const std::string& word, const Beam& beam)
{
    if (word == "ends") {
        return beam.area.leftEnd >= beam.area.rightEnd ? Field::LeftEnd : Field::RightEnd;
    }
    return word == "left"    ? std::optional(Field::LeftEnd)
           : word == "right" ? std::optional(Field::RightEnd)
                             : std::nullopt;
}

}  // namespace

RankRun::RankRun(const RankOptions& options, std::ostream& out)
    : m_options(options), m_out(out), m_project(OpenProject(options.project)),
      m_beam(options.beam.empty() ? nullptr : &FindBeam(m_project, options.beam))
{
    constexpr int DefaultLimit = 25;
    m_view.limit = options.limit.value_or(options.json ? 0 : DefaultLimit);
    if (m_beam != nullptr) {
        m_view.beam = m_beam->name;
    }
}

void RankRun::Names()
{
    Head("name", "Names for the next beam");
    m_view.beam.clear();  // its own name is taken and never in the list
    Print({.ranker = Ranker::Names, .projectKind = m_options.projectKind});
}

void RankRun::Sections()
{
    Head("section", "Sections");
    Print({.ranker = Ranker::Sections, .projectKind = m_options.projectKind}, &Beam::section);
}

void RankRun::Elevations()
{
    Head("elevation", "Elevations");
    Print({.ranker = Ranker::Elevations}, &Beam::elevation);
}

void RankRun::Bars()
{
    Question question = BarQuestion();
    question.projectKind = m_options.projectKind;
    question.wantsTable = m_options.table;
    question.width = Number(m_options.width, "--width", question.width);
    question.area = Number(m_options.area, "--area", question.area);
    Head("bars", NameOfKind(question.barKind));
    m_view.question["kind"] = question.barKind;
    Say("width", question.width, ", width ", " mm");
    Say("area", question.area, ", area ", " mm²");
    const Ranking ranking = Rank(m_project, question);
    if (question.wantsTable) {
        RemarkOnTable(ranking, RowsFor(question));
    }
    if (m_beam != nullptr) {
        for (const std::string* const text : BarTexts(*m_beam, question.barKind)) {
            if (!text->empty()) {
                m_view.present.push_back(*text);
            }
        }
    }
    Print(ranking);
}

void RankRun::Stirrups()
{
    Question question = m_beam != nullptr ? QuestionFor(*m_beam, Field::Stirrup, m_options.table)
                                          : Question{.ranker = Ranker::Stirrups};
    question.projectKind = m_options.projectKind;
    question.wantsTable = m_options.table;
    question.width = Number(m_options.width, "--width", question.width);
    question.grade = Number(m_options.grade, "--grade", question.grade);
    question.seismicClass = Number(m_options.seismicClass, "--seismic", question.seismicClass);
    Head("stirrups", "Stirrups");
    Say("width", question.width, ", width ", " mm");
    Say("grade", question.grade, ", concrete grade ", "");
    Say("seismic", question.seismicClass, ", seismic class ", "");
    const Ranking ranking = Rank(m_project, question);
    if (question.wantsTable) {
        RemarkOnTable(ranking, StirrupsFor(question.width.value_or(0), question.grade.value_or(0),
                                           question.seismicClass.value_or(0)));
    }
    if (m_beam != nullptr) {
        m_view.present = {m_beam->stirrup};
    }
    Print(ranking);
}

std::optional<int> RankRun::Number(const std::optional<int>& typed, const char* option,
                                   const std::optional<int>& ofBeam) const
{
    if (typed || ofBeam) {
        return typed ? typed : ofBeam;
    }
    if (m_options.table && m_beam != nullptr) {
        throw CLI::ValidationError("beam " + m_beam->name + " does not have it: --table needs " + option);
    }
    if (m_options.table) {
        throw CLI::ValidationError(std::string("--table needs ") + option +
                                   ", or --beam NAME to take it from a beam");
    }
    return std::nullopt;
}

// A kind that is typed is asked as it is; an end of the beam is asked as its field.
Question RankRun::BarQuestion() const
{
    if (m_options.kind && m_options.top) {
        throw CLI::ValidationError("--kind and --top exclude each other");
    }
    const std::string kind = m_options.top.value_or(m_options.kind.value_or("1"));
    const bool isEnd = !m_options.top && EndOf(kind, Beam()).has_value();
    if (isEnd && m_beam == nullptr) {
        throw Failure("--kind " + kind + " needs --beam NAME, whose through bars it takes");
    }
    if (isEnd) {
        if (m_beam->topBars.empty()) {
            throw Failure("beam " + m_beam->name + " has no through bars; give them with --top");
        }
        return QuestionFor(*m_beam, *EndOf(kind, *m_beam), false);
    }
    const std::vector<const FieldRow*> rows = FieldsOfKind(kind);
    if (m_options.top) {
        RequireBars(kind);
    } else if (rows.empty() && !ReadBars(kind)) {
        throw Failure("\"" + kind +
                      "\" is no kind of bars: 1, 2, 3, 4, 5.1, 5.2 or through bars such as 2B25 are");
    }
    Question question;
    if (m_beam != nullptr) {
        question =
            QuestionFor(*m_beam, rows.empty() ? *EndOf("ends", *m_beam) : rows.front()->field, false);
    }
    question.barKind = kind;
    question.heads.clear();
    return question;
}

void RankRun::Head(const char* what, const std::string& heading)
{
    m_view.heading = heading;
    m_view.question["what"] = what;
    m_view.question["project"] = TitleOf(m_project, m_options.project);
    if (m_beam != nullptr) {
        m_view.heading += ", beam " + m_beam->name;
    }
}

void RankRun::Say(const char* key, const std::optional<int>& number, const char* before, const char* after)
{
    if (number) {
        m_view.heading += before + std::to_string(*number) + after;
        m_view.question[key] = *number;
    }
}

// When the table added no row: that it has none, or that they are in the list already.
void RankRun::RemarkOnTable(const Ranking& ranking, const TableAnswer& rows)
{
    const auto isRow = [](const Candidate& candidate) { return candidate.source == Source::Table; };
    if (std::any_of(ranking.candidates.begin(), ranking.candidates.end(), isRow)) {
        return;
    }
    m_view.tableRemark = rows.remark;
    if (rows.remark.empty() && !rows.texts.empty()) {
        m_view.tableRemark = "its rows are in the list already: " + Joined(rows.texts, std::identity());
    }
}

void RankRun::Print(const Question& question, std::string Beam::*member)
{
    if (m_beam != nullptr && member != nullptr) {
        m_view.present = {m_beam->*member};
    }
    Print(Rank(m_project, question));
}

void RankRun::Print(const Ranking& ranking)
{
    m_view.heading += "\n" + TitleOf(m_project, m_options.project);
    (m_options.json ? PrintRankingJson : PrintRanking)(ranking, m_view, m_out);
}

}  // namespace Desk
