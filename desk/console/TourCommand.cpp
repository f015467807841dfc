// beamdesk tour: three lists side by side, so that all nine annotations of a beam fit on one screen.
#include "desk/console/Commands.h"

#include <algorithm>
#include <map>
#include <memory>
#include <numeric>
#include <ostream>
#include <vector>

#include <CLI/CLI.hpp>

#include "desk/console/Options.h"
#include "desk/console/Print.h"
#include "desk/console/RankingPrint.h"
#include "desk/drawing/Drawing.h"
#include "desk/project/FindBeam.h"
#include "desk/project/ProjectFile.h"

namespace Desk {

namespace {

constexpr int TourColumns = 3;
constexpr int ColumnWidth = 27;  // three of them fill a line of 80
constexpr std::size_t Rows = 5;  // candidates of a list

// One list: what it is for, the candidates, and what the beam has.
struct List {
    std::string title;
    Ranking ranking;
    std::vector<std::string> present;
    bool isBySize = false;  // then the best candidates are not at the head but around the present text
};

// The beam that shows most of the project's annotations: the one with the most texts of its own, among
// them that with the most in place.
const Beam* FullestBeam(const Project& project)
{
    const auto count = [](const Beam& beam) {
        const std::span<const Field> fields = BeamFields();
        const auto own = std::count_if(fields.begin(), fields.end(), [&beam](Field field) {
            return field != Field::Name && !(beam.*RowOf(field).ofBeam).empty();
        });
        return std::pair(own, beam.inPlace.size());
    };
    const auto fewer = [&count](const Beam& a, const Beam& b) { return count(a) < count(b); };
    const auto fullest = std::max_element(project.beams.begin(), project.beams.end(), fewer);
    return fullest == project.beams.end() ? nullptr : &*fullest;
}

// A list for each field that has one of its own: the ends share theirs, and so do torsion and side bars.
std::vector<List> Lists(const Project& project, const Beam& beam)
{
    std::vector<List> lists;
    for (const Field field : {Field::Name, Field::Section, Field::Elevation, Field::Stirrup, Field::TopBars,
                              Field::LeftEnd, Field::BottomBars, Field::Erection, Field::Side}) {
        const FieldRow& row = RowOf(field);
        Question question = QuestionFor(beam, field, false);
        question.heads.clear();
        List list{row.english, Rank(project, question), {}, false};
        if (row.ranker == Ranker::Bars) {
            for (const std::string* const text : BarTexts(beam, question.barKind)) {
                list.present.push_back(*text);
            }
            std::erase(list.present, std::string());
        } else if (row.ranker != Ranker::Names) {
            ForEachText(beam, field, [&list](const std::string& text) { list.present.push_back(text); });
            list.isBySize = true;
        }
        if (question.barKind != row.barKind) {
            list.title = "Ends on " + question.barKind;
        } else if (*row.heads != '\0') {
            list.title = "Side and torsion bars";
        } else if (row.ranker == Ranker::Names) {
            list.title = "Name of the next beam";
        }
        lists.push_back(std::move(list));
    }
    return lists;
}

// Places of the candidates to show: around the present text where the order is by size; else the first
// ones, the last of which gives way to a present text further down.
std::vector<std::size_t> PlacesToShow(const List& list)
{
    const auto& candidates = list.ranking.candidates;
    const std::size_t count = std::min(Rows, candidates.size());
    const auto own =
        std::find_if(candidates.begin(), candidates.end(),
                     [&list](const Candidate& candidate) { return IsAmong(candidate, list.present); });
    const auto ownPlace = own == candidates.end() ? 0 : static_cast<std::size_t>(own - candidates.begin());
    std::size_t first = 0;
    if (list.isBySize) {
        first = std::min(ownPlace - std::min(ownPlace, Rows / 2), candidates.size() - count);
    }
    std::vector<std::size_t> places(count);
    std::iota(places.begin(), places.end(), first);
    if (!places.empty()) {
        places.back() = std::max(places.back(), ownPlace);
    }
    return places;
}

std::string Uses(const Candidate& candidate)
{
    const bool isUsed = candidate.source == Source::Project;
    return isUsed ? std::to_string(candidate.uses) + "x" : "-";
}

std::vector<std::string> Lines(const List& list)
{
    constexpr int TextWidth = 14;
    std::vector<std::string> lines = {"  " + list.title};
    const std::vector<std::size_t> places = PlacesToShow(list);
    for (const std::size_t place : places) {
        const Candidate& candidate = list.ranking.candidates[place];
        const bool isFocus = static_cast<int>(place) == list.ranking.focus;
        std::string line = isFocus ? ">" : " ";
        line += IsAmong(candidate, list.present) ? '*' : ' ';
        line += PadLeft(std::to_string(place + 1), 2) + ' ';
        line += PadRight(Visible(candidate.text), TextWidth) + ' ';
        lines.push_back(line + PadLeft(Uses(candidate), 3));
    }
    if (places.size() < list.ranking.candidates.size()) {
        lines.push_back("     ... " + std::to_string(list.ranking.candidates.size()) + " in all");
    }
    return lines;
}

void PrintSideBySide(const std::vector<List>& lists, std::ostream& out)
{
    for (std::size_t from = 0; from < lists.size(); from += TourColumns) {
        std::vector<std::vector<std::string>> columns;
        std::size_t height = 0;
        for (std::size_t i = from; i < std::min(from + TourColumns, lists.size()); ++i) {
            columns.push_back(Lines(lists[i]));
            height = std::max(height, columns.back().size());
        }
        for (std::size_t row = 0; row < height; ++row) {
            std::string line;
            for (std::size_t i = 0; i < columns.size(); ++i) {
                line = PadRight(line, static_cast<int>(i) * ColumnWidth);
                line += row < columns[i].size() ? columns[i][row] : std::string();
            }
            out << line.substr(0, line.find_last_not_of(' ') + 1) << '\n';
        }
        out << '\n';
    }
}

void PrintBeam(const Beam& beam, std::ostream& out)
{
    const auto line = [&out](const char* what, std::initializer_list<std::string> texts) {
        std::string row;
        for (const std::string& text : texts) {
            row += row.empty() || text.empty() ? "" : "  ";
            row += text;
        }
        if (!row.empty()) {
            out << "  " << PadRight(what, 14) << row << '\n';
        }
    };
    const auto tagged = [](const char* before, const std::string& text, const char* after) {
        return text.empty() ? std::string() : before + text + after;
    };
    out << "Beam " << (beam.name.empty() ? "without a name" : beam.name) << '\n';
    line("section", {beam.section, beam.stirrup, beam.elevation});
    line("top", {beam.topBars, tagged("+(", beam.erection, ")")});
    line("at the ends", {tagged("left ", beam.leftEnd, ""), tagged("right ", beam.rightEnd, "")});
    line("bottom", {beam.bottomBars});
    line("side", {beam.side, beam.torsion});
    std::map<std::pair<bool, int>, std::string> inPlace;  // supports first
    for (const InPlace& text : beam.inPlace) {
        std::string& texts = inPlace[{text.role != Role::TopSupport, text.number}];
        texts += (texts.empty() || text.text.empty() ? "" : "  ") + text.text;
    }
    for (const auto& [where, texts] : inPlace) {
        line(((where.first ? "span " : "support ") + std::to_string(where.second)).c_str(), {texts});
    }
    const SteelArea& area = beam.area;
    out << "  needed mm²    top " << area.top << "  left " << area.leftEnd << "  right " << area.rightEnd
        << "  bottom " << area.bottom << "\n\n";
}

// As a word of a shell command: in quotes where it holds special characters.
std::string InShell(const std::string& text)
{
    const auto isPlain = [](char ch) {
        return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z') || (ch >= '0' && ch <= '9') ||
               std::string_view("_./-").find(ch) != std::string_view::npos;
    };
    return std::all_of(text.begin(), text.end(), isPlain) ? text : "'" + text + "'";
}

}  // namespace

void PrintTour(const std::string& projectFile, const std::string& beamName, std::ostream& out)
{
    const Project project = OpenProject(projectFile);
    const Beam* const beam = beamName.empty() ? FullestBeam(project) : &FindBeam(project, beamName);
    out << TitleOf(project, projectFile) << ": " << project.beams.size() << " beams, "
        << project.walls.size() << " walls\n\n";
    if (beam != nullptr) {
        PrintBeam(*beam, out);
    }
    out << "Candidates for each annotation, best first; sections, elevations and stirrups by size:\n\n";
    PrintSideBySide(Lists(project, beam != nullptr ? *beam : Beam()), out);
    out << "  12x used 12 times in the project, for a name: others like it   - not yet used\n"
        << "  >   the focus: the last one the project supports               * what the beam has\n";
    const std::string option = projectFile.empty() ? "" : " --project " + InShell(projectFile);
    out << "\nMore:  beamdesk window" << option << "\n       beamdesk rank bars --kind 5.1";
    if (beam != nullptr && !beam->name.empty()) {
        out << " --table --beam " << InShell(beam->name.substr(0, beam->name.find('(')));
    }
    out << option << "\n       beamdesk table stirrups --width 300 --grade 30 --seismic 3"
        << "\n       beamdesk --help\n";
}

void AddTourCommand(CLI::App& program, std::ostream& out)
{
    struct TourOptions {
        std::string project;
        std::string beam;
    };
    const auto options = std::make_shared<TourOptions>();
    CLI::App& command =
        *program.add_subcommand("tour", "Print one beam and the candidates for its annotations");
    AddProjectOption(command, options->project);
    command.add_option("--beam", options->beam, "The beam. Default: the one with the most annotations")
        ->type_name("NAME");
    command.footer("Examples:\n  beamdesk tour\n  beamdesk tour --beam KL6");
    command.callback([options, &out] { PrintTour(options->project, options->beam, out); });
}

}  // namespace Desk
