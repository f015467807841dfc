// Ranks beam elevations: those of the project in rising order below a row of blanks.
#pragma once

#include "rankers/HitnessRanker.h"

// An elevation text is a decimal number in m with an optional "-", optionally in brackets. A text
// that does not begin with a number, a bracketed one included, sorts as 0.
class RANKER_API BEAMLEVEL_HITNESS_RANKER : public HITNESS_RANKER {
public:
    BEAMLEVEL_HITNESS_RANKER() = default;
    BEAMLEVEL_HITNESS_RANKER(const BEAMLEVEL_HITNESS_RANKER&) = default;
    BEAMLEVEL_HITNESS_RANKER& operator=(const BEAMLEVEL_HITNESS_RANKER&) = default;

    void ProcessController(CStringArray& arResult) override;
    void SelectFromProject(CStringArray& arResult) override;
    void SortResult(CStringArray& arResult) override;
    void GuessFromScratch(CStringArray& arResult) override;
};
