// Where the characters of a GBK text begin and end.
#include "platform/text/GbkWalk.h"

#include <algorithm>
#include <cstddef>

namespace {

std::size_t EndOf(std::string_view text, std::size_t start)
{
    const bool bPair = start + 1 < text.size() && IsGbkLead(text[start]) && IsGbkTrail(text[start + 1]);
    return start + (bPair ? 2 : 1);
}

std::size_t Inside(std::string_view text, int nPosition)
{
    return std::min(static_cast<std::size_t>(std::max(nPosition, 0)), text.size());
}

}  // namespace

int PreviousCharacter(std::string_view text, int nPosition)
{
    const std::size_t position = Inside(text, nPosition);
    std::size_t start = 0;
    for (std::size_t next = 0; next < position; next = EndOf(text, start)) {
        start = next;
    }
    return static_cast<int>(start);
}

int NextCharacter(std::string_view text, int nPosition)
{
    const std::size_t position = Inside(text, nPosition);
    std::size_t place = 0;
    while (place < position) {
        place = EndOf(text, place);
    }
    return static_cast<int>(place < text.size() ? EndOf(text, place) : place);
}
