// Compares the module's text rules and table look-ups with the yardsticks on any texts.
#pragma once

#include "tests/yardstick/Agree.h"

namespace Yardstick {

inline std::string Shown(const StirrupFields& f)
{
    return ShownList(List{f.grade, f.diameter, f.tightSpacing, f.tightLegs, f.spacing, f.legs});
}
inline std::string Shown(const StirrupText::Fields& f)
{
    return ShownList(std::array{f.grade, f.diameter, f.tightSpacing, f.tightLegs, f.spacing, f.legs});
}
inline std::string Shown(double number) { return std::to_string(number); }

// Collects what differs; empty when all agree.
struct Report {
    template <class T, class U>
    void Equal(const char* what, const T& module, const U& plain)
    {
        if (Shown(module) != Shown(plain)) {
            text += std::string(what) + ": module " + Shown(module) + ", yardstick " + Shown(plain) + '\n';
        }
    }
    std::string text;
};

inline void AgreeNumbers(Report& report, const std::string& a)
{
    report.Equal("number value", NumberValue(a), Number(a));
    const double value = RealValue(a);
    report.Equal("real value", value == Real(a) || value - Real(a) == 0.0, true);
}

inline void AgreeBarRules(Report& report, const std::string& a, const std::string& b)
{
    CHABIAO_HITNESS_RANKER ranker;
    const CString textA(a);
    const CString textB(b);
    int count = 0;
    int diameter = 0;
    GetSteelNumAndDia(a, count, diameter);
    int ourCount = -1;
    int ourDiameter = -1;
    ranker.GetSteelNumAndDia(textA, ourCount, ourDiameter);
    report.Equal("count", ourCount, count);
    report.Equal("diameter", ourDiameter, diameter);
    report.Equal("head piece", BarText::HeadPiece(textA), HeadPiece(a));
    report.Equal("same first diameter", CHABIAO_HITNESS_RANKER::EqualFirstDia(textA, textB),
                 EqualFirstDia(a, b));
    report.Equal("same essence", BarText::SameEssence(textA, textB), CmpEssence(a, b));
    report.Equal("order of bars", ranker.CompareSteel(textA, textB), CompareSteel(a, b));
    report.Equal("order of pieces", ranker.ComparePieceSteel(textA, textB), Compare(a, b));
    report.Equal("order of texts", textA.Compare(textB), Compare(a, b));
}

inline void AgreeStirrupRules(Report& report, const std::string& a, const std::string& b)
{
    GUJIN_HITNESS_RANKER ranker;
    report.Equal("order of stirrups", ranker.CompareGujin(a.c_str(), b.c_str()), CompareGujin(a, b));
    report.Equal("tight form", StirrupText::TightForm(a.c_str()), TightForm(a));

    StirrupText::Fields fields{"C", "0", "1", "2", "3", "4"};
    StirrupFields plain{"C", "0", "1", "2", "3", "4"};
    const bool reached = StirrupText::Decompose(a.c_str(), fields);
    report.Equal("legs reached", reached, DecomposeGujin(a, plain) >= 0);
    report.Equal("fields", fields, plain);
    report.Equal("composed from rows", StirrupText::ComposeFromRows(fields), IntegrateGuJin(plain));

    // Boxes as a person may have typed them: the second text goes into one of the six.
    const std::array<CString StirrupText::Fields::*, 6> boxes{
        &StirrupText::Fields::grade,     &StirrupText::Fields::diameter, &StirrupText::Fields::tightSpacing,
        &StirrupText::Fields::tightLegs, &StirrupText::Fields::spacing,  &StirrupText::Fields::legs};
    const std::array<std::string StirrupFields::*, 6> plainBoxes{
        &StirrupFields::grade,     &StirrupFields::diameter, &StirrupFields::tightSpacing,
        &StirrupFields::tightLegs, &StirrupFields::spacing,  &StirrupFields::legs};
    const std::size_t box = a.size() % 6;
    fields.*boxes[box] = b.c_str();
    plain.*plainBoxes[box] = b;
    CString text("before");
    std::string plainText("before");
    report.Equal("could compose", StirrupText::ComposeFromBoxes(fields, text),
                 IntegrateChicunFromEdit(plain, plainText));
    report.Equal("composed from boxes", text, plainText);
    report.Equal("boxes", fields, plain);
}

inline void AgreeNameAndSectionRules(Report& report, const std::string& a)
{
    CString type("before");
    CString suffix("before");
    int serial = -1;
    BEAMNAME_HITNESS_RANKER::GetBeamType(a.c_str(), type);
    BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(a.c_str(), suffix);
    BEAMNAME_HITNESS_RANKER::GetBeamXu(a.c_str(), serial);
    report.Equal("beam type", type, BeamType(a));
    report.Equal("suffix", suffix, BeamKuaAndXuantiao(a));
    report.Equal("serial", serial, BeamXu(a));

    BEAMSIZE_HITNESS_RANKER sections;
    int width = -7;
    int height = -7;
    sections.GetBeamWidth(a.c_str(), width);
    sections.GetBeamHeight(a.c_str(), height);
    int plainWidth = -7;
    int plainHeight = -7;
    GetBeamWidth(a, plainWidth);
    GetBeamHeight(a, plainHeight);
    report.Equal("width", width, plainWidth);
    report.Equal("height", height, plainHeight);
}

// Every text rule on a pair of texts.
inline std::string AgreeRules(const std::string& a, const std::string& b)
{
    Report report;
    AgreeNumbers(report, a);
    AgreeBarRules(report, a, b);
    AgreeStirrupRules(report, a, b);
    AgreeNameAndSectionRules(report, a);
    return report.text.empty() ? "" : Shown(a) + " and " + Shown(b) + '\n' + report.text;
}

// FindXu on serials as a host may write them, unsorted and with repeats.
inline std::string AgreeFreeSerials(const std::vector<unsigned>& serials)
{
    BEAMNAME_HITNESS_RANKER module;
    NameRanker plain;
    Refill(module.m_arUsedXu, serials);
    plain.m_arUsedXu = serials;
    CUIntArray freeXu;
    freeXu.Add(99);
    std::vector<unsigned> plainFree{99};
    module.FindXu(freeXu);
    plain.FindXu(plainFree);
    Report report;
    report.Equal("free serials", ShownList(freeXu), ShownList(plainFree));
    report.Equal("used serials", ShownList(module.m_arUsedXu), ShownList(plain.m_arUsedXu));
    return report.text.empty() ? "" : ShownList(serials) + report.text;
}

// All look-ups on one list, which holds the texts on entry; fills gives how often the tables are filled.
inline std::string AgreeLookUps(const Case& c, std::size_t fills)
{
    auto& bars = FilledTable<SteelBiao>(fills);
    auto& plainBars = FilledTable<SteelTable>(fills);
    auto& stirrups = FilledTable<GuJinBiao>(fills);
    auto& plainStirrups = FilledTable<StirrupTable>(fills);
    CStringArray list;
    AddAll(list, c.texts);
    List plain = c.texts;
    const int width = c.numbers[0];
    const int area = c.numbers[1];
    Report report;
    for (const char step : c.steps) {
        switch (step) {
        case 't':
            report.Equal("t", bars.GetTopJin(width, area, list), plainBars.GetTopJin(width, area, plain));
            break;
        case 'a':
            report.Equal("a", bars.GetTotalJin(width, area, list),
                         plainBars.GetTotalJin(width, area, plain));
            break;
        case 'd':
            report.Equal("d", bars.GetDiJin(width, area, list), plainBars.GetDiJin(width, area, plain));
            break;
        case 'x':
            report.Equal("x", bars.GetExactTotalJin(width, area, c.kind.c_str(), list),
                         plainBars.GetExactTotalJin(width, area, c.kind, plain));
            break;
        case 'g':
            report.Equal("g", stirrups.GetGuJin(width, c.numbers[2], c.numbers[3], list),
                         plainStirrups.GetGuJin(width, c.numbers[2], c.numbers[3], plain));
            break;
        case '0':
            list.RemoveAll();
            plain.clear();
            break;
        default: break;
        }
        report.Equal("list", ShownList(list), ShownList(plain));
    }
    return report.text.empty() ? ""
                               : "kind " + Shown(c.kind) + ", numbers" + ShownList(c.numbers) + "steps " +
                                     c.steps + '\n' + report.text;
}

}  // namespace Yardstick
