// Yardstick of the beam names: taking a name apart, the free serials and the ranker.
#pragma once

#include <cstdint>

#include "tests/yardstick/Texts.h"

namespace Yardstick {

inline int LastL(const std::string& name)
{
    int place = -1;
    for (int i = Find(name, 'L'); i >= 0; i = Find(name, 'L', i + 1)) {
        place = i;
    }
    return place;
}

inline std::string BeamType(const std::string& name) { return Left(name, LastL(name) + 1); }

inline int BeamXu(const std::string& name)
{
    const int bracket = Find(name, '(');
    return LastL(name) < 0 ? 0 : Number(Between(name, LastL(name), bracket < 0 ? Length(name) : bracket));
}

inline std::string BeamKuaAndXuantiao(const std::string& name)
{
    return Find(name, '(') < 0 ? "" : Mid(name, Find(name, '('));
}

// The host's answers, taken from the names in projectTexts.
inline void AnswerTypes(List& types)
{
    for (const std::string& name : projectTexts) {
        types.push_back(BeamType(name));
    }
}

inline void AnswerNumbers(std::vector<unsigned>& serials, List& suffixes, const std::string& type)
{
    for (const std::string& name : projectTexts) {
        if (BeamType(name) == type) {
            serials.push_back(static_cast<unsigned>(BeamXu(name)));
            if (First(name) != 'X') {  // a type whose suffixes the host does not tell
                suffixes.push_back(BeamKuaAndXuantiao(name));
            }
        }
    }
}

struct NameRanker {
    void ProcessController(List& list)
    {
        list.clear();
        SelectFromProject(list);
        if (list.empty()) {
            GuessFromScratch(list);
        }
        StrangeFuncForKL(list);
        EliminateSameResult(list);
    }

    void SelectFromProject(List& list)
    {
        AnswerTypes(m_arBeamType);
        EliminateSameResult(m_arBeamType);
        for (const std::string& type : m_arBeamType) {
            m_arUsedXu.clear();
            List suffixes;
            AnswerNumbers(m_arUsedXu, suffixes, type);
            List serials;
            for (const unsigned serial : m_arUsedXu) {
                serials.push_back(std::to_string(static_cast<int>(serial)));
            }
            EliminateSameResult(serials);
            m_arUsedXu.clear();
            for (const std::string& serial : serials) {
                m_arUsedXu.push_back(static_cast<unsigned>(Number(serial)));
            }
            EliminateSameResult(suffixes);
            std::vector<unsigned> freeXu;
            FindXu(freeXu);
            for (const std::string& suffix : suffixes) {
                for (const unsigned serial : freeXu) {
                    list.push_back(type + std::to_string(serial) + suffix);
                }
            }
        }
        EliminateSameResult(list);
    }

    void EliminateSameResult(List& list) { KeepFirst(list); }

    void FindXu(std::vector<unsigned>& freeXu)
    {
        // No serial below 1 and none beyond the 32-bit signed numbers is offered.
        const auto offer = [&](std::int64_t serial) {
            if (serial > 0 && serial <= INT_MAX) {
                freeXu.push_back(static_cast<unsigned>(serial));
            }
        };
        std::sort(m_arUsedXu.begin(), m_arUsedXu.end());
        const std::vector<std::int64_t> u(m_arUsedXu.begin(), m_arUsedXu.end());
        const std::size_t n = u.size();
        if (n == 0) {
            return;
        }
        offer(u[0] - 1);
        if (n == 1) {
            offer(u[0] + 1);
            return;
        }
        if (u[0] + 1 != u[1]) {
            offer(u[0] + 1);
        }
        for (std::size_t i = 1; i + 2 <= n; ++i) {
            if (u[i] + 1 != u[i + 1]) {
                offer(u[i] + 1);
            }
            if (u[i + 1] - u[i] > 2) {
                offer(u[i + 1] - 1);
            }
        }
        offer(u[n - 1] + 1);
    }

    void GuessFromScratch(List& list)
    {
        list = {"KL1(1)", "KZL1(1)", "WKL1(1)", "LL1(1)", "AL1", "BKL1", "JCL1(1)",
                "L1(1)",  "JCL1(1)", "JCL2",    "JCL3",   "LL1", "LL2",  "AL1",
                "AL2",    "BKL1",    "BKL2",    "L1",     "L2"};
    }

    void StrangeFuncForKL(List& list)
    {
        if (m_nProjectKind != 2) {
            return;
        }
        for (const std::string& name : list) {
            if (Find(name, 'K') >= 0) {
                return;
            }
        }
        list.insert(list.begin(), "KL1(1)");
    }

    void SetPreBeamName(const std::string& name)
    {
        if (m_strPreBeamName.empty()) {
            m_nPreXuStep = 0;
        } else if (BeamXu(m_strPreBeamName) < BeamXu(name)) {
            m_nPreXuStep = BeamXu(name);
        } else if (BeamXu(m_strPreBeamName) > BeamXu(name)) {
            m_nPreXuStep = static_cast<int>(std::min<std::int64_t>(-std::int64_t{BeamXu(name)}, INT_MAX));
        }
        m_strPreBeamName = name;
    }

    std::vector<unsigned> m_arUsedXu;
    List m_arBeamType;
    std::string m_strPreBeamName;
    int m_nPreXuStep = 0;
    int m_nProjectKind = 2;
};

}  // namespace Yardstick
