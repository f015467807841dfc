// Proposals: the texts that an annotation most likely gets, as the beams that are most like its own have
// them. The ranker's list is complete and ordered for looking up; this is for taking.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desk/project/Failure.h"
#include "desk/project/Fields.h"

namespace Desk {

struct Proposal {
    std::string text;  // UTF-8, as the project writes it
    int share = 0;     // of all votes, in percent; 0 for a text without a vote
    int uses = 0;      // places of the project that have it, without the one that is asked for
    // "as L22: same section, same stirrups, next to it", "new, gives 1140 of 1105 mm²"; empty where there
    // is nothing to say but how often the text is used.
    Message reason = Message(std::string());
};

// Texts for all of these annotations of one beam that it does not have yet, in the order of entry:
// stirrups, top, bottom and side bars.
struct BeamProposal {
    std::vector<std::pair<FieldRef, std::string>> texts;  // never an empty text; at least two
    int share = 0;
    Message reason = Message(std::string());  // "as L22: same section, next to it"
};

// What is known of the project when a text is asked for: all but the text itself and what is entered after
// it at its own beam; or of the other beams those alone that come before it.
enum class Known { All, Before };

// Keeps what repeated requests need of a project, which it borrows: parsed once, in numbers. What it
// answers depends on the project alone. Requests for the fields of one beam after another are the cheapest,
// and those that know what comes before in the order of beams. Not for two threads at once.
class Proposer {
public:
    explicit Proposer(const Project& project);
    ~Proposer();
    Proposer(const Proposer&) = delete;
    Proposer& operator=(const Proposer&) = delete;

    // After texts of a beam, its position or its required steel have changed. Beams that were added or
    // removed need a new Proposer.
    void Update(std::size_t beam);

    // The best texts for an annotation of a beam, which must exist, at most so many; what it holds now does
    // not count, nor does a text that cannot be read. Empty for a wall's.
    [[nodiscard]] std::vector<Proposal> For(const FieldRef& ref, std::size_t most,
                                            Known known = Known::All) const;
    // The place in the whole order, from 1, of the text that the annotation holds now; 0 for one that is
    // empty or not in it.
    [[nodiscard]] std::size_t PlaceOf(const FieldRef& ref, Known known = Known::All) const;
    // The best sets of texts for what a beam with a name or a section lacks, at most so many.
    [[nodiscard]] std::vector<BeamProposal> ForBeam(std::size_t beam, std::size_t most,
                                                    Known known = Known::All) const;

private:
    struct Kept;
    std::unique_ptr<Kept> m_kept;
};

}  // namespace Desk
