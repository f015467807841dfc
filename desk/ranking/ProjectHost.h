// Answers the module's questions for one run of a ranker, as a drafting host does.
#pragma once

#include <vector>

#include "RankerModule.h"

namespace Desk {

// What the project delivers in a run: the texts that the ranker asks for, or the parts of the names.
struct Delivery {
    struct Names {  // of one type
        CString type;
        CUIntArray serials;
        CStringArray suffixes;
    };
    CStringArray texts;
    std::vector<Names> names;
};

// Registers the six project callbacks for as long as the object lives and empties the slots afterwards.
// One at a time: a second one throws std::logic_error.
class ProjectHost {
public:
    explicit ProjectHost(Delivery delivery);
    ~ProjectHost();
    ProjectHost(const ProjectHost&) = delete;
    ProjectHost& operator=(const ProjectHost&) = delete;

private:
    Delivery m_delivery;
};

}  // namespace Desk
