// Edits: what becomes of a project's beams and walls in one step that can be taken back.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "desk/project/Project.h"

namespace Desk {

template <class Owner>
struct EditsOf {
    std::map<std::size_t, Owner> changed;  // as they become, by index
    std::set<std::size_t> removed;         // indices
    std::vector<Owner> added;              // after the last
};

struct Edits {
    std::string what;  // "Move KL1(7)", in the interface's language
    EditsOf<Beam> beams;
    EditsOf<Wall> walls;
};

// Where beams or walls were exchanged: the indices of those that went, before, and of those that came,
// after; ascending. What merely changed is in both.
struct ExchangedIndices {
    std::vector<std::size_t> out;
    std::vector<std::size_t> in;

    // Others have other indices than before.
    [[nodiscard]] bool Renumbers() const { return out != in; }
};

struct Exchanged {
    ExchangedIndices beams;
    ExchangedIndices walls;

    [[nodiscard]] bool Renumbers() const { return beams.Renumbers() || walls.Renumbers(); }
};

// Owners that go out of a list and others that come into it. Done twice it leaves the list as it was.
template <class Owner>
class Exchange {
public:
    Exchange(EditsOf<Owner> edits, std::size_t count)
    {
        std::set<std::size_t> out = edits.removed;
        for (auto& [index, owner] : edits.changed) {
            out.insert(index);
            const auto before = std::distance(edits.removed.begin(), edits.removed.lower_bound(index));
            m_in.emplace(index - static_cast<std::size_t>(before), std::move(owner));
        }
        m_out.assign(out.begin(), out.end());
        std::size_t end = count - edits.removed.size();
        for (Owner& owner : edits.added) {
            m_in.emplace(end++, std::move(owner));
        }
    }

    ExchangedIndices Do(std::vector<Owner>& owners)
    {
        ExchangedIndices done{std::move(m_out), {}};
        std::map<std::size_t, Owner> gone;
        for (const std::size_t index : done.out) {
            gone.emplace(index, std::move(owners.at(index)));
        }
        for (const auto& [index, owner] : m_in) {
            done.in.push_back(index);
        }
        if (done.Renumbers()) {
            std::vector<Owner> all;
            all.reserve(owners.size() - gone.size() + m_in.size());
            auto came = m_in.begin();
            for (std::size_t i = 0; i <= owners.size(); ++i) {
                for (; came != m_in.end() && came->first == all.size(); ++came) {
                    all.push_back(std::move(came->second));
                }
                if (i < owners.size() && !gone.contains(i)) {
                    all.push_back(std::move(owners[i]));
                }
            }
            owners = std::move(all);
        } else {
            for (auto& [index, owner] : m_in) {
                owners[index] = std::move(owner);
            }
        }
        m_in = std::move(gone);
        m_out = done.in;
        return done;
    }

private:
    std::vector<std::size_t> m_out;
    std::map<std::size_t, Owner> m_in;  // by the index that they get
};

}  // namespace Desk
