// What is wrong with a project: rules of the concrete code, of drawings and of practice, each with its
// source.
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "desk/project/Failure.h"
#include "desk/project/Fields.h"

namespace Desk {

struct Rule {
    const char* key;  // in files and on the command line: "steel-area"
    Phrase title;     // "Less steel than required"
    Message source;   // standard and clause, or that it is a rule of practice
};

// In the order in which the problems of an annotation are told.
[[nodiscard]] std::span<const Rule> AllRules();
// Null for a key that no rule has.
[[nodiscard]] const Rule* RuleOf(std::string_view key);

struct Problem {
    FieldRef at;       // the annotation to mend
    const Rule* rule;  // one of AllRules()
    std::string text;  // as it is now, UTF-8; empty where one is missing
    Message message;   // "982 mm², 1105 mm² required"
};

// Problems that a beam or a wall has by itself; beams that are named alike and gaps are a project's. Rules
// that the project switches off are left out. The beam must exist.
[[nodiscard]] std::vector<Problem> CheckBeam(const Project& project, std::size_t beam);

// All problems in the order of the beams, each one's in the order of its annotations, then the walls'.
[[nodiscard]] std::vector<Problem> CheckProject(const Project& project);

// The same for a project that is being worked on, which it borrows: a change costs the beam and those of
// its name, another name a look over all names.
class Checks {
public:
    explicit Checks(const Project& project);
    ~Checks();
    Checks(const Checks&) = delete;
    Checks& operator=(const Checks&) = delete;

    // After a change of a beam or wall, its texts in place and numbers included; the field does not matter.
    void Update(const FieldRef& owner) { Update(std::vector{owner}); }
    void Update(const std::vector<FieldRef>& owners);
    // After everything else: beams or walls added or removed, rules switched off or on.
    void Renew();

    // Good until the next Update or Renew.
    [[nodiscard]] const std::vector<Problem>& All() const;

private:
    struct Kept;
    std::unique_ptr<Kept> m_kept;
};

}  // namespace Desk
