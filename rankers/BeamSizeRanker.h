// Ranks beam sections: those of the project together with ten common ones, by width, then height.
#pragma once

#include "rankers/HitnessRanker.h"

// A section text is width, separator "x", "X" or "*", height, and an optional tail behind a "/" or a
// blank: 300x600, 300x600/500. Width and height in mm.
class RANKER_API BEAMSIZE_HITNESS_RANKER : public HITNESS_RANKER {
public:
    BEAMSIZE_HITNESS_RANKER() = default;
    BEAMSIZE_HITNESS_RANKER(const BEAMSIZE_HITNESS_RANKER&) = default;
    BEAMSIZE_HITNESS_RANKER& operator=(const BEAMSIZE_HITNESS_RANKER&) = default;

    void ProcessController(CStringArray& arResult) override;
    void SelectFromProject(CStringArray& arResult) override;
    void SortResult(CStringArray& arResult) override;
    void GuessFromScratch(CStringArray& arResult) override;

    // Width or height of a section text in mm; 0 when no number stands there. A text without a
    // separator leaves the variable untouched. The height ends at the first "/" of the whole text,
    // else at its first blank, so that either one in front of the separator gives 0.
    void GetBeamWidth(CString strSection, int& nWidth);
    void GetBeamHeight(CString strSection, int& nHeight);

    int m_nProjectKind = 2;  // written by the host; other than 2 adds "300x1200" for an empty project
};
