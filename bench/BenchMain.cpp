// Measures the rankers and the ways beside them with Google Benchmark and prints one table.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <memory>

#include "bench/Contenders.h"
#include "bench/Memory.h"
#include "bench/Report.h"

namespace {

using Bench::Contender;
using Bench::Kind;
using Bench::Row;

constexpr std::size_t FewDistinct = 500;
constexpr std::size_t MostForExchange = 10'000;

std::vector<Row> rows;
std::vector<Bench::LookUp> lookUps;

// The host of the row in work; only one at a time is kept.
const Bench::Host& HostOf(const Row& row)
{
    static std::unique_ptr<Bench::Host> host;
    static const Row* current = nullptr;
    if (current != &row) {
        host.reset();
        host = std::make_unique<Bench::Host>(
            row.kind, Bench::MakeTexts(row.kind, row.texts, row.allDistinct ? row.texts : FewDistinct));
        current = &row;
    }
    return *host;
}

void MeasureMemory(Row& row)
{
    const Bench::Host& host = HostOf(row);
    CStringArray candidates;
    Bench::ResetPeak();
    const Bench::HeapUse before = Bench::CurrentHeapUse();
    Bench::RunRanker(host, candidates);
    const Bench::HeapUse after = Bench::CurrentHeapUse();
    row.candidates = static_cast<std::size_t>(candidates.GetSize());
    row.heldBytes = after.held - before.held;
    row.peakBytes = after.peak - before.held;
    row.allocations = after.allocations - before.allocations;
}

void Run(benchmark::State& state, Row& row, Contender contender)
{
    const Bench::Host& host = HostOf(row);
    Bench::Database inserted;
    if (contender == Contender::Query) {
        inserted.Insert(host.texts);
    }
    for (auto _ : state) {
        switch (contender) {
        case Contender::Ranker: {
            CStringArray candidates;
            Bench::RunRanker(host, candidates);
            benchmark::DoNotOptimize(candidates.GetSize());
            break;
        }
        case Contender::Floor: benchmark::DoNotOptimize(Bench::RunFloor(host)); break;
        case Contender::Query: benchmark::DoNotOptimize(inserted.Query()); break;
        case Contender::InsertAndQuery: {
            Bench::Database database;
            database.Insert(host.texts);
            benchmark::DoNotOptimize(database.Query());
            break;
        }
        case Contender::Exchange: benchmark::DoNotOptimize(Bench::RunExchangePasses(host)); break;
        }
    }
    if (contender == Contender::Ranker) {
        MeasureMemory(row);
    }
}

// Keeps the best time of each benchmark where its name leads: "row/contender" or "table/number".
class Collector : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<benchmark::BenchmarkReporter::Run>& runs) override
    {
        for (const auto& run : runs) {
            std::size_t index = 0;
            int contender = 0;
            const std::string& name = run.run_name.function_name;
            if (run.run_type != benchmark::BenchmarkReporter::Run::RT_Iteration || run.error_occurred) {
                continue;
            }
            if (std::sscanf(name.c_str(), "row:%zu:%d", &index, &contender) == 2) {
                Keep(rows[index].ms[static_cast<Contender>(contender)], run.GetAdjustedCPUTime());
            } else if (std::sscanf(name.c_str(), "table:%zu", &index) == 1) {
                Keep(lookUps[index].ns, run.GetAdjustedCPUTime());
            }
        }
    }

private:
    static void Keep(double& best, double time) { best = best > 0.0 ? std::min(best, time) : time; }
};

void RegisterRows()
{
    for (const Kind kind : Bench::AllKinds) {
        for (const bool allDistinct : {false, true}) {
            for (std::size_t texts = 100; texts <= 1'000'000; texts *= 10) {
                Row row;
                row.kind = kind;
                row.allDistinct = allDistinct;
                row.texts = texts;
                rows.push_back(row);
            }
        }
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (const Contender contender : {Contender::Ranker, Contender::Floor, Contender::Query,
                                          Contender::InsertAndQuery, Contender::Exchange}) {
            Row& row = rows[i];
            if (contender == Contender::Exchange && row.texts > MostForExchange) {
                continue;
            }
            const std::string name =
                "row:" + std::to_string(i) + ":" + std::to_string(static_cast<int>(contender));
            auto* const registered = benchmark::RegisterBenchmark(
                name.c_str(), [&row, contender](benchmark::State& state) { Run(state, row, contender); });
            registered->Unit(benchmark::kMillisecond);
            const bool usesSqlite = contender == Contender::Query || contender == Contender::InsertAndQuery;
            if (contender == Contender::Exchange) {
                registered->Iterations(1);
            } else if (row.texts == 1'000'000) {
                registered->Iterations(1)->Repetitions(usesSqlite ? 1 : 2);
            } else if (row.texts == 100'000) {
                registered->Iterations(3)->Repetitions(usesSqlite ? 1 : 5);
            } else {
                registered->MinTime(0.02)->Repetitions(3);
            }
        }
    }
}

// Registers an operation on a filled table that fills a list.
template <class Table, class LookUp>
void RegisterLookUp(const char* name, LookUp lookUp)
{
    const std::string key = "table:" + std::to_string(lookUps.size());
    lookUps.push_back({name, 0.0});
    benchmark::RegisterBenchmark(key.c_str(),
                                 [lookUp](benchmark::State& state) {
                                     Table table;
                                     table.InintOnce();
                                     for (auto _ : state) {
                                         CStringArray list;
                                         lookUp(table, list);
                                         benchmark::DoNotOptimize(list.GetSize());
                                     }
                                 })
        ->MinTime(0.05)
        ->Repetitions(3);
}

void RegisterLookUps()
{
    RegisterLookUp<SteelBiao>("SteelBiao::GetTopJin(300, 1000)", [](SteelBiao& table, CStringArray& list) {
        table.GetTopJin(300, 1000, list);
    });
    RegisterLookUp<SteelBiao>(
        "SteelBiao::GetTopJin(250, 100), widening",
        [](SteelBiao& table, CStringArray& list) { table.GetTopJin(250, 100, list); });
    RegisterLookUp<SteelBiao>(
        "SteelBiao::GetTotalJin(300, 1000)",
        [](SteelBiao& table, CStringArray& list) { table.GetTotalJin(300, 1000, list); });
    RegisterLookUp<SteelBiao>("SteelBiao::GetDiJin(300, 1000)", [](SteelBiao& table, CStringArray& list) {
        table.GetDiJin(300, 1000, list);
    });
    RegisterLookUp<SteelBiao>(
        "SteelBiao::GetExactTotalJin(300, 1000, \"2B16\")",
        [](SteelBiao& table, CStringArray& list) { table.GetExactTotalJin(300, 1000, "2B16", list); });
    RegisterLookUp<GuJinBiao>("GuJinBiao::GetGuJin(300, 30, 2)", [](GuJinBiao& table, CStringArray& list) {
        table.GetGuJin(300, 30, 2, list);
    });
    RegisterLookUp<SteelBiao>("SteelBiao::InintOnce, made and freed", [](SteelBiao&, CStringArray&) {
        SteelBiao table;
        table.InintOnce();
    });
    RegisterLookUp<GuJinBiao>("GuJinBiao::InintOnce, made and freed", [](GuJinBiao&, CStringArray&) {
        GuJinBiao table;
        table.InintOnce();
    });
}

Bench::FirstRun MeasureFirstRun()
{
    const Bench::Host host(Kind::Bars, Bench::MakeTexts(Kind::Bars, 100'000, FewDistinct));
    const auto faults = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_minflt;
    };
    CStringArray candidates;
    const long before = faults();
    const std::clock_t begin = std::clock();
    Bench::RunRanker(host, candidates);
    const double ms = 1e3 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    return {ms, faults() - before};
}

}  // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    const Bench::FirstRun first = MeasureFirstRun();
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
    RegisterRows();
    RegisterLookUps();
    Collector collector;
    std::fprintf(stderr, "Measuring; this takes a few minutes.\n");
    benchmark::RunSpecifiedBenchmarks(&collector);
    // A filter on the command line leaves rows out.
    std::erase_if(rows, [](const Row& row) { return !row.ms.contains(Contender::Ranker); });
    std::erase_if(lookUps, [](const Bench::LookUp& lookUp) { return lookUp.ns == 0.0; });
    Bench::PrintReport(rows, lookUps, first);
    return 0;
}
