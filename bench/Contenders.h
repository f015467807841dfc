// The ways to order a project's texts that are measured against each other.
#pragma once

#include <string>
#include <vector>

#include "RankerModule.h"
#include "bench/Workload.h"

struct sqlite3;

namespace Bench {

// The texts that every contender works on, as a host holds them: beam names also by type.
class Host {
public:
    Host(Kind kind, std::vector<std::string> texts);
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    const Kind kind;
    const std::vector<std::string> texts;
};

// A run of the module's ranker; the callback's copying of the texts is a part of it.
void RunRanker(const Host& host, CStringArray& candidates);

// The same by the literal definition: exchange passes and list searches, every text parsed each time.
std::size_t RunExchangePasses(const Host& host);

// One hash-count pass over the texts where they are, then std::sort of the different ones by count and
// text: about the least that any ranking by use costs.
std::size_t RunFloor(const Host& host);

// SQLite in memory: GROUP BY text ORDER BY COUNT(*) DESC, text.
class Database {
public:
    Database();
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    void Insert(const std::vector<std::string>& texts);
    // Reads every row of the answer.
    [[nodiscard]] std::size_t Query();

private:
    sqlite3* m_db = nullptr;
};

}  // namespace Bench
