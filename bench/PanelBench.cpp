// What a panel costs the user-interface thread, as a part of a screen frame.
#include <benchmark/benchmark.h>

#include "RankerModule.h"
#include "platform/windows/Hands.h"

namespace {

constexpr double Frame = 0.0167;  // seconds, of a screen at 60 Hz

// The column "frames" is one iteration's time as a part of a frame.
void CountFrames(benchmark::State& state)
{
    state.counters["frames"] = benchmark::Counter(Frame, benchmark::Counter::kIsIterationInvariantRate |
                                                             benchmark::Counter::kInvert);
}

constexpr int CountList = 1338, GradeList = 1339, DiameterList = 1340, SepList = 1341, LaterList = 1345;
constexpr int Rows = 99;

// Composes pieces by clicks until every row of the list along the foot is taken.
void FillRows(CBeamSteelDlg& panel, Hands& hands)
{
    for (int piece = 0; panel.m_PosList.GetCount() < Rows; ++piece) {
        hands.ClickRow(panel, LaterList, 0);
        hands.ClickRow(panel, GradeList, piece % 4);
        hands.ClickRow(panel, CountList, piece / 4 % 8);
        hands.ClickRow(panel, DiameterList, piece / 32);
    }
}

void ClickInFullBarPanel(benchmark::State& state)
{
    CBeamSteelDlg panel;
    panel.Create(CBeamSteelDlg::IDD);
    panel.Init();
    panel.ShowWindow(SW_SHOW);
    Hands hands;
    FillRows(panel, hands);
    int row = 0;
    for (auto _ : state) {
        hands.ClickRow(panel, SepList, row);
        row = 1 - row;
    }
    CountFrames(state);
}
BENCHMARK(ClickInFullBarPanel)->Unit(benchmark::kMicrosecond);

void Start(CBeamSecDlg& panel) { panel.Init("300x600"); }

template <class Panel>
void Start(Panel& panel)
{
    panel.Init();
}

template <class Panel>
void CreateAndInit(benchmark::State& state)
{
    for (auto _ : state) {
        Panel panel;
        panel.Create(Panel::IDD);
        Start(panel);
    }
    CountFrames(state);
}
BENCHMARK_TEMPLATE(CreateAndInit, CBeamNameDlg)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(CreateAndInit, CBeamSecDlg)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(CreateAndInit, CBeamLevelDlg)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(CreateAndInit, CBeamGujinDlg)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(CreateAndInit, CBeamSteelDlg)->Unit(benchmark::kMicrosecond);

// One event through the host's loop that changes nothing: a release where no press was.
void OneEvent(benchmark::State& state)
{
    CBeamSecDlg panel;
    panel.Create(CBeamSecDlg::IDD);
    panel.Init("300x600");
    panel.ShowWindow(SW_SHOW);
    const MSG release{panel.m_WidthList.m_hWnd, WM_LBUTTONUP, 0, MAKELPARAM(5, 5), 0, CPoint(5, 5)};
    for (auto _ : state) {
        Hands::Send(release);
    }
    CountFrames(state);
}
BENCHMARK(OneEvent)->Unit(benchmark::kMicrosecond);

}  // namespace
