// The pairs of lines that an ASCII DXF is made of: a group code, a value. The bytes stay where they are; a
// pair tells where it lies.
#pragma once

#include <cstddef>
#include <string_view>

namespace Desk {

struct Pair {
    int code = 0;
    std::string_view value;   // without its line end; blanks stay
    std::size_t begin = 0;    // of the code's line
    std::size_t valueAt = 0;  // of the value
    std::size_t end = 0;      // after the value's line end
};

class PairReader {
public:
    explicit PairReader(std::string_view bytes, std::size_t at = 0) : m_bytes(bytes), m_at(at) {}

    // The next pair. False at the end of the bytes, and where no group code or no value follows: then the
    // position is not the end.
    bool Next(Pair& pair);
    [[nodiscard]] std::size_t At() const { return m_at; }

private:
    std::string_view m_bytes;
    std::size_t m_at;
};

// No drawing is larger, in its own units: what lies beyond is damage.
inline constexpr double FarthestOut = 1e12;
// A number as DXF writes it, with blanks around it; 0 for what is none or beyond FarthestOut.
[[nodiscard]] double RealOf(std::string_view value);
[[nodiscard]] int WholeOf(std::string_view value);
// Without the blanks around it.
[[nodiscard]] std::string_view Trimmed(std::string_view value);

}  // namespace Desk
