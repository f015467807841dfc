// Runs of the module's rankers on a project, with what a person wants to know of each candidate.
#pragma once

#include <string>
#include <vector>

#include "desk/project/Project.h"

namespace Desk {

enum class Source {
    Project,  // the project holds the text; for a name: holds its neighbours
    Guess,
    Given,  // the through bars that the question itself named
    Table,
};

// A text as the project writes it, and in how many places.
struct Writing {
    std::string text;
    int uses = 0;
};

struct Candidate {
    std::string text;
    int stamp = 0;  // the ranker's own weight; 0 throughout where a ranker has none
    Source source = Source::Guess;
    int uses = 0;  // places of the project; for a name: names of its type with its suffix
    // When the project writes it otherwise, as G4B12 for 4B12; for a name its form, KL(3) for KL12(3).
    std::vector<Writing> writings;
};

struct Ranking {
    std::vector<Candidate> candidates;  // best first, table rows behind all others
    int focus = -1;                     // index of the candidate to put the focus on, -1 for none
    bool isStamped = false;
};

// All texts in UTF-8. A project kind other than 2 changes what an empty project is offered.
[[nodiscard]] Ranking RankNames(const Project& project, int projectKind = 2);
[[nodiscard]] Ranking RankSections(const Project& project, int projectKind = 2);
[[nodiscard]] Ranking RankElevations(const Project& project);

struct BarQuery {
    std::string kind;    // as BarTexts of ProjectHost.h takes it
    int width = 0;       // mm, for the table
    int area = 0;        // mm², for the table
    bool table = false;  // table rows wanted behind the candidates
    int projectKind = 2;
};

// Throws Failure for a kind that GBK does not hold.
[[nodiscard]] Ranking RankBars(const Project& project, const BarQuery& query);

struct StirrupQuery {
    int width = 0;
    int grade = 0;
    int seismicClass = 0;
    bool table = false;
    int projectKind = 2;
};

[[nodiscard]] Ranking RankStirrups(const Project& project, const StirrupQuery& query);

}  // namespace Desk
