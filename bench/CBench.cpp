// What a run costs by way of C, beside the same run by way of C++ in turns: 100,000 texts that a callback
// hands over in one call, and all candidates read back.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <vector>

#include "bench/Contenders.h"
#include "rankermodule.h"

namespace {

using Bench::Kind;

constexpr std::size_t Texts = 100'000;

void Must(rk_status status)
{
    if (status != RK_OK) {
        std::fprintf(stderr, "%s\n", rk_last_error());
        std::exit(1);
    }
}

int KindOf(Kind kind)
{
    switch (kind) {
    case Kind::Bars: return RK_BARS;
    case Kind::Stirrups: return RK_STIRRUP;
    case Kind::Sections: return RK_SECTION;
    default: return RK_ELEVATION;
    }
}

// A host in C with the texts of a C++ one, as pointers and lengths.
class CHost {
public:
    explicit CHost(const Bench::Host& host)
    {
        for (const std::string& text : host.texts) {
            m_texts.push_back({text.data(), text.size()});
        }
        Must(rk_context_create(&m_context));
        rk_callbacks callbacks{};
        callbacks.struct_size = sizeof callbacks;
        callbacks.user = this;
        callbacks.sections = callbacks.elevations = callbacks.stirrups = &Answer;
        callbacks.bars = [](void* user, rk_list answer, const char*, std::size_t) {
            return Answer(user, answer);
        };
        Must(rk_context_set_callbacks(m_context, &callbacks));
        Must(rk_list_create(m_context, &m_result));
        Must(rk_ranker_create(m_context, KindOf(host.kind), &m_ranker));
        if (host.kind == Kind::Bars) {
            Must(rk_ranker_set_bars(m_ranker, 300, 1000, "1", 1));
        }
    }
    CHost(const CHost&) = delete;
    CHost& operator=(const CHost&) = delete;
    ~CHost() { rk_context_destroy(m_context); }

    // The length of all candidates, so that each is looked at.
    std::size_t Run()
    {
        Must(rk_ranker_run(m_ranker, nullptr, m_result));
        std::size_t count = 0;
        Must(rk_list_count(m_result, &count));
        m_candidates.resize(count);
        Must(rk_list_texts(m_result, 0, count, m_candidates.data()));
        std::size_t length = 0;
        for (const rk_text& text : m_candidates) {
            length += text.length;
        }
        return length;
    }

private:
    static std::int32_t Answer(void* user, rk_list answer)
    {
        const CHost& host = *static_cast<CHost*>(user);
        return rk_list_add_texts(answer, host.m_texts.data(), host.m_texts.size());
    }

    std::vector<rk_text> m_texts;
    std::vector<rk_text> m_candidates;
    rk_context m_context = nullptr;
    rk_list m_result = nullptr;
    rk_ranker m_ranker = nullptr;
};

std::size_t RunCpp(const Bench::Host& host)
{
    CStringArray candidates;
    Bench::RunRanker(host, candidates);
    std::size_t length = 0;
    for (const CString& text : candidates) {
        length += text.View().size();
    }
    return length;
}

// Of the processor, so that others on the machine do not count.
double Seconds(std::clock_t from, std::clock_t to)
{
    return static_cast<double>(to - from) / CLOCKS_PER_SEC;
}

// The two by turns, so that what else the machine does meets both; the counter "C/C++" is the ratio of the
// best runs.
void RankByBoth(benchmark::State& state, Kind kind, std::size_t distinct)
{
    const Bench::Host host(kind, Bench::MakeTexts(kind, Texts, distinct));
    CHost c(host);
    double bestC = 1e9;
    double bestCpp = 1e9;
    for (auto _ : state) {
        const std::clock_t begin = std::clock();
        const std::size_t cpp = RunCpp(host);
        const std::clock_t middle = std::clock();
        const std::size_t length = c.Run();
        const std::clock_t end = std::clock();
        if (cpp != length) {
            state.SkipWithError("the candidates differ");
            break;
        }
        bestCpp = std::min(bestCpp, Seconds(begin, middle));
        bestC = std::min(bestC, Seconds(middle, end));
        state.SetIterationTime(Seconds(middle, end));
    }
    state.counters["C_ms"] = 1e3 * bestC;
    state.counters["C++_ms"] = 1e3 * bestCpp;
    state.counters["C/C++"] = bestC / bestCpp;
}

constexpr std::size_t Few = 500;
constexpr int Turns = 30;

#define BOTH(kind)                                                                                         \
    BENCHMARK_CAPTURE(RankByBoth, kind##_few_different, Kind::kind, Few)                                   \
        ->UseManualTime()                                                                                  \
        ->Iterations(Turns)                                                                                \
        ->Unit(benchmark::kMillisecond);                                                                   \
    BENCHMARK_CAPTURE(RankByBoth, kind##_all_different, Kind::kind, Texts)                                 \
        ->UseManualTime()                                                                                  \
        ->Iterations(Turns)                                                                                \
        ->Unit(benchmark::kMillisecond)

BOTH(Bars);
BOTH(Stirrups);
BOTH(Sections);
BOTH(Elevations);

}  // namespace
