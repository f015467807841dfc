// Runs of the module's rankers on a project, with what a person wants to know of each candidate.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "desk/ranking/Question.h"

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
    std::vector<Candidate> candidates;  // best first, table rows after all others
    int focus = -1;                     // index of the candidate to put the focus on, -1 for none
    bool isStamped = false;
};

// Runs the question's ranker on the project. Texts in UTF-8; those of a field with heads carry the head
// that the project writes most often for them, and count the uses written so.
[[nodiscard]] Ranking Rank(const Project& project, const Question& question);

// The texts that an annotation is likely to be, best first. A wall's bars, which the module does not rank,
// are those of the other walls, the most used first. A wall's name has no candidates.
[[nodiscard]] Ranking ChoicesFor(const Project& project, const FieldRef& ref, bool wantsTable);

// ChoicesFor for a project that is asked again and again: keeps what repeated requests need of it. Borrows
// the project.
class Rankings {
public:
    explicit Rankings(const Project& project);
    ~Rankings();
    Rankings(const Rankings&) = delete;
    Rankings& operator=(const Rankings&) = delete;

    // After texts, spans or the required steel of a beam have changed, after texts of a wall have. Beams
    // and walls that were added or removed need new Rankings.
    void Update(std::size_t beam);
    void UpdateWall(std::size_t wall);

    // What ChoicesFor gives. Lives until the next call of any of these.
    [[nodiscard]] const Ranking& For(const FieldRef& ref, bool wantsTable);

private:
    struct Kept;
    std::unique_ptr<Kept> m_kept;
};

}  // namespace Desk
