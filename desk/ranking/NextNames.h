// Names that a beam is likely to get: the form of the beams around it with a number that is free.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "desk/project/Failure.h"
#include "desk/project/Project.h"
#include "desk/ranking/Likeness.h"

namespace Desk {

struct NextName {
    std::string text;
    int share = 0;  // of the votes, of its form
    int form = 0;
    Message reason = Message(std::string());
};

// The names of the project's beams, taken apart.
class NextNames {
public:
    explicit NextNames(std::size_t beams) : m_forms(beams), m_serials(beams), m_types(beams) {}
    // A beam's name; fills in what likeness compares of it.
    void Set(std::size_t number, const Beam& beam, Traits& traits);
    // Of the form of a name, KL(3) for KL12(3), among the beams before an end but one.
    [[nodiscard]] int UsesOf(int form, int beam, int end) const;
    // For a beam, by the beams before an end; best first. Never a number that its type has there on
    // the beam's floor.
    [[nodiscard]] std::vector<NextName> For(const Beam& asked, int beam, int end,
                                            const Likeness& likeness) const;

private:
    struct Form {
        std::string type;
        std::string suffix;
        std::vector<int> beams;
    };
    struct Type {                                  // on a floor, of a plan
        std::vector<int> beams;                    // in order
        std::map<int, std::vector<int>> bySerial;  // beams of each serial, in order
    };
    struct Serial {
        int number = 0;
        int worth = 0;
        Message reason;
    };

    [[nodiscard]] std::vector<Serial> SerialsFor(const std::string& called, int type, int beam, int end,
                                                 const std::vector<int>& near) const;

    std::unordered_map<std::string, int> m_formNumbers, m_typeNumbers, m_onFloorNumbers, m_families,
        m_suffixes;
    std::vector<Form> m_ofForm = std::vector<Form>(1);
    std::vector<Type> m_onFloor = std::vector<Type>(1);  // the first is empty
    std::vector<int> m_forms;                            // of each beam; 0 without a readable name
    std::vector<int> m_serials;                          // of each beam
    std::vector<int> m_types;                            // on its floor, of each beam
};

}  // namespace Desk
