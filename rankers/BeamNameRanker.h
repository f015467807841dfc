// Ranks beam names: the free serials next to those in use, with the span suffixes of the project.
#pragma once

#include "rankers/HitnessRanker.h"

// A beam name is type, serial and an optional suffix: KL12(3A). The type ends with the last "L" of
// the name; the suffix begins with the first "(".
class RANKER_API BEAMNAME_HITNESS_RANKER : public HITNESS_RANKER {
public:
    BEAMNAME_HITNESS_RANKER() = default;
    BEAMNAME_HITNESS_RANKER(const BEAMNAME_HITNESS_RANKER&) = delete;
    BEAMNAME_HITNESS_RANKER& operator=(const BEAMNAME_HITNESS_RANKER&) = delete;

    void ProcessController(CStringArray& arResult) override;
    void SelectFromProject(CStringArray& arResult) override;
    void GuessFromScratch(CStringArray& arResult) override;

    // Everything up to and including the last "L"; empty for a name without "L".
    static void GetBeamType(CString strName, CString& strType);
    // The number between the last "L" and the first "(", or the end; 0 when there is none.
    static void GetBeamXu(CString strName, int& nXu);
    // From the first "(" to the end, brackets included; empty for a name without "(".
    static void GetBeamKuaAndXuantiao(CString strName, CString& strSuffix);

    // Appends the free serials next to those of m_arUsedXu, which gets sorted: the low end of the gap
    // behind the first one, both ends of every later gap. No serial below 1 and none above the 32-bit
    // signed range is offered.
    void FindXu(CUIntArray& arFreeXu);
    // For project kind 2: puts "KL1(1)" at the head of a list without any "K".
    void StrangeFuncForKL(CStringArray& arResult);
    // Remembers a name and the step from the serial of the one before: the new serial when it is
    // higher, the new serial negated when it is lower, the old step when it is the same. Takes no part
    // in a run.
    void SetPreBeamName(CString strName);
    // Index of the candidate to put the focus on: the first.
    int GetMostFixedBeamNameIndex();

    CUIntArray m_arUsedXu;      // serials in use for the type in work
    CStringArray m_arBeamType;  // beam types of the project, kept from run to run
    CString m_strPreBeamName;   // the name given to the last SetPreBeamName
    int m_nPreXuStep = 0;       // the step worked out by SetPreBeamName
    int m_nProjectKind = 2;     // written by the host; 2 switches StrangeFuncForKL on
};
