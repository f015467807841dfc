// The orderings of the bar ranker.
#include <vector>

#include "rankers/ChaBiaoRanker.h"
#include "rankers/private/BarOrder.h"
#include "rankers/private/Order.h"
#include "rankers/private/Repeats.h"
#include "rankers/private/RunSteps.h"

int CHABIAO_HITNESS_RANKER::CompareSteel(CString strA, CString strB)
{
    return BarOrder::Compare(strA.View(), strB.View());
}

int CHABIAO_HITNESS_RANKER::ComparePieceSteel(CString strA, CString strB) { return strA.Compare(strB); }

void CHABIAO_HITNESS_RANKER::SortResult(CStringArray& arResult) { SortWithNumAndDia(arResult); }

void CHABIAO_HITNESS_RANKER::SortWithNumAndDia(CStringArray& arResult) { BarOrder::Sort(arResult); }

void CHABIAO_HITNESS_RANKER::SortWithFlags(CStringArray& arResult)
{
    const int count = std::min(arResult.GetSize(), m_arFlags.GetSize());
    const auto less = [this](int a, int b) { return m_arFlags[a] > m_arFlags[b]; };
    const Order::Positions order = Order::Sorted(count, less);
    Order::Apply(order, arResult);
    Order::Apply(order, m_arFlags);
}

void CHABIAO_HITNESS_RANKER::MixedSort(CStringArray& arResult)
{
    if (arResult.IsEmpty()) {
        return;
    }
    RunSteps::StampProposals(arResult, m_arFlags);
    // Only proposals are compared by their bars; the others need no key.
    std::vector<BarOrder::Key> keys;
    std::vector<int> keyOf;
    for (int i = 0; i < arResult.GetSize(); ++i) {
        keyOf.push_back(static_cast<int>(keys.size()));
        if (m_arFlags[i] == 0) {
            keys.emplace_back(arResult[i].View());
        }
    }
    const auto key = [&](int i) -> const BarOrder::Key& {
        return keys[static_cast<std::size_t>(keyOf[static_cast<std::size_t>(i)])];
    };
    const auto less = [&](int a, int b) {
        return m_arFlags[a] != m_arFlags[b] ? m_arFlags[a] > m_arFlags[b]
                                            : m_arFlags[a] == 0 && key(a) < key(b);
    };
    const Order::Positions order = Order::Sorted(arResult.GetSize(), less);
    Order::Apply(order, arResult);
    Order::Apply(order, m_arFlags);
}

void CHABIAO_HITNESS_RANKER::EliminateSameResult(CStringArray& arResult)
{
    Repeats::Remove(arResult, m_arFlags);
    MixedSort(arResult);
}
