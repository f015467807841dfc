// The changes of a file's bytes. What no change covers is copied.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "desk/drawing/Parts.h"

namespace Desk {

class Splices {
public:
    explicit Splices(const Drawing::Parts& parts) : m_parts(parts), m_nextHandle(parts.file.nextHandle) {}

    // Another text for a stretch of an entity's value; an empty stretch is where the text is put in. A long
    // MTEXT's value lies in pieces.
    void Put(const TextEntity& entity, const Stretch& at, const std::string& text);
    void Remove(const TextEntity& entity) { m_all.push_back({entity.record, ""}); }
    // The same record with another value, at a position on the plan, with a handle of its own. Throws
    // Failure for what is no TEXT.
    void AddCopy(const TextLine& like, const std::string& value, const PlanPoint& position);

    // The file with all that, in pieces that live as long as this and the file; $HANDSEED moves on where
    // handles were given.
    [[nodiscard]] std::vector<std::string_view> Written();

private:
    struct Splice {
        Stretch at;  // of the file; empty for an insertion
        std::string text;
    };

    const Drawing::Parts& m_parts;
    std::uint64_t m_nextHandle;
    std::vector<Splice> m_all;
};

}  // namespace Desk
