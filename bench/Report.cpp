// Rows in blocks of one kind, ratios beside the times, and what was wanted at the end.
#include "bench/Report.h"

#include <cmath>
#include <cstdio>

namespace Bench {
namespace {

double TimeOf(const Row& row, Contender contender)
{
    const auto found = row.ms.find(contender);
    return found == row.ms.end() ? 0.0 : found->second;
}

double Ratio(const Row& row, Contender contender)
{
    return TimeOf(row, contender) / TimeOf(row, Contender::Ranker);
}

// The time of a contender and how many times the ranker's it is.
void PrintContender(const Row& row, Contender contender)
{
    if (TimeOf(row, contender) > 0.0) {
        std::printf(" |%10.3f %7.1f", TimeOf(row, contender), Ratio(row, contender));
    } else {
        std::printf(" |%10s %7s", "-", "-");
    }
}

void PrintRow(const Row& row, const Row* smaller)
{
    const double ms = TimeOf(row, Contender::Ranker);
    std::printf("%9zu %10zu %9.3f %7.0f", row.texts, row.candidates, ms,
                1e6 * ms / static_cast<double>(row.texts));
    if (smaller != nullptr) {
        std::printf(" %6.1f", ms / TimeOf(*smaller, Contender::Ranker));
    } else {
        std::printf(" %6s", "-");
    }
    std::printf(" |%9.3f %7.2f", TimeOf(row, Contender::Floor), 1.0 / Ratio(row, Contender::Floor));
    PrintContender(row, Contender::Query);
    PrintContender(row, Contender::InsertAndQuery);
    PrintContender(row, Contender::Exchange);
    std::printf(" |%6.0f %6.0f %6.3f\n",
                static_cast<double>(row.heldBytes) / static_cast<double>(row.candidates),
                static_cast<double>(row.peakBytes) / static_cast<double>(row.texts),
                static_cast<double>(row.allocations) / static_cast<double>(row.texts));
}

void PrintHead(const Row& row)
{
    std::printf("\n%s, %s\n", NameOf(row.kind), row.allDistinct ? "all distinct" : "500 distinct");
    std::printf("%9s %10s %9s %7s %6s |%9s %7s |%10s %7s |%10s %7s |%10s %7s |%6s %6s %6s\n", "texts",
                "candidates", "ranker", "ns/text", "growth", "floor", "ranker/", "SQLite", "times", "with",
                "times", "exchange", "times", "held", "peak", "allocs");
    std::printf("%9s %10s %9s %7s %6s |%9s %7s |%10s %7s |%10s %7s |%10s %7s |%6s %6s %6s\n", "", "", "ms",
                "", "", "ms", "floor", "query ms", "", "insert ms", "", "passes ms", "", "B/cand", "B/text",
                "/text");
}

bool SameBlock(const Row& a, const Row& b) { return a.kind == b.kind && a.allDistinct == b.allDistinct; }

void PrintWanted(const std::vector<Row>& rows)
{
    std::printf("\nWanted\n");
    for (const Row& row : rows) {
        if (row.kind == Kind::Bars && row.texts == 100'000) {
            const double floors = 1.0 / Ratio(row, Contender::Floor);
            const double sqlite = Ratio(row, Contender::Query);
            std::printf("  bars, 100,000 texts, %s: %.2f times the floor (at most 3: %s), SQLite's query "
                        "takes %.1f times as long (above 1: %s)\n",
                        row.allDistinct ? "all distinct" : "500 distinct", floors,
                        floors <= 3.0 ? "met" : "missed", sqlite, sqlite > 1.0 ? "met" : "missed");
        }
    }
    // Behind ten times the texts n log n is 10 times log(10 n) / log n; caches and memory come on top, for
    // the floor too, which is n log n by construction.
    std::printf("  growth from 10,000 to 1,000,000 texts, all distinct, against that of n log n (150) and "
                "of the floor:\n");
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (std::size_t j = i; j < rows.size() && SameBlock(rows[i], rows[j]); ++j) {
            if (rows[i].allDistinct && rows[i].texts == 10'000 && rows[j].texts == 1'000'000) {
                std::printf("    %-10s %6.0f   floor %6.0f\n", NameOf(rows[i].kind),
                            TimeOf(rows[j], Contender::Ranker) / TimeOf(rows[i], Contender::Ranker),
                            TimeOf(rows[j], Contender::Floor) / TimeOf(rows[i], Contender::Floor));
            }
        }
    }
}

}  // namespace

void PrintReport(const std::vector<Row>& rows, const std::vector<LookUp>& lookUps, const FirstRun& first)
{
    std::printf(
        "What a ranker's run costs. CPU time of one run, the best of some repetitions; GCC or Clang, "
        "release.\n"
        "  ranker     a whole run: the callback appends the texts to the array, the ranker works, all is "
        "freed\n"
        "  growth     against the row above, which has a tenth of the texts\n"
        "  floor      std::unordered_map counts the texts where they are, std::sort of the distinct ones\n"
        "  SQLite     in memory, GROUP BY text ORDER BY COUNT(*) DESC, text, every row read; the query "
        "alone "
        "on inserted\n"
        "             texts, and with the insertion in one transaction; times: how often the ranker runs "
        "meanwhile\n"
        "  exchange   the literal exchange passes and list searches, to 10,000 texts\n"
        "  held       heap of the finished list a candidate; peak: most heap during the run a project "
        "text\n"
        "The heap keeps freed pages, so the times show the work. The first run of the process, 100,000 "
        "bars "
        "with 500\n"
        "distinct on an untouched heap, took %.1f ms with %ld page faults.\n",
        first.ms, first.pageFaults);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const bool first_of_block = i == 0 || !SameBlock(rows[i - 1], rows[i]);
        if (first_of_block) {
            PrintHead(rows[i]);
        }
        PrintRow(rows[i], first_of_block ? nullptr : &rows[i - 1]);
    }
    std::printf("\ntables\n");
    for (const LookUp& lookUp : lookUps) {
        std::printf("  %-52s %10.0f ns\n", lookUp.name.c_str(), lookUp.ns);
    }
    PrintWanted(rows);
}

}  // namespace Bench
