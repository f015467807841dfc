// One hash pass instead of a search through the list for every text; the outcome is the same.
#include "rankers/private/Repeats.h"

#include <utility>
#include <vector>

#include "rankers/private/TextIndex.h"

namespace Repeats {
namespace {

// Positions of the texts that stay, rising.
std::vector<int> FirstOccurrences(const CStringArray& arText)
{
    std::vector<int> kept;
    TextIndex seen;
    for (int i = 0; i < arText.GetSize(); ++i) {
        // Most repeats of a sorted list are neighbours, found without hashing.
        if (i > 0 && arText[i] == arText[i - 1]) {
            continue;
        }
        if (seen.Add(arText[i].View())) {
            kept.push_back(i);
        }
    }
    return kept;
}

template <class Array>
void Keep(Array& items, const std::vector<int>& kept)
{
    int to = 0;
    for (const int from : kept) {
        if (to != from) {
            items[to] = std::move(items[from]);
        }
        ++to;
    }
    items.SetSize(to);
}

}  // namespace

void Remove(CStringArray& arText) { Keep(arText, FirstOccurrences(arText)); }

void Remove(CStringArray& arText, CUIntArray& arStamp)
{
    const std::vector<int> kept = FirstOccurrences(arText);
    arStamp.SetSize(arText.GetSize());
    Keep(arText, kept);
    Keep(arStamp, kept);
}

}  // namespace Repeats
