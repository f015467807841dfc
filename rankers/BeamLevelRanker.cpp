// Elevations in rising order.
#include "rankers/BeamLevelRanker.h"

#include <vector>

#include "host/private/AskHost.h"
#include "platform/text/Numbers.h"
#include "rankers/private/Order.h"
#include "rankers/private/RunSteps.h"

void BEAMLEVEL_HITNESS_RANKER::ProcessController(CStringArray& arResult)
{
    arResult.RemoveAll();
    SelectFromProject(arResult);
    if (arResult.IsEmpty()) {
        GuessFromScratch(arResult);
    }
    RunSteps::Finish(*this, arResult);
    arResult.InsertAt(0, "      ");
}

void BEAMLEVEL_HITNESS_RANKER::SelectFromProject(CStringArray& arResult)
{
    HostLink::AskElevations(arResult);
    EliminateSameResult(arResult);
}

void BEAMLEVEL_HITNESS_RANKER::SortResult(CStringArray& arResult)
{
    std::vector<double> levels;
    levels.reserve(static_cast<std::size_t>(arResult.GetSize()));
    for (const CString& text : arResult) {
        levels.push_back(RealValue(text.View()));
    }
    const auto less = [&levels](int a, int b) {
        return levels[static_cast<std::size_t>(a)] < levels[static_cast<std::size_t>(b)];
    };
    Order::Apply(Order::Sorted(arResult.GetSize(), less), arResult);
}

void BEAMLEVEL_HITNESS_RANKER::GuessFromScratch(CStringArray& arResult)
{
    arResult.RemoveAll();
    for (const char* const guess : {"0.1500", "0.3000", "0.6000"}) {
        arResult.Add(guess);
    }
}
