// Parameters come from the command line first, then from the beam.
#include "desk/console/RankRun.h"

#include <algorithm>
#include <functional>

#include <CLI/CLI.hpp>

#include "desk/console/Print.h"
#include "desk/project/FindBeam.h"
#include "desk/project/ProjectFile.h"
#include "desk/ranking/BarKinds.h"

namespace Desk {

namespace {

TableAnswer RowsFor(const BarQuery& query)
{
    switch (WantedBars(query.kind)) {
    case Bars::Top: return BarsFor(query.width, query.area, BarColumn::Top);
    case Bars::Bottom: return BarsFor(query.width, query.area, BarColumn::Bottom);
    case Bars::Complete: break;
    }
    return BarsOn(query.width, query.area, query.kind);
}

}  // namespace

RankRun::RankRun(const RankOptions& options, std::ostream& out)
    : m_options(options), m_out(out), m_project(LoadProject(options.project)),
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
    Print(RankNames(m_project, m_options.projectKind));
}

void RankRun::Sections()
{
    Head("section", "Sections");
    Print(RankSections(m_project, m_options.projectKind), &Beam::section);
}

void RankRun::Elevations()
{
    Head("elevation", "Elevations");
    Print(RankElevations(m_project), &Beam::elevation);
}

void RankRun::Bars()
{
    BarQuery query;
    query.kind = KindOfBars();
    query.projectKind = m_options.projectKind;
    query.table = m_options.table;
    const bool hasBeam = m_beam != nullptr;
    const auto width = Number(m_options.width, "--width", hasBeam ? WidthOf(*m_beam) : std::nullopt);
    const auto area = Number(m_options.area, "--area",
                             hasBeam ? std::optional(AreaFor(*m_beam, query.kind)) : std::nullopt);
    query.width = width.value_or(0);
    query.area = area.value_or(0);
    Head("bars", BarKindName(query.kind));
    m_view.question["kind"] = query.kind;
    Say("width", width, ", width ", " mm");
    Say("area", area, ", area ", " mm²");
    const Ranking ranking = RankBars(m_project, query);
    if (query.table) {
        RemarkOnTable(ranking, RowsFor(query));
    }
    if (hasBeam) {
        m_view.present = PresentBars(*m_beam, query.kind);
    }
    Print(ranking);
}

void RankRun::Stirrups()
{
    StirrupQuery query;
    query.projectKind = m_options.projectKind;
    query.table = m_options.table;
    const auto width =
        Number(m_options.width, "--width", m_beam != nullptr ? WidthOf(*m_beam) : std::nullopt);
    const auto grade = Number(m_options.grade, "--grade", OfBeam(&Beam::concreteGrade));
    const auto seismic = Number(m_options.seismicClass, "--seismic", OfBeam(&Beam::seismicClass));
    query.width = width.value_or(0);
    query.grade = grade.value_or(0);
    query.seismicClass = seismic.value_or(0);
    Head("stirrups", "Stirrups");
    Say("width", width, ", width ", " mm");
    Say("grade", grade, ", concrete grade ", "");
    Say("seismic", seismic, ", seismic class ", "");
    const Ranking ranking = RankStirrups(m_project, query);
    if (query.table) {
        RemarkOnTable(ranking, StirrupsFor(query.width, query.grade, query.seismicClass));
    }
    Print(ranking, &Beam::stirrup);
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

std::optional<int> RankRun::OfBeam(int Beam::*member) const
{
    return m_beam != nullptr ? std::optional(m_beam->*member) : std::nullopt;
}

std::string RankRun::KindOfBars() const
{
    if (m_options.kind && m_options.top) {
        throw CLI::ValidationError("--kind and --top exclude each other");
    }
    if (m_options.top) {
        RequireBars(*m_options.top);
        return *m_options.top;
    }
    return BarKind(m_options.kind.value_or("1"), m_beam);
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

void RankRun::Print(const Ranking& ranking, std::string Beam::*member)
{
    if (m_beam != nullptr) {
        m_view.present = {m_beam->*member};
    }
    Print(ranking);
}

void RankRun::Print(const Ranking& ranking)
{
    m_view.heading += "\n" + TitleOf(m_project, m_options.project);
    (m_options.json ? PrintRankingJson : PrintRanking)(ranking, m_view, m_out);
}

}  // namespace Desk
