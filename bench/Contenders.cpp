// How each contender does it.
#include "bench/Contenders.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <unordered_map>

#include "tests/yardstick/Host.h"

namespace Bench {
namespace {

// What a host knows of one beam type.
struct TypeUse {
    std::vector<unsigned int> serials;
    std::vector<std::string> suffixes;
};

const std::vector<std::string>* hostTexts = nullptr;
std::map<std::string, TypeUse> hostTypes;

void AddAll(CStringArray& list, const std::vector<std::string>& texts)
{
    for (const std::string& text : texts) {
        list.Add(std::string_view(text));
    }
}

void AddTexts(CStringArray& list) { AddAll(list, *hostTexts); }

void AddTypes(CStringArray& list)
{
    for (const auto& [type, uses] : hostTypes) {
        list.Add(std::string_view(type));
    }
}

void AddNumbers(CUIntArray& serials, CStringArray& suffixes, CString type)
{
    const TypeUse& uses = hostTypes[std::string(type.View())];
    for (const unsigned int serial : uses.serials) {
        serials.Add(serial);
    }
    AddAll(suffixes, uses.suffixes);
}

template <class Ranker>
std::size_t RunYardstick(Ranker ranker)
{
    Yardstick::List candidates;
    ranker.ProcessController(candidates);
    return candidates.size();
}

void Check(bool good, sqlite3* db)
{
    if (!good) {
        std::fprintf(stderr, "SQLite: %s\n", sqlite3_errmsg(db));
        std::exit(1);
    }
}

void Execute(sqlite3* db, const char* sql)
{
    Check(sqlite3_exec(db, sql, nullptr, nullptr, nullptr) == SQLITE_OK, db);
}

}  // namespace

Host::Host(Kind kindOfTexts, std::vector<std::string> list) : kind(kindOfTexts), texts(std::move(list))
{
    hostTexts = &texts;
    if (kind == Kind::Names) {
        for (const std::string& name : texts) {
            TypeUse& uses = hostTypes[Yardstick::BeamType(name)];
            uses.serials.push_back(static_cast<unsigned int>(Yardstick::BeamXu(name)));
            uses.suffixes.push_back(Yardstick::BeamKuaAndXuantiao(name));
        }
    }
}

Host::~Host()
{
    hostTexts = nullptr;
    hostTypes.clear();
}

void RunRanker(const Host& host, CStringArray& candidates)
{
    SetBeamSteelFunc([](CStringArray& list, CString) { AddTexts(list); });
    SetBeamGujinFunc(AddTexts);
    SetBeamSectionFunc(AddTexts);
    SetBeamEleFunc(AddTexts);
    SetBeamTypeFunc(AddTypes);
    SetBeamNumberFunc(AddNumbers);
    switch (host.kind) {
    case Kind::Bars: {
        CHABIAO_HITNESS_RANKER ranker;
        ranker.SetPara(300, 1000, nullptr, "1");
        ranker.ProcessController(candidates);
        break;
    }
    case Kind::Stirrups: GUJIN_HITNESS_RANKER().ProcessController(candidates); break;
    case Kind::Sections: BEAMSIZE_HITNESS_RANKER().ProcessController(candidates); break;
    case Kind::Elevations: BEAMLEVEL_HITNESS_RANKER().ProcessController(candidates); break;
    case Kind::Names: BEAMNAME_HITNESS_RANKER().ProcessController(candidates); break;
    }
}

std::size_t RunExchangePasses(const Host& host)
{
    Yardstick::projectTexts = host.texts;
    switch (host.kind) {
    case Kind::Bars: {
        Yardstick::BarRanker ranker;
        ranker.SetPara(300, 1000, nullptr, "1");
        return RunYardstick(ranker);
    }
    case Kind::Stirrups: return RunYardstick(Yardstick::StirrupRanker());
    case Kind::Sections: return RunYardstick(Yardstick::SectionRanker());
    case Kind::Elevations: return RunYardstick(Yardstick::ElevationRanker());
    case Kind::Names: return RunYardstick(Yardstick::NameRanker());
    }
    return 0;
}

std::size_t RunFloor(const Host& host)
{
    std::unordered_map<std::string, unsigned int> uses;
    for (const std::string& text : host.texts) {
        ++uses[text];
    }
    std::vector<const std::pair<const std::string, unsigned int>*> order;
    order.reserve(uses.size());
    for (const auto& entry : uses) {
        order.push_back(&entry);
    }
    std::sort(order.begin(), order.end(), [](const auto* a, const auto* b) {
        return a->second != b->second ? a->second > b->second : a->first < b->first;
    });
    return order.size();
}

Database::Database()
{
    Check(sqlite3_open(":memory:", &m_db) == SQLITE_OK, m_db);
    Execute(m_db, "PRAGMA temp_store = MEMORY");
    Execute(m_db, "CREATE TABLE annotation (text TEXT NOT NULL)");
}

Database::~Database() { sqlite3_close(m_db); }

void Database::Insert(const std::vector<std::string>& texts)
{
    Execute(m_db, "BEGIN");
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(m_db, "INSERT INTO annotation VALUES (?)", -1, &statement, nullptr) ==
              SQLITE_OK,
          m_db);
    for (const std::string& text : texts) {
        sqlite3_bind_text(statement, 1, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
        Check(sqlite3_step(statement) == SQLITE_DONE, m_db);
        sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
    Execute(m_db, "COMMIT");
}

std::size_t Database::Query()
{
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(
              m_db, "SELECT text, COUNT(*) FROM annotation GROUP BY text ORDER BY COUNT(*) DESC, text", -1,
              &statement, nullptr) == SQLITE_OK,
          m_db);
    std::size_t rows = 0;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        rows += sqlite3_column_text(statement, 0) != nullptr ? 1 : 0;
    }
    sqlite3_finalize(statement);
    return rows;
}

}  // namespace Bench
