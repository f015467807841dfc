// The run of the stirrup ranker and the order of stirrups.
#include "rankers/GuJinRanker.h"

#include <algorithm>
#include <compare>
#include <vector>

#include "host/StirrupText.h"
#include "host/private/AskHost.h"
#include "rankers/private/Order.h"
#include "rankers/private/Repeats.h"
#include "rankers/private/RunSteps.h"

void GUJIN_HITNESS_RANKER::SetPara(int nWidth, int nSeismic, int nGrade, GuJinBiao* pBiao)
{
    m_nWidth = nWidth;
    m_nSeismic = nSeismic;
    m_nGrade = nGrade;
    m_pGuJinBiao = pBiao;
}

void GUJIN_HITNESS_RANKER::ProcessController(CStringArray& arResult)
{
    arResult.RemoveAll();
    m_arFlags.RemoveAll();
    SelectFromProject(arResult);
    StampFlags(arResult);
    RunSteps::FinishWithGuesses(*this, arResult);
}

void GUJIN_HITNESS_RANKER::SelectFromProject(CStringArray& arResult) { HostLink::AskStirrups(arResult); }

void GUJIN_HITNESS_RANKER::StampFlags(CStringArray& arResult)
{
    m_arFlags.Reserve(m_arFlags.GetSize() + arResult.GetSize());
    for (int i = 0; i < arResult.GetSize(); ++i) {
        m_arFlags.Add(1);
    }
}

void GUJIN_HITNESS_RANKER::GuessFromScratch(CStringArray& arResult)
{
    static constexpr const char* Guesses[] = {
        "A8@200(2)",  "A8@100/150(2)",  "A8@100/200(2)",  "A8@150/200(2)",  "A8@150/250(2)",
        "A10@200(2)", "A10@100/150(2)", "A10@100/200(2)", "A10@150/200(2)", "A10@150/250(2)",
    };
    constexpr int GuessCount = static_cast<int>(std::size(Guesses));
    for (const char* const guess : Guesses) {
        arResult.Add(guess);
    }
    if (m_nProjectKind != 2 && arResult.GetSize() == GuessCount) {
        // The wider spacing of the larger diameter moves to the head.
        arResult.InsertAt(0, "A10@200(2)");
        arResult.RemoveAt(6);
    }
    RunSteps::StampProposals(arResult, m_arFlags);
}

void GUJIN_HITNESS_RANKER::ChaBiao(CStringArray& arResult)
{
    if (m_pGuJinBiao != nullptr) {
        m_pGuJinBiao->GetGuJin(m_nWidth, m_nGrade, m_nSeismic, arResult);
    }
    RunSteps::StampProposals(arResult, m_arFlags);
}

void GUJIN_HITNESS_RANKER::EliminateSameResult(CStringArray& arResult)
{
    Repeats::Remove(arResult, m_arFlags);
}

void GUJIN_HITNESS_RANKER::SortResult(CStringArray& arResult)
{
    RunSteps::StampProposals(arResult, m_arFlags);
    const int count = arResult.GetSize();
    std::vector<StirrupText::Measures> measures;
    measures.reserve(static_cast<std::size_t>(count));
    for (const CString& text : arResult) {
        measures.push_back(StirrupText::Measure(text));
    }
    const auto smaller = [&measures](int a, int b) {
        return measures[static_cast<std::size_t>(a)] < measures[static_cast<std::size_t>(b)];
    };
    const auto less = [&](int a, int b) {
        return m_arFlags[a] != m_arFlags[b] ? m_arFlags[a] > m_arFlags[b] : smaller(a, b);
    };
    // Only 0 and 1 are told apart. Other stamps, which only a host can write, keep their places where
    // they meet; that is no strict weak order.
    const auto isOwnStamp = [](unsigned int stamp) { return stamp <= 1; };
    const auto mustExchange = [&](int a, int b) {
        return m_arFlags[a] == m_arFlags[b] ? smaller(b, a) : m_arFlags[a] == 0 && m_arFlags[b] == 1;
    };
    const bool ownStamps = std::all_of(m_arFlags.begin(), m_arFlags.begin() + count, isOwnStamp);
    const Order::Positions order =
        ownStamps ? Order::Sorted(count, less) : Order::ExchangePass(Order::Present(count), mustExchange);
    Order::Apply(order, arResult);
    Order::Apply(order, m_arFlags);
}

int GUJIN_HITNESS_RANKER::CompareGujin(CString strA, CString strB)
{
    const auto order = StirrupText::Measure(strA) <=> StirrupText::Measure(strB);
    return (order > 0) - (order < 0);
}

int GUJIN_HITNESS_RANKER::FindIndexOfFocusByArFlags()
{
    m_nFocusIndex = RunSteps::LastFromProject(m_arFlags);
    return m_nFocusIndex;
}
