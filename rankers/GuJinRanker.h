// Ranks stirrup annotations: those of the project, then ten common ones, each group by size.
#pragma once

#include "rankers/HitnessRanker.h"
#include "tables/GuJinBiao.h"

// The stamps run parallel to the candidate list: 1 for a text of the project, however often it is
// used, 0 for a guess or a table row. Operations that need a stamp for each text give the missing
// ones 0.
class RANKER_API GUJIN_HITNESS_RANKER : public HITNESS_RANKER {
public:
    GUJIN_HITNESS_RANKER() = default;
    GUJIN_HITNESS_RANKER(const GUJIN_HITNESS_RANKER&) = delete;
    GUJIN_HITNESS_RANKER& operator=(const GUJIN_HITNESS_RANKER&) = delete;

    void ProcessController(CStringArray& arResult) override;
    void SelectFromProject(CStringArray& arResult) override;
    void SortResult(CStringArray& arResult) override;
    void GuessFromScratch(CStringArray& arResult) override;

    // Width in mm, seismic class 1 to 4, concrete grade, the table (borrowed, may be null as long as
    // ChaBiao is not called for rows). The stamps stay.
    void SetPara(int nWidth, int nSeismic, int nGrade, GuJinBiao* pBiao);
    // Appends the stamp 1 for each text of the list.
    void StampFlags(CStringArray& arResult);
    // Appends the table rows and stamps them 0; a table that is null has none.
    void ChaBiao(CStringArray& arResult);
    // Removes repeats with their stamps; does not sort.
    void EliminateSameResult(CStringArray& arResult);
    // -1, 0 or 1; -1 when A goes first. By diameter, spacing, tight spacing, legs, each as a number;
    // grade letter and tight legs are not compared.
    int CompareGujin(CString strA, CString strB);
    // Index of the last candidate that the project supports; -1 when it supports none.
    int FindIndexOfFocusByArFlags();

    int m_nWidth = 0;                   // beam width in mm
    int m_nSeismic = 0;                 // seismic class, 1 to 4
    int m_nGrade = 0;                   // concrete grade
    GuJinBiao* m_pGuJinBiao = nullptr;  // borrowed from the host
    CUIntArray m_arFlags;               // the stamps
    int m_nFocusIndex = 0;              // the focus as last worked out
    int m_nProjectKind = 2;  // written by the host; other than 2 changes the head of the guess list
};
