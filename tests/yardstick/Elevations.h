// Yardstick of the elevations.
#pragma once

#include "tests/yardstick/Texts.h"

namespace Yardstick {

struct ElevationRanker {
    void ProcessController(List& list)
    {
        list.clear();
        SelectFromProject(list);
        if (list.empty()) {
            GuessFromScratch(list);
        }
        EliminateSameResult(list);
        SortResult(list);
        list.insert(list.begin(), "      ");
    }

    void SelectFromProject(List& list)
    {
        list.insert(list.end(), projectTexts.begin(), projectTexts.end());
        EliminateSameResult(list);
    }

    void EliminateSameResult(List& list) { KeepFirst(list); }

    void GuessFromScratch(List& list) { list = {"0.1500", "0.3000", "0.6000"}; }

    void SortResult(List& list)
    {
        ExchangePasses(
            list.size(), [&](std::size_t j) { return Real(list[j + 1]) < Real(list[j]); },
            [&](std::size_t j) { std::swap(list[j], list[j + 1]); });
    }
};

}  // namespace Yardstick
