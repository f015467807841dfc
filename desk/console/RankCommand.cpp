// beamdesk rank: the candidates of one annotation, best first.
#include "desk/console/Commands.h"

#include <limits>
#include <memory>
#include <string>

#include <CLI/CLI.hpp>

#include "desk/console/Options.h"
#include "desk/console/RankRun.h"

namespace Desk {

namespace {

using Options = std::shared_ptr<RankOptions>;

CLI::App& AddForm(CLI::App& rank, const Options& options, const char* name, const char* description,
                  void (RankRun::*run)(), std::ostream& out)
{
    CLI::App& form = *rank.add_subcommand(name, description);
    AddProjectOption(form, options->project);
    form.add_option("--beam", options->beam,
                    "A beam of the project: its parameters are used, its text is marked")
        ->type_name("NAME");
    form.add_option("--limit", options->limit,
                    "Candidates to show at most, 0 for all. Default 25, with --json 0")
        ->type_name("N")
        ->check(Whole(0, 1'000'000'000));
    form.add_flag("--json", options->json, "Print JSON for programs");
    form.callback([options, run, &out] { (RankRun(*options, out).*run)(); });
    return form;
}

void AddProjectKind(CLI::App& form, const Options& options)
{
    form.add_option("--project-kind", options->projectKind,
                    "The host's kind of project. Default 2; others change what an empty project gets")
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
    CLI::App& form = AddForm(rank, options, "bars", "Longitudinal bars", &RankRun::Bars, out);
    form.add_option("--kind", options->kind, "Which bars, see below. Default 1")->type_name("KIND");
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
                "  left, right: with --beam, that end of it, on its own through bars\n"
                "  ends: the one of them that needs more steel\n\n"
                "Examples:\n"
                "  beamdesk rank bars --kind 1 --width 300 --area 1000 --table\n"
                "  beamdesk rank bars --top 2B20\n"
                "  beamdesk rank bars --beam KL2 --kind ends --table");
}

void AddStirrups(CLI::App& rank, std::ostream& out)
{
    const auto options = std::make_shared<RankOptions>();
    CLI::App& form = AddForm(rank, options, "stirrups", "Stirrups", &RankRun::Stirrups, out);
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
        AddForm(rank, name, "name", "Names that are free in the project", &RankRun::Names, out);
    AddProjectKind(names, name);
    names.footer("Examples:\n  beamdesk rank name\n  beamdesk rank name --limit 0 --json");

    const auto section = std::make_shared<RankOptions>();
    CLI::App& sections =
        AddForm(rank, section, "section", "Sections, by width and height", &RankRun::Sections, out);
    AddProjectKind(sections, section);
    sections.footer("Examples:\n  beamdesk rank section\n  beamdesk rank section --beam KL2");

    const auto elevation = std::make_shared<RankOptions>();
    AddForm(rank, elevation, "elevation", "Elevations, in ascending order", &RankRun::Elevations, out)
        .footer("Examples:\n  beamdesk rank elevation\n  beamdesk rank elevation --beam XL1");

    AddBars(rank, out);
    AddStirrups(rank, out);
}

}  // namespace Desk
