// Steps that the runs of several rankers share, and what the stamps of a candidate list tell.
#pragma once

#include "platform/text/Arrays.h"

namespace RunSteps {

inline constexpr int LongList = 10;  // more candidates than this go through AdaptResultSize

// The end of a run: no repeats, in order. A template, since a ranker can have a removal of its own.
template <class Ranker>
void Finish(Ranker& ranker, CStringArray& arResult)
{
    if (arResult.GetSize() > LongList) {
        ranker.AdaptResultSize(arResult);
    }
    ranker.EliminateSameResult(arResult);
    ranker.SortResult(arResult);
}

// Guesses join the project's texts, in one order with them; guesses alone stay as they are. True for the
// former.
template <class Ranker>
bool FinishWithGuesses(Ranker& ranker, CStringArray& arResult)
{
    const bool bFromProject = !arResult.IsEmpty();
    ranker.GuessFromScratch(arResult);
    if (bFromProject) {
        Finish(ranker, arResult);
    } else {
        ranker.EliminateSameResult(arResult);
    }
    return bFromProject;
}

// Gives each text that has no stamp yet the stamp 0, that of a proposal.
inline void StampProposals(const CStringArray& arResult, CUIntArray& arStamp)
{
    if (arStamp.GetSize() < arResult.GetSize()) {
        arStamp.SetSize(arResult.GetSize());
    }
}

// Index of the last candidate before the first stamp 0; -1 when there is none.
[[nodiscard]] inline int LastFromProject(const CUIntArray& arStamp)
{
    int index = 0;
    while (index < arStamp.GetSize() && arStamp[index] != 0) {
        ++index;
    }
    return index - 1;
}

}  // namespace RunSteps
