// Ranks longitudinal bar annotations: the project's by how often it uses them, then guesses.
#pragma once

#include "rankers/HitnessRanker.h"
#include "tables/SteelBiao.h"

// The kind text says which bars are wanted:
//   "1", "2", "3", "4"   top bars
//   "5.1", "5.2"         bottom bars
//   any other text       complete top bars on these top through bars, such as "2B20"
//
// The stamps run parallel to the candidate list: five times the number of uses for a text of the
// project, 0 for a guess or a table row. Operations that need a stamp for each text give the missing
// ones 0.
class RANKER_API CHABIAO_HITNESS_RANKER : public HITNESS_RANKER {
public:
    CHABIAO_HITNESS_RANKER() = default;
    CHABIAO_HITNESS_RANKER(const CHABIAO_HITNESS_RANKER&) = delete;
    CHABIAO_HITNESS_RANKER& operator=(const CHABIAO_HITNESS_RANKER&) = delete;

    void ProcessController(CStringArray& arResult) override;
    void SelectFromProject(CStringArray& arResult) override;
    void SortResult(CStringArray& arResult) override;
    void GuessFromScratch(CStringArray& arResult) override;

    // Width in mm, steel area in mm², the table (borrowed, may be null as long as ChaBiao is not
    // called for rows), the kind text. Empties the stamps.
    void SetPara(int nWidth, int nArea, SteelBiao* pBiao, CString strKind);
    // Appends the table rows for the kind and stamps them 0; a table that is null has none.
    void ChaBiao(CStringArray& arResult);
    // Stage 0 appends the stamps of a sorted project list, stages 1 and 2 stamp what has no stamp yet
    // with 0, any other stage does nothing.
    void StampFlags(CStringArray& arResult, int nStage);
    // Removes one leading "G", "N" or "*" from each text.
    void CutHead(CStringArray& arResult);
    // Index of the last candidate that the project supports; -1 when it supports none.
    int FindIndexOfFocusByArFlags();
    // Appends end bars for a top through bar annotation: its bars doubled, or one or two bars of a
    // neighbouring diameter added. Does not stamp.
    void GuessDuanbuJin(CStringArray& arResult, CString strTopJin);

    // By bars alone, stamps untouched.
    void SortWithNumAndDia(CStringArray& arResult);
    // By stamp alone, the highest first.
    void SortWithFlags(CStringArray& arResult);
    // By stamp, the highest first; stamp 0 by bars behind all others.
    void MixedSort(CStringArray& arResult);
    // Removes repeats with their stamps, then MixedSort.
    void EliminateSameResult(CStringArray& arResult);

    // -1, 0 or 1; -1 when A goes first. Annotations compare piece by piece, pieces as texts.
    int CompareSteel(CString strA, CString strB);
    int ComparePieceSteel(CString strA, CString strB);

    // Count and diameter (mm) of a bar term, 0 and 0 for a text without grade letter.
    void GetSteelNumAndDia(CString strSteel, int& nNum, int& nDia);
    // True when the head of A has at least as many bars as that of B, of the same diameter.
    static bool EqualFirstDia(CString strA, CString strB);

    int m_nWidth = 0;                   // beam width in mm
    double m_dArea = 0.0;               // required steel area in mm²; look-ups cut it to an int
    SteelBiao* m_pSteelBiao = nullptr;  // borrowed from the host
    CString m_strKind;
    CUIntArray m_arFlags;    // the stamps
    int m_nFocusIndex = 0;   // the focus as last worked out
    int m_nProjectKind = 2;  // written by the host; other than 2 adds a text to an empty project's list
};
