// The frame that all rankers share: the steps of a run and the removal of repeats.
#pragma once

#include "host/Export.h"
#include "platform/text/Arrays.h"
#include "platform/text/CString.h"

// A ranker fills the caller's list with the texts that the user most likely wants, best first. The
// base class only names the steps; its own bodies do nothing. No step reports an error: a list may
// come back empty.
class RANKER_API HITNESS_RANKER {
public:
    HITNESS_RANKER() = default;
    HITNESS_RANKER(const HITNESS_RANKER&) = default;
    HITNESS_RANKER& operator=(const HITNESS_RANKER&) = default;

    virtual ~HITNESS_RANKER();
    // One complete run: drops what the list held and leaves the candidates in it.
    virtual void ProcessController(CStringArray& arResult);
    // Candidates from the project.
    virtual void SelectFromProject(CStringArray& arResult);
    // Hook for a list of more than 10 entries; no class uses it yet.
    virtual void AdaptResultSize(CStringArray& arResult);
    // Hook for preferred candidates; no run calls it yet.
    virtual void AddPreferable(CStringArray& arResult);
    // The final order.
    virtual void SortResult(CStringArray& arResult);
    // Built-in candidates.
    virtual void GuessFromScratch(CStringArray& arResult);

    // Removes repeated texts, compared byte for byte; the first of each keeps its place.
    void EliminateSameResult(CStringArray& arResult);

    int m_nHostWord = 0;  // the host's own word; copied along, never read here
};
