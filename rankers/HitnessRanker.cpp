// The empty steps of the frame.
#include "rankers/HitnessRanker.h"

#include "rankers/private/Repeats.h"

HITNESS_RANKER::~HITNESS_RANKER() = default;

void HITNESS_RANKER::ProcessController(CStringArray& /*arResult*/) {}
void HITNESS_RANKER::SelectFromProject(CStringArray& /*arResult*/) {}
void HITNESS_RANKER::AdaptResultSize(CStringArray& /*arResult*/) {}
void HITNESS_RANKER::AddPreferable(CStringArray& /*arResult*/) {}
void HITNESS_RANKER::SortResult(CStringArray& /*arResult*/) {}
void HITNESS_RANKER::GuessFromScratch(CStringArray& /*arResult*/) {}

void HITNESS_RANKER::EliminateSameResult(CStringArray& arResult) { Repeats::Remove(arResult); }
