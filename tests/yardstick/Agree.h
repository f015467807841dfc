// Plays the same steps on a ranker of the module and on its yardstick and tells the first difference.
#pragma once

#include <array>

#include "tests/yardstick/Host.h"

namespace Yardstick {

// One trial: what the host holds, what it asks for and what it does.
struct Case {
    std::string kind;              // kind text of the bar ranker, a name for the name ranker
    std::array<int, 4> numbers{};  // width, area or seismic class, concrete grade, project kind
    std::string steps;             // one letter an operation, see the Play functions
    List texts;                    // annotations of the project
};

// The same words for the module's arrays and for vectors.
inline void Append(CStringArray& list, const std::string& text) { list.Add(text.c_str()); }
inline void Append(List& list, const std::string& text) { list.push_back(text); }
inline void Refill(CUIntArray& stamps, const std::vector<unsigned>& values)
{
    stamps.RemoveAll();
    for (const unsigned value : values) {
        stamps.Add(value);
    }
}
inline void Refill(std::vector<unsigned>& stamps, const std::vector<unsigned>& values) { stamps = values; }

inline std::string Shown(const std::string& text) { return '"' + text + '"'; }
inline std::string Shown(const CString& text) { return Shown(std::string(text.View())); }
inline std::string Shown(std::integral auto number) { return std::to_string(number); }

template <class Array>
std::string ShownList(const Array& list)
{
    std::string shown;
    for (const auto& entry : list) {
        shown += ' ' + Shown(entry);
    }
    return shown + '\n';
}

// All that a host can see of a ranker and its list.
template <class Ranker, class Texts>
std::string StateOf(const Ranker& ranker, const Texts& list)
{
    std::string state = "list:" + ShownList(list);
    if constexpr (requires { ranker.m_arFlags; }) {
        state += "stamps:" + ShownList(ranker.m_arFlags) + "focus: " + Shown(ranker.m_nFocusIndex) + '\n';
    }
    if constexpr (requires { ranker.m_arUsedXu; }) {
        state += "types:" + ShownList(ranker.m_arBeamType) + "serials:" + ShownList(ranker.m_arUsedXu) +
                 "step: " + Shown(ranker.m_nPreXuStep) + '\n';
    }
    return state;
}

template <class Ranker, class Texts>
void Play(Ranker& ranker, Texts& list, char step, const Case& c)
{
    switch (step) {
    case 'r': ranker.ProcessController(list); break;
    case 'p': ranker.SelectFromProject(list); break;
    case 'g': ranker.GuessFromScratch(list); break;
    case 'e': ranker.EliminateSameResult(list); break;
    case 'x':
        if constexpr (requires { ranker.FindIndexOfFocusByArFlags(); }) {
            ranker.FindIndexOfFocusByArFlags();
        }
        break;
    case 's':
        if constexpr (requires { ranker.SortResult(list); }) {
            ranker.SortResult(list);
        }
        break;
    case 'k':
        if constexpr (requires { ranker.m_nProjectKind; }) {
            ranker.m_nProjectKind = 2 - ranker.m_nProjectKind;
        }
        break;
    case '+': Append(list, c.kind); break;  // the host edits the list
    default: break;
    }
}

template <class Ranker, class Texts>
void PlayBars(Ranker& ranker, Texts& list, char step, const Case& c)
{
    switch (step) {
    case 'n': ranker.SortWithNumAndDia(list); break;
    case 'f': ranker.SortWithFlags(list); break;
    case 'm': ranker.MixedSort(list); break;
    case 'h': ranker.CutHead(list); break;
    case 'c': ranker.ChaBiao(list); break;
    case 'd': ranker.GuessDuanbuJin(list, c.texts.empty() ? "" : c.texts[0].c_str()); break;
    case '0': ranker.StampFlags(list, 0); break;
    case '1': ranker.StampFlags(list, 1); break;
    case '2': ranker.StampFlags(list, 2); break;
    case '3': ranker.StampFlags(list, 3); break;
    case 'a': ranker.SetPara(c.numbers[0], c.numbers[1], ranker.m_pSteelBiao, c.kind.c_str()); break;
    case 'z': Refill(ranker.m_arFlags, {0, 10, 5, 0, 5}); break;
    default: Play(ranker, list, step, c); break;
    }
}

template <class Ranker, class Texts>
void PlayStirrups(Ranker& ranker, Texts& list, char step, const Case& c)
{
    switch (step) {
    case 'c': ranker.ChaBiao(list); break;
    case '0': ranker.StampFlags(list); break;
    case 'a': ranker.SetPara(c.numbers[0], c.numbers[1], c.numbers[2], ranker.m_pGuJinBiao); break;
    case 'z': Refill(ranker.m_arFlags, {0, 1, 1, 2, 0, 1, 0, 2, 1}); break;
    default: Play(ranker, list, step, c); break;
    }
}

template <class Ranker, class Texts>
void PlayNames(Ranker& ranker, Texts& list, char step, const Case& c)
{
    if (step == 'q') {
        ranker.StrangeFuncForKL(list);
    } else if (step == 'b') {
        ranker.SetPreBeamName(c.kind.c_str());
    } else if (step == 'l' && !c.texts.empty()) {
        ranker.SetPreBeamName(c.texts[0].c_str());
    } else {
        Play(ranker, list, step, c);
    }
}

// Empty when both agree after every step; otherwise the step and what each of them holds. The step '-'
// takes the first third of the texts out of the project.
template <class Module, class Plain, class Player>
std::string FirstDifference(const Case& c, Module& module, Plain& plain, Player player)
{
    AnswerFromProjectTexts();
    projectTexts = c.texts;
    CStringArray moduleList;
    List plainList;
    for (std::size_t i = 0; i < c.steps.size(); ++i) {
        if (c.steps[i] == '-') {
            projectTexts.erase(projectTexts.begin(),
                               projectTexts.begin() + static_cast<std::ptrdiff_t>(projectTexts.size() / 3));
        }
        player(module, moduleList, c.steps[i]);
        player(plain, plainList, c.steps[i]);
        const std::string ours = StateOf(module, moduleList);
        const std::string expected = StateOf(plain, plainList);
        if (ours != expected) {
            return "kind " + Shown(c.kind) + ", numbers" + ShownList(c.numbers) + "texts" +
                   ShownList(c.texts) + "steps " + c.steps.substr(0, i + 1) + "\nmodule\n" + ours +
                   "yardstick\n" + expected;
        }
    }
    return "";
}

// A table that was filled so many times, up to 2; made once, since the look-ups only read it.
template <class Table>
Table& FilledTable(std::size_t times = 1)
{
    static std::array<Table, 3> tables = [] {
        std::array<Table, 3> filled;
        filled[1].InintOnce();
        filled[2].InintOnce();
        filled[2].InintOnce();
        return filled;
    }();
    return tables[times];
}

inline std::string AgreeBars(const Case& c)
{
    CHABIAO_HITNESS_RANKER module;
    BarRanker plain;
    module.m_nFocusIndex = plain.m_nFocusIndex;
    module.m_nProjectKind = plain.m_nProjectKind = c.numbers[3];
    module.SetPara(c.numbers[0], c.numbers[1], &FilledTable<SteelBiao>(), c.kind.c_str());
    plain.SetPara(c.numbers[0], c.numbers[1], &FilledTable<SteelTable>(), c.kind);
    return FirstDifference(c, module, plain,
                           [&](auto& ranker, auto& list, char step) { PlayBars(ranker, list, step, c); });
}

inline std::string AgreeStirrups(const Case& c)
{
    GUJIN_HITNESS_RANKER module;
    StirrupRanker plain;
    module.m_nFocusIndex = plain.m_nFocusIndex;
    module.m_nProjectKind = plain.m_nProjectKind = c.numbers[3];
    module.SetPara(c.numbers[0], c.numbers[1], c.numbers[2], &FilledTable<GuJinBiao>());
    plain.SetPara(c.numbers[0], c.numbers[1], c.numbers[2], &FilledTable<StirrupTable>());
    return FirstDifference(c, module, plain, [&](auto& ranker, auto& list, char step) {
        PlayStirrups(ranker, list, step, c);
    });
}

inline std::string AgreeNames(const Case& c)
{
    BEAMNAME_HITNESS_RANKER module;
    NameRanker plain;
    module.m_nPreXuStep = plain.m_nPreXuStep;
    module.m_nProjectKind = plain.m_nProjectKind = c.numbers[3];
    return FirstDifference(c, module, plain,
                           [&](auto& ranker, auto& list, char step) { PlayNames(ranker, list, step, c); });
}

template <class Module, class Plain>
std::string AgreePlainly(const Case& c)
{
    Module module;
    Plain plain;
    if constexpr (requires { plain.m_nProjectKind; }) {
        module.m_nProjectKind = plain.m_nProjectKind = c.numbers[3];
    }
    return FirstDifference(c, module, plain,
                           [&](auto& ranker, auto& list, char step) { Play(ranker, list, step, c); });
}

inline std::string AgreeSections(const Case& c)
{
    return AgreePlainly<BEAMSIZE_HITNESS_RANKER, SectionRanker>(c);
}

inline std::string AgreeElevations(const Case& c)
{
    return AgreePlainly<BEAMLEVEL_HITNESS_RANKER, ElevationRanker>(c);
}

}  // namespace Yardstick
