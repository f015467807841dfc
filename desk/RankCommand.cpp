// beamdesk rank: the candidates of one annotation, best first.
#include "desk/Commands.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include <CLI/CLI.hpp>

#include "RankerModule.h"
#include "desk/BarKinds.h"
#include "desk/Encoding.h"
#include "desk/Failure.h"
#include "desk/Options.h"
#include "desk/RankingPrint.h"
#include "desk/Tables.h"

namespace Desk {

namespace {

// What the five forms of the command take, each a part of it.
struct RankOptions {
    std::string project;
    std::string beam;
    bool json = false;
    bool table = false;
    std::optional<int> limit;
    int projectKind = 2;
    std::optional<std::string> kind;
    std::optional<std::string> top;  // through bars, in place of a kind
    std::optional<int> width;
    std::optional<int> area;
    std::optional<int> grade;
    std::optional<int> seismicClass;
};

// A run: the project, the beam in work if one was named, and the answer taking shape.
class Run {
public:
    Run(const RankOptions& options, std::ostream& out)
        : m_options(options), m_out(out), m_project(LoadProject(options.project)),
          m_beam(options.beam.empty() ? nullptr : &FindBeam(m_project, options.beam))
    {
        constexpr int DefaultLimit = 25;
        m_view.limit = options.limit.value_or(options.json ? 0 : DefaultLimit);
        if (m_beam != nullptr) {
            m_view.beam = m_beam->name;
        }
    }

    void Names()
    {
        Head("name", "Names for the next beam");
        Print(RankNames(m_project, m_options.projectKind), &Beam::name);
    }

    void Sections()
    {
        Head("section", "Sections");
        Print(RankSections(m_project, m_options.projectKind), &Beam::section);
    }

    void Elevations()
    {
        Head("elevation", "Elevations");
        Print(RankElevations(m_project), &Beam::elevation);
    }

    void Bars()
    {
        BarQuery query;
        if (m_options.kind && m_options.top) {
            throw CLI::ValidationError("--kind and --top both say which bars are wanted; give one of them");
        }
        if (m_options.top) {
            RequireBars(*m_options.top);
        }
        query.kind = m_options.top ? *m_options.top : BarKind(m_options.kind.value_or("1"), m_beam);
        query.projectKind = m_options.projectKind;
        query.table = m_options.table;
        const auto width = Number(m_options.width, "--width", [this] { return WidthOf(*m_beam); });
        const auto area = Number(m_options.area, "--area", [&] { return AreaFor(*m_beam, query.kind); });
        query.width = width.value_or(0);
        query.area = area.value_or(0);
        Head("bars", BarKindName(query.kind));
        m_view.question["kind"] = query.kind;
        Say("width", width, ", width ", " mm");
        Say("area", area, ", area ", " mm²");
        const Ranking ranking = RankBars(m_project, query);
        if (query.table) {
            RemarkOnTable(ranking, Rows(query));
        }
        if (m_beam != nullptr) {
            m_view.present = PresentBars(*m_beam, query.kind);
        }
        Print(ranking);
    }

    void Stirrups()
    {
        StirrupQuery query;
        query.projectKind = m_options.projectKind;
        query.table = m_options.table;
        const auto width = Number(m_options.width, "--width", [this] { return WidthOf(*m_beam); });
        const auto grade = Number(m_options.grade, "--grade", [this] { return m_beam->concreteGrade; });
        const auto seismic =
            Number(m_options.seismicClass, "--seismic", [this] { return m_beam->seismicClass; });
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

private:
    // The number that was typed, else the beam's; without a beam the table cannot do without it.
    std::optional<int> Number(const std::optional<int>& typed, const char* option,
                              const std::function<int()>& ofBeam) const
    {
        if (typed) {
            return typed;
        }
        if (m_beam != nullptr) {
            return ofBeam();
        }
        if (m_options.table) {
            throw CLI::ValidationError(std::string("--table needs ") + option +
                                       " as well, or --beam NAME to take it from a beam");
        }
        return std::nullopt;
    }

    void Head(const char* what, const std::string& heading)
    {
        m_view.heading = heading;
        m_view.question["what"] = what;
        m_view.question["project"] = TitleOf(m_project, m_options.project);
        if (m_beam != nullptr) {
            m_view.heading += ", beam " + m_beam->name;
        }
    }

    void Say(const char* key, const std::optional<int>& number, const char* before, const char* behind)
    {
        if (number) {
            m_view.heading += before + std::to_string(*number) + behind;
            m_view.question[key] = *number;
        }
    }

    static TableAnswer Rows(const BarQuery& query)
    {
        switch (WantedBars(query.kind)) {
        case Bars::Top: return BarsFor(query.width, query.area, BarColumn::Top);
        case Bars::Bottom: return BarsFor(query.width, query.area, BarColumn::Bottom);
        case Bars::Complete: break;
        }
        return BarsOn(query.width, query.area, query.kind);
    }

    // Rows that the list holds already are not added; then the person is told which they are.
    void RemarkOnTable(const Ranking& ranking, const TableAnswer& rows)
    {
        const auto isRow = [](const Candidate& candidate) { return candidate.source == Source::Table; };
        if (std::any_of(ranking.candidates.begin(), ranking.candidates.end(), isRow)) {
            return;
        }
        m_view.tableRemark = rows.remark;
        if (rows.remark.empty()) {
            for (const std::string& text : rows.texts) {
                m_view.tableRemark += (m_view.tableRemark.empty() ? "" : ", ") + text;
            }
            m_view.tableRemark = "all its rows stand in the list already: " + m_view.tableRemark;
        }
    }

    void Print(const Ranking& ranking, std::string Beam::*member)
    {
        if (m_beam != nullptr) {
            m_view.present = {m_beam->*member};
        }
        Print(ranking);
    }

    void Print(const Ranking& ranking)
    {
        m_view.heading += "\n" + TitleOf(m_project, m_options.project);
        (m_options.json ? PrintRankingJson : PrintRanking)(ranking, m_view, m_out);
    }

    const RankOptions& m_options;
    std::ostream& m_out;
    Project m_project;
    const Beam* m_beam;  // of the project, null without one
    RankingView m_view;
};

using Options = std::shared_ptr<RankOptions>;

CLI::App& AddForm(CLI::App& rank, const Options& options, const char* name, const char* description,
                  void (Run::*run)(), std::ostream& out)
{
    CLI::App& form = *rank.add_subcommand(name, description);
    AddProjectOption(form, options->project);
    form.add_option("--beam", options->beam, "A beam of the project: takes its parameters, marks its text")
        ->type_name("NAME");
    form.add_option("--limit", options->limit,
                    "Candidates to show at most, 0 for all; else 25, with --json all")
        ->type_name("N")
        ->check(Whole(0, 1'000'000'000));
    form.add_flag("--json", options->json, "Print JSON for programs");
    form.callback([options, run, &out] { (Run(*options, out).*run)(); });
    return form;
}

void AddProjectKind(CLI::App& form, const Options& options)
{
    form.add_option("--project-kind", options->projectKind,
                    "The host's selector; another one than 2 changes what an empty project is offered")
        ->type_name("N")
        ->check(Whole(std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

void AddTable(CLI::App& form, const Options& options, const char* needs)
{
    form.add_flag("--table", options->table,
                  std::string("Append the rows of the reference table; needs ") + needs);
}

void AddBars(CLI::App& rank, std::ostream& out)
{
    const auto options = std::make_shared<RankOptions>();
    CLI::App& form = AddForm(rank, options, "bars", "Longitudinal bars", &Run::Bars, out);
    form.add_option("--kind", options->kind, "Which bars, see below; 1 without it")->type_name("KIND");
    form.add_option("--top", options->top, "Through bars, for the complete top bars on them")
        ->type_name("BARS");
    form.add_option("--width", options->width, "Beam width in mm, for the table")
        ->type_name("MM")
        ->check(Whole(1, 100'000));
    form.add_option("--area", options->area, "Required steel area in mm², for the table")
        ->type_name("MM2")
        ->check(Whole(0, 1'000'000));
    AddTable(form, options, "--width and --area, or --beam");
    AddProjectKind(form, options);
    form.footer("Kinds:\n"
                "  1 top through bars    2 left end      3 right end\n"
                "  4 erection bars       5.1 bottom bars 5.2 side and torsion bars\n"
                "  2B25 or any other through bars: the same as --top 2B25\n"
                "  ends: with --beam, the same as --top with the beam's own through bars\n\n"
                "Examples:\n"
                "  beamdesk rank bars --kind 1 --width 300 --area 1000 --table\n"
                "  beamdesk rank bars --top 2B20\n"
                "  beamdesk rank bars --beam KL2 --kind ends --table");
}

void AddStirrups(CLI::App& rank, std::ostream& out)
{
    const auto options = std::make_shared<RankOptions>();
    CLI::App& form = AddForm(rank, options, "stirrups", "Stirrups", &Run::Stirrups, out);
    form.add_option("--width", options->width, "Beam width in mm, for the table")
        ->type_name("MM")
        ->check(Whole(1, 100'000));
    form.add_option("--grade", options->grade, "Concrete grade, for the table: 20, 25, 30, 35 or 40")
        ->type_name("N")
        ->check(Whole(1, 1000));
    form.add_option("--seismic", options->seismicClass, "Seismic class 1 to 4, for the table")
        ->type_name("N")
        ->check(Whole(1, 4));
    AddTable(form, options, "--width, --grade and --seismic, or --beam");
    AddProjectKind(form, options);
    form.footer("Examples:\n"
                "  beamdesk rank stirrups --width 300 --grade 30 --seismic 3 --table\n"
                "  beamdesk rank stirrups --beam KL2 --table\n"
                "  beamdesk rank stirrups");
}

}  // namespace

void AddRankCommand(CLI::App& program, std::ostream& out)
{
    CLI::App& rank = *program.add_subcommand("rank", "Rank the candidates for one annotation of a beam");
    rank.require_subcommand(1);
    rank.footer("Examples:\n"
                "  beamdesk rank bars --kind 1 --width 300 --area 1000 --table\n"
                "  beamdesk rank stirrups --beam KL2\n"
                "  beamdesk rank name --limit 0");

    const auto name = std::make_shared<RankOptions>();
    CLI::App& names =
        AddForm(rank, name, "name", "Names that the project does not hold yet", &Run::Names, out);
    AddProjectKind(names, name);
    names.footer("Examples:\n  beamdesk rank name\n  beamdesk rank name --limit 0 --json");

    const auto section = std::make_shared<RankOptions>();
    CLI::App& sections =
        AddForm(rank, section, "section", "Sections, by width and height", &Run::Sections, out);
    AddProjectKind(sections, section);
    sections.footer("Examples:\n  beamdesk rank section\n  beamdesk rank section --beam KL2");

    const auto elevation = std::make_shared<RankOptions>();
    AddForm(rank, elevation, "elevation", "Elevations, in rising order", &Run::Elevations, out)
        .footer("Examples:\n  beamdesk rank elevation\n  beamdesk rank elevation --beam XL1");

    AddBars(rank, out);
    AddStirrups(rank, out);
}

}  // namespace Desk
