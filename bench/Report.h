// The table that bench-report prints.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "bench/Workload.h"

namespace Bench {

enum class Contender { Ranker, Floor, Query, InsertAndQuery, Exchange };

// One project measured. Times are CPU milliseconds of one run; 0 for what was not measured.
struct Row {
    Kind kind = Kind::Bars;
    bool allDistinct = false;
    std::size_t texts = 0;
    std::map<Contender, double> ms;
    std::size_t candidates = 0;
    std::size_t heldBytes = 0;  // by the candidate list when the run is over
    std::size_t peakBytes = 0;  // at any moment of the run
    std::size_t allocations = 0;
};

// An operation on the reference tables.
struct LookUp {
    std::string name;
    double ns = 0.0;
};

// The very first run of the process, when no page of the heap was touched yet.
struct FirstRun {
    double ms = 0.0;
    long pageFaults = 0;
};

void PrintReport(const std::vector<Row>& rows, const std::vector<LookUp>& lookUps, const FirstRun& first);

}  // namespace Bench
