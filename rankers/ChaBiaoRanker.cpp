// The run of the bar ranker: sources, stamps and focus.
#include "rankers/ChaBiaoRanker.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "host/BarText.h"
#include "host/private/AskHost.h"
#include "rankers/private/BarOrder.h"
#include "rankers/private/Order.h"
#include "rankers/private/Repeats.h"
#include "rankers/private/RunSteps.h"

namespace {

constexpr unsigned int StampPerUse = 5;
constexpr int FewCandidates = 8;  // up to so many from the project call for a guess

enum class Wanted { TopBars, BottomBars, EndBars };

Wanted WantedBy(const CString& kind)
{
    if (kind == "1" || kind == "2" || kind == "3" || kind == "4") {
        return Wanted::TopBars;
    }
    return kind == "5.1" || kind == "5.2" ? Wanted::BottomBars : Wanted::EndBars;
}

// The area that a look-up takes: cut to a whole number, the nearest one in range; 0 for what is none.
int WholeArea(double area)
{
    using Range = std::numeric_limits<int>;
    return std::isnan(area) ? 0 : static_cast<int>(std::clamp<double>(area, Range::min(), Range::max()));
}

}  // namespace

void CHABIAO_HITNESS_RANKER::SetPara(int nWidth, int nArea, SteelBiao* pBiao, CString strKind)
{
    m_nWidth = nWidth;
    m_dArea = nArea;
    m_pSteelBiao = pBiao;
    m_strKind = std::move(strKind);
    m_arFlags.RemoveAll();
}

void CHABIAO_HITNESS_RANKER::ProcessController(CStringArray& arResult)
{
    arResult.RemoveAll();
    m_arFlags.RemoveAll();
    SelectFromProject(arResult);
    if (arResult.IsEmpty()) {
        GuessFromScratch(arResult);
        return;
    }
    EliminateSameResult(arResult);
    if (arResult.GetSize() <= FewCandidates) {
        GuessFromScratch(arResult);
    }
    if (arResult.GetSize() > RunSteps::LongList) {
        AdaptResultSize(arResult);
    }
    CutHead(arResult);
    EliminateSameResult(arResult);
}

void CHABIAO_HITNESS_RANKER::SelectFromProject(CStringArray& arResult)
{
    HostLink::AskBars(arResult, m_strKind);
    SortWithNumAndDia(arResult);
    StampFlags(arResult, 0);
}

void CHABIAO_HITNESS_RANKER::StampFlags(CStringArray& arResult, int nStage)
{
    if (nStage == 1 || nStage == 2) {
        RunSteps::StampProposals(arResult, m_arFlags);
        return;
    }
    if (nStage != 0) {
        return;
    }
    const int count = arResult.GetSize();
    m_arFlags.Reserve(m_arFlags.GetSize() + count);
    for (int first = 0; first < count;) {
        int end = first + 1;
        while (end < count && arResult[end] == arResult[first]) {
            ++end;
        }
        const unsigned int stamp = StampPerUse * static_cast<unsigned int>(end - first);
        for (; first < end; ++first) {
            m_arFlags.Add(stamp);
        }
    }
}

void CHABIAO_HITNESS_RANKER::CutHead(CStringArray& arResult)
{
    for (CString& text : arResult) {
        const char head = text.GetAt(0);
        if (head == 'G' || head == 'N' || head == '*') {
            text = text.Mid(1);
        }
    }
}

void CHABIAO_HITNESS_RANKER::ChaBiao(CStringArray& arResult)
{
    if (m_pSteelBiao != nullptr) {
        const int area = WholeArea(m_dArea);
        switch (WantedBy(m_strKind)) {
        case Wanted::TopBars: m_pSteelBiao->GetTopJin(m_nWidth, area, arResult); break;
        case Wanted::BottomBars: m_pSteelBiao->GetDiJin(m_nWidth, area, arResult); break;
        case Wanted::EndBars: m_pSteelBiao->GetExactTotalJin(m_nWidth, area, m_strKind, arResult); break;
        }
    }
    StampFlags(arResult, 1);
}

int CHABIAO_HITNESS_RANKER::FindIndexOfFocusByArFlags()
{
    m_nFocusIndex = RunSteps::LastFromProject(m_arFlags);
    return m_nFocusIndex;
}

void CHABIAO_HITNESS_RANKER::GuessFromScratch(CStringArray& arResult)
{
    static constexpr const char* TwoBars[] = {"2B12", "2B14", "2B16", "2B18",
                                              "2B20", "2B22", "2B25", "2B28"};
    static constexpr const char* ThreeBars[] = {"3B12", "3B14", "3B16", "3B18",
                                                "3B20", "3B22", "3B25", "3B28"};
    const auto append = [&arResult](const auto& texts) {
        for (const char* const text : texts) {
            arResult.Add(text);
        }
    };
    const bool wasEmpty = arResult.IsEmpty();
    const bool addsFirst = m_nProjectKind != 2 && wasEmpty;
    switch (WantedBy(m_strKind)) {
    case Wanted::TopBars:
        append(TwoBars);
        if (addsFirst && m_strKind == "1") {
            arResult.InsertAt(0, "4B20");
        }
        break;
    case Wanted::BottomBars:
        append(ThreeBars);
        if (addsFirst) {
            arResult.InsertAt(0, "2B20");
        }
        break;
    case Wanted::EndBars: GuessDuanbuJin(arResult, m_strKind); break;
    }
    StampFlags(arResult, 2);
}

void CHABIAO_HITNESS_RANKER::GuessDuanbuJin(CStringArray& arResult, CString strTopJin)
{
    // The neighbours of each diameter in the series, the smaller first, one bar before two; 25 reaches
    // two steps down as well, and 28 is never doubled.
    struct EndBars {
        const char* key;
        const char* own;          // null for none
        const char* suffixes[6];  // null behind the last
    };
    static constexpr EndBars Table[] = {
        {"2B12", "4B12", {"+1B14", "+2B14"}},
        {"2B14", "4B14", {"+1B12", "+2B12", "+1B16", "+2B16"}},
        {"2B16", "4B16", {"+1B14", "+2B14", "+1B18", "+2B18"}},
        {"2B18", "4B18", {"+1B16", "+2B16", "+1B20", "+2B20"}},
        {"2B20", "4B20", {"+1B18", "+2B18", "+1B22", "+2B22"}},
        {"2B22", "4B22", {"+1B20", "+2B20", "+1B25", "+2B25"}},
        {"2B25", "4B25", {"+1B22", "+2B22", "+1B20", "+2B20", "+1B28", "+2B28"}},
        {"2B28", nullptr, {"+1B25", "+2B25"}},
    };
    for (const EndBars& row : Table) {
        if (!EqualFirstDia(strTopJin, row.key)) {
            continue;
        }
        if (row.own != nullptr) {
            arResult.Add(row.own);
        }
        for (const char* const suffix : row.suffixes) {
            if (suffix != nullptr) {
                arResult.Add(strTopJin + suffix);
            }
        }
    }
}

void CHABIAO_HITNESS_RANKER::GetSteelNumAndDia(CString strSteel, int& nNum, int& nDia)
{
    const BarText::Term term = BarText::SplitTerm(strSteel);
    nNum = term.count;
    nDia = term.diameter;
}

bool CHABIAO_HITNESS_RANKER::EqualFirstDia(CString strA, CString strB)
{
    return BarText::SameFirstDiameter(strA, strB);
}
