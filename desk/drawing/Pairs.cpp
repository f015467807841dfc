#include "desk/drawing/Pairs.h"

#include <charconv>
#include <cmath>
#include <cstring>

namespace Desk {

namespace {

bool IsBlank(char ch) { return ch == ' ' || ch == '\t'; }

// The end of the line at a position, without its line end; next is where the following line begins.
std::size_t EndOfLine(std::string_view bytes, std::size_t at, std::size_t& next)
{
    const void* const found = std::memchr(bytes.data() + at, '\n', bytes.size() - at);
    if (found == nullptr) {
        next = bytes.size();
        return bytes.size();
    }
    const auto end = static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data());
    next = end + 1;
    return end > at && bytes[end - 1] == '\r' ? end - 1 : end;
}

}  // namespace

bool PairReader::Next(Pair& pair)
{
    std::size_t at = m_at;
    while (at < m_bytes.size() && IsBlank(m_bytes[at])) {
        ++at;
    }
    if (at >= m_bytes.size()) {
        m_at = at;
        return false;
    }
    const char* const first = m_bytes.data() + at;
    const auto [stop, error] = std::from_chars(first, m_bytes.data() + m_bytes.size(), pair.code);
    at += static_cast<std::size_t>(stop - first);
    std::size_t valueAt = 0;
    const std::size_t codeEnd = EndOfLine(m_bytes, at, valueAt);
    while (at < codeEnd && IsBlank(m_bytes[at])) {
        ++at;
    }
    if (error != std::errc() || at != codeEnd || valueAt >= m_bytes.size()) {
        return false;
    }
    pair.begin = m_at;
    pair.valueAt = valueAt;
    const std::size_t end = EndOfLine(m_bytes, valueAt, pair.end);
    pair.value = m_bytes.substr(valueAt, end - valueAt);
    m_at = pair.end;
    return true;
}

std::string_view Trimmed(std::string_view value)
{
    while (!value.empty() && IsBlank(value.front())) {
        value.remove_prefix(1);
    }
    while (!value.empty() && IsBlank(value.back())) {
        value.remove_suffix(1);
    }
    return value;
}

double RealOf(std::string_view value)
{
    value = Trimmed(value);
    if (value.starts_with('+')) {
        value.remove_prefix(1);
    }
    double number = 0.0;
    const auto [stop, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    return error == std::errc() && std::abs(number) <= FarthestOut ? number : 0.0;
}

int WholeOf(std::string_view value)
{
    value = Trimmed(value);
    int number = 0;
    const auto [stop, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    return error == std::errc() ? number : 0;
}

}  // namespace Desk
