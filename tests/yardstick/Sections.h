// Yardstick of the sections: width, height and the ranker with its two sorts.
#pragma once

#include "tests/yardstick/Texts.h"

namespace Yardstick {

inline int SeparatorOf(const std::string& text)
{
    for (const char separator : {'x', 'X', '*'}) {
        if (Find(text, separator) >= 0) {
            return Find(text, separator);
        }
    }
    return -1;
}

inline void GetBeamWidth(const std::string& text, int& nWidth)
{
    if (SeparatorOf(text) >= 0) {
        nWidth = Number(Trim(Left(text, SeparatorOf(text))));
    }
}

inline void GetBeamHeight(const std::string& text, int& nHeight)
{
    const int separator = SeparatorOf(text);
    if (separator < 0) {
        return;
    }
    int end = Find(text, '/');
    if (end < 0) {
        end = Find(text, ' ');
    }
    if (end < 0) {
        end = Length(text);
    }
    nHeight = Number(Between(text, separator, end));
}

struct SectionRanker {
    void ProcessController(List& list)
    {
        list.clear();
        SelectFromProject(list);
        const bool fromScratch = list.empty();
        GuessFromScratch(list);
        EliminateSameResult(list);
        if (fromScratch) {
            return;
        }
        SortResult(list);
        while (!list.empty() && First(TrimLeft(list[0])) == 'Y') {
            list.erase(list.begin());
        }
    }

    void SelectFromProject(List& list)
    {
        list.insert(list.end(), projectTexts.begin(), projectTexts.end());
        EliminateSameResult(list);
    }

    void EliminateSameResult(List& list) { KeepFirst(list); }

    void GuessFromScratch(List& list)
    {
        const bool wasEmpty = list.empty();
        list.insert(list.end(), {"250x500", "300x500", "350x500", "400x500", "450x500", "250x600",
                                 "300x600", "350x600", "400x600", "450x600"});
        if (wasEmpty && m_nProjectKind != 2) {
            list.insert(list.begin(), "300x1200");
        }
    }

    void SortResult(List& list)
    {
        for (const auto keyOf : {GetBeamHeight, GetBeamWidth}) {
            int first = -1;
            int second = -1;
            ExchangePasses(
                list.size(),
                [&](std::size_t j) {
                    keyOf(list[j], first);
                    keyOf(list[j + 1], second);
                    return first > second;
                },
                [&](std::size_t j) { std::swap(list[j], list[j + 1]); });
        }
    }

    int m_nProjectKind = 2;
};

}  // namespace Yardstick
