// Yardstick of the longitudinal bars: reading rules, comparison and the ranker, step by step.
#pragma once

#include "tests/yardstick/SteelTable.h"
#include "tests/yardstick/Texts.h"

namespace Yardstick {

inline void GetSteelNumAndDia(const std::string& text, int& count, int& diameter)
{
    count = 0;
    diameter = 0;
    const int grade = Find(text, 'B') >= 0 ? Find(text, 'B') : Find(text, 'A');
    if (grade >= 0) {
        count = Number(Left(text, grade));
        diameter = Number(Mid(text, grade + 1));
    }
}

inline std::string HeadPiece(const std::string& text)
{
    std::string head;
    for (const char ch : text) {
        if (ch == '+' || ch == '/') {
            break;
        }
        head += ch;
    }
    return First(head) == '*' || First(head) == 'N' || First(head) == 'G' ? Mid(head, 1) : head;
}

inline bool EqualFirstDia(const std::string& a, const std::string& b)
{
    const auto gradeOf = [](const std::string& head) {
        const int posA = Find(head, 'A');
        const int posB = Find(head, 'B');
        return posA < 0 ? posB : posB < 0 ? posA : std::min(posA, posB);
    };
    const std::string headA = HeadPiece(a);
    const std::string headB = HeadPiece(b);
    const int gradeA = gradeOf(headA);
    const int gradeB = gradeOf(headB);
    if (gradeA < 0 || gradeB < 0) {
        return false;
    }
    return Number(Left(headB, gradeB)) <= Number(Left(headA, gradeA)) &&
           Mid(headA, gradeA + 1) == Mid(headB, gradeB + 1);
}

inline std::string Essence(std::string text)
{
    for (int time = 0; time < 2; ++time) {
        if (!text.empty() && !IsDigit(text.front())) {
            text.erase(0, 1);
        }
    }
    for (int time = 0; time < 2; ++time) {
        if (!text.empty() && !IsDigit(text.back())) {
            text.pop_back();
        }
    }
    return text;
}

inline bool CmpEssence(const std::string& a, const std::string& b) { return Essence(a) == Essence(b); }

inline List PiecesOf(const std::string& text)
{
    List pieces{""};
    for (const char ch : text) {
        if (ch == '+' || ch == '/') {
            pieces.emplace_back();
        } else {
            pieces.back() += ch;
        }
    }
    return pieces;
}

inline int CompareSteel(const std::string& a, const std::string& b)
{
    const List piecesA = PiecesOf(a);
    const List piecesB = PiecesOf(b);
    for (std::size_t i = 0;; ++i) {
        if (i == piecesA.size() || i == piecesB.size()) {
            return piecesA.size() == piecesB.size() ? 0 : i == piecesA.size() ? -1 : 1;
        }
        const int order = Compare(piecesA[i], piecesB[i]);
        if (order != 0) {
            return order;
        }
    }
}

// The member names are the module's, so that the same steps can be played on both.
struct BarRanker {
    void SetPara(int nWidth, int nArea, SteelTable* pBiao, const std::string& strKind)
    {
        m_nWidth = nWidth;
        m_nArea = nArea;
        m_pSteelBiao = pBiao;
        m_strKind = strKind;
        m_arFlags.clear();
    }

    void ProcessController(List& list)
    {
        list.clear();
        m_arFlags.clear();
        SelectFromProject(list);
        if (list.empty()) {
            GuessFromScratch(list);
            return;
        }
        EliminateSameResult(list);
        if (list.size() <= 8) {
            GuessFromScratch(list);
        }
        CutHead(list);
        EliminateSameResult(list);
    }

    void SelectFromProject(List& list)
    {
        list.insert(list.end(), projectTexts.begin(), projectTexts.end());
        SortWithNumAndDia(list);
        StampFlags(list, 0);
    }

    void StampFlags(const List& list, int nStage)
    {
        if (nStage == 0) {
            for (std::size_t i = 0; i < list.size();) {
                std::size_t n = 1;
                while (i + n < list.size() && list[i + n] == list[i]) {
                    ++n;
                }
                m_arFlags.insert(m_arFlags.end(), n, static_cast<unsigned>(5 * n));
                i += n;
            }
        } else if (nStage == 1 || nStage == 2) {
            while (m_arFlags.size() < list.size()) {
                m_arFlags.push_back(0);
            }
        }
    }

    void CutHead(List& list)
    {
        for (std::string& text : list) {
            if (First(text) == 'G' || First(text) == 'N' || First(text) == '*') {
                text.erase(0, 1);
            }
        }
    }

    [[nodiscard]] bool WantsTop() const
    {
        return m_strKind == "1" || m_strKind == "2" || m_strKind == "3" || m_strKind == "4";
    }
    [[nodiscard]] bool WantsBottom() const { return m_strKind == "5.1" || m_strKind == "5.2"; }

    void ChaBiao(List& list)
    {
        if (WantsTop()) {
            m_pSteelBiao->GetTopJin(m_nWidth, m_nArea, list);
        } else if (WantsBottom()) {
            m_pSteelBiao->GetDiJin(m_nWidth, m_nArea, list);
        } else {
            m_pSteelBiao->GetExactTotalJin(m_nWidth, m_nArea, m_strKind, list);
        }
        StampFlags(list, 1);
    }

    int FindIndexOfFocusByArFlags()
    {
        m_nFocusIndex = -1;
        for (const unsigned stamp : m_arFlags) {
            if (stamp == 0) {
                break;
            }
            ++m_nFocusIndex;
        }
        return m_nFocusIndex;
    }

    void GuessFromScratch(List& list)
    {
        const bool wasEmpty = list.empty();
        if (WantsTop()) {
            list.insert(list.end(), {"2B12", "2B14", "2B16", "2B18", "2B20", "2B22", "2B25", "2B28"});
            if (m_nProjectKind != 2 && wasEmpty && m_strKind == "1") {
                list.insert(list.begin(), "4B20");
            }
        } else if (WantsBottom()) {
            list.insert(list.end(), {"3B12", "3B14", "3B16", "3B18", "3B20", "3B22", "3B25", "3B28"});
            if (m_nProjectKind != 2 && wasEmpty) {
                list.insert(list.begin(), "2B20");
            }
        } else {
            GuessDuanbuJin(list, m_strKind);
        }
        StampFlags(list, 2);
    }

    void GuessDuanbuJin(List& list, const std::string& strTopJin)
    {
        // Key, the text of its own, then the suffixes.
        static const List rows[] = {
            {"2B12", "4B12", "+1B14", "+2B14"},
            {"2B14", "4B14", "+1B12", "+2B12", "+1B16", "+2B16"},
            {"2B16", "4B16", "+1B14", "+2B14", "+1B18", "+2B18"},
            {"2B18", "4B18", "+1B16", "+2B16", "+1B20", "+2B20"},
            {"2B20", "4B20", "+1B18", "+2B18", "+1B22", "+2B22"},
            {"2B22", "4B22", "+1B20", "+2B20", "+1B25", "+2B25"},
            {"2B25", "4B25", "+1B22", "+2B22", "+1B20", "+2B20", "+1B28", "+2B28"},
            {"2B28", "", "+1B25", "+2B25"},
        };
        for (const List& row : rows) {
            if (!EqualFirstDia(strTopJin, row[0])) {
                continue;
            }
            if (!row[1].empty()) {
                list.push_back(row[1]);
            }
            for (std::size_t i = 2; i < row.size(); ++i) {
                list.push_back(strTopJin + row[i]);
            }
        }
    }

    void SortResult(List& list) { SortWithNumAndDia(list); }

    void SortWithNumAndDia(List& list)
    {
        ExchangePasses(
            list.size(), [&](std::size_t j) { return CompareSteel(list[j], list[j + 1]) > 0; },
            [&](std::size_t j) { std::swap(list[j], list[j + 1]); });
    }

    void SortWithFlags(List& list)
    {
        // Stamps without a text, which only a caller can leave, take no part.
        ExchangePasses(
            std::min(list.size(), m_arFlags.size()),
            [&](std::size_t j) { return m_arFlags[j] < m_arFlags[j + 1]; },
            [&](std::size_t j) { Exchange(list, j); });
    }

    void MixedSort(List& list)
    {
        m_arFlags.resize(std::max(list.size(), m_arFlags.size()));
        ExchangePasses(
            list.size(),
            [&](std::size_t j) {
                return m_arFlags[j] < m_arFlags[j + 1] || (m_arFlags[j] == 0 && m_arFlags[j + 1] == 0 &&
                                                           CompareSteel(list[j], list[j + 1]) > 0);
            },
            [&](std::size_t j) { Exchange(list, j); });
    }

    void EliminateSameResult(List& list)
    {
        KeepFirst(list, m_arFlags);
        MixedSort(list);
    }

    void Exchange(List& list, std::size_t j)
    {
        std::swap(list[j], list[j + 1]);
        std::swap(m_arFlags[j], m_arFlags[j + 1]);
    }

    int m_nWidth = 0;
    int m_nArea = 0;
    SteelTable* m_pSteelBiao = nullptr;
    std::string m_strKind;
    std::vector<unsigned> m_arFlags;
    int m_nFocusIndex = 0;
    int m_nProjectKind = 2;
};

}  // namespace Yardstick
