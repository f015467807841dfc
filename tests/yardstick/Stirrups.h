// Yardstick of the stirrups: taking a text apart, composing it, the comparison and the ranker.
#pragma once

#include "tests/yardstick/StirrupTable.h"
#include "tests/yardstick/Texts.h"

namespace Yardstick {

struct StirrupFields {
    std::string grade;
    std::string diameter;
    std::string tightSpacing;
    std::string tightLegs;
    std::string spacing;
    std::string legs;
};

// Returns the position of the "(" of the legs, -1 when the text does not reach them.
inline int DecomposeGujin(const std::string& text, StirrupFields& fields)
{
    const int mark = Find(text, '@') >= 0 ? Find(text, '@') : Find(text, '-');
    if (text.empty() || mark < 0) {
        return -1;
    }
    const char grade = Find(text, 'A') >= 0 ? 'A' : 'B';
    if (Find(text, grade) < 0) {
        return -1;
    }
    fields.grade = grade;
    fields.diameter = Between(text, Find(text, grade), mark);
    fields.tightSpacing = "";
    fields.tightLegs = "";
    int start = mark;
    if (const int slash = Find(text, '/'); slash >= 0) {
        const std::string stretch = Between(text, mark, slash);
        const int bracket = Find(stretch, '(');
        fields.tightSpacing = bracket < 0 ? stretch : Left(stretch, bracket);
        if (bracket >= 0) {
            const int close = Find(stretch, ')', bracket);
            fields.tightLegs = Between(stretch, bracket, close < 0 ? Length(stretch) : close);
        }
        start = slash;
    }
    const int bracket = Find(text, '(', start);
    if (bracket >= 0) {
        fields.spacing = Between(text, start, bracket);
        fields.legs = Between(text, bracket, Length(text) - 1);
    }
    return bracket;
}

// From the six lists' rows; "无" stands as an empty text.
inline std::string IntegrateGuJin(StirrupFields rows)
{
    if (rows.tightSpacing.empty()) {
        rows.tightLegs = "";
    }
    return rows.grade + rows.diameter + "@" + rows.tightSpacing + rows.tightLegs +
           (rows.tightSpacing.empty() ? "" : "/") + rows.spacing + rows.legs;
}

// From the six boxes, which it trims and completes.
inline bool IntegrateChicunFromEdit(StirrupFields& boxes, std::string& text)
{
    for (std::string* box : {&boxes.grade, &boxes.diameter, &boxes.tightSpacing, &boxes.tightLegs,
                             &boxes.spacing, &boxes.legs}) {
        *box = Trim(*box);
    }
    if (boxes.grade.empty() || boxes.diameter.empty()) {
        return false;
    }
    if (boxes.tightSpacing.empty()) {
        boxes.tightLegs = "";
    }
    if (boxes.spacing.empty() || boxes.legs.empty()) {
        return false;
    }
    if (!boxes.tightLegs.empty() && Find(boxes.tightLegs, '(') < 0) {
        boxes.tightLegs = "(" + boxes.tightLegs + ")";
    }
    if (Find(boxes.legs, '(') < 0) {
        boxes.legs = "(" + boxes.legs + ")";
    }
    text = boxes.grade + boxes.diameter + "@" + boxes.tightSpacing + boxes.tightLegs +
           (boxes.tightSpacing.empty() ? "" : "/") + boxes.spacing + boxes.legs;
    return true;
}

inline int CompareGujin(const std::string& a, const std::string& b)
{
    StirrupFields fieldsA;
    StirrupFields fieldsB;
    const int bracketA = DecomposeGujin(a, fieldsA);
    const int bracketB = DecomposeGujin(b, fieldsB);
    const auto order = [](int x, int y) { return x < y ? -1 : x > y ? 1 : 0; };
    if (const int result = order(Number(fieldsA.diameter), Number(fieldsB.diameter)); result != 0) {
        return result;
    }
    if (const int result = order(Number(fieldsA.spacing), Number(fieldsB.spacing)); result != 0) {
        return result;
    }
    if (const int result = order(Number(fieldsA.tightSpacing), Number(fieldsB.tightSpacing)); result != 0) {
        return result;
    }
    return order(bracketA < 0 ? 0 : Number(Mid(a, bracketA + 1, 1)),
                 bracketB < 0 ? 0 : Number(Mid(b, bracketB + 1, 1)));
}

struct StirrupRanker {
    void SetPara(int nWidth, int nSeismic, int nGrade, StirrupTable* pBiao)
    {
        m_nWidth = nWidth;
        m_nSeismic = nSeismic;
        m_nGrade = nGrade;
        m_pGuJinBiao = pBiao;
    }

    void ProcessController(List& list)
    {
        list.clear();
        m_arFlags.clear();
        SelectFromProject(list);
        StampFlags(list);
        if (list.empty()) {
            GuessFromScratch(list);
            EliminateSameResult(list);
            return;
        }
        GuessFromScratch(list);
        EliminateSameResult(list);
        SortResult(list);
    }

    void SelectFromProject(List& list)
    {
        list.insert(list.end(), projectTexts.begin(), projectTexts.end());
    }

    void StampFlags(const List& list) { m_arFlags.insert(m_arFlags.end(), list.size(), 1); }

    void GuessFromScratch(List& list)
    {
        list.insert(list.end(),
                    {"A8@200(2)", "A8@100/150(2)", "A8@100/200(2)", "A8@150/200(2)", "A8@150/250(2)",
                     "A10@200(2)", "A10@100/150(2)", "A10@100/200(2)", "A10@150/200(2)", "A10@150/250(2)"});
        if (m_nProjectKind != 2 && list.size() == 10) {
            list.insert(list.begin(), "A10@200(2)");
            list.erase(list.begin() + 6);
        }
        StampRest(list);
    }

    void ChaBiao(List& list)
    {
        m_pGuJinBiao->GetGuJin(m_nWidth, m_nGrade, m_nSeismic, list);
        StampRest(list);
    }

    void StampRest(const List& list) { m_arFlags.resize(std::max(list.size(), m_arFlags.size())); }

    void EliminateSameResult(List& list) { KeepFirst(list, m_arFlags); }

    void SortResult(List& list)
    {
        StampRest(list);
        const auto exchange = [&](std::size_t j) {
            std::swap(list[j], list[j + 1]);
            std::swap(m_arFlags[j], m_arFlags[j + 1]);
        };
        ExchangePasses(
            list.size(),
            [&](std::size_t j) {
                if (m_arFlags[j] == m_arFlags[j + 1] && CompareGujin(list[j], list[j + 1]) > 0) {
                    exchange(j);
                }
                return m_arFlags[j] == 0 && m_arFlags[j + 1] == 1;
            },
            exchange);
    }

    int FindIndexOfFocusByArFlags()
    {
        m_nFocusIndex = 0;
        while (m_nFocusIndex < static_cast<int>(m_arFlags.size()) &&
               m_arFlags[static_cast<std::size_t>(m_nFocusIndex)] != 0) {
            ++m_nFocusIndex;
        }
        return --m_nFocusIndex;
    }

    int m_nWidth = 0;
    int m_nSeismic = 0;
    int m_nGrade = 0;
    StirrupTable* m_pGuJinBiao = nullptr;
    std::vector<unsigned> m_arFlags;
    int m_nFocusIndex = 0;
    int m_nProjectKind = 2;
};

}  // namespace Yardstick
