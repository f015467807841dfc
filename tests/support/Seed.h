// Seeds of random tests. RANKER_SEED in the environment takes the place of each test's usual one.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>
#include <string>

// The seed of a test, or of its first trial, whose followers count on from it. Printed, and recorded in the
// test's report; a trial that fails names its own by SCOPED_TRACE(SeedName(seed)).
inline unsigned FirstSeed(unsigned usual)
{
    const char* const set = std::getenv("RANKER_SEED");
    const unsigned seed = set == nullptr ? usual : static_cast<unsigned>(std::strtoul(set, nullptr, 10));
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    std::cout << test.test_suite_name() << '.' << test.name() << ": RANKER_SEED=" << seed << std::endl;
    testing::Test::RecordProperty("seed", std::to_string(seed));
    return seed;
}

inline std::string SeedName(unsigned seed) { return "RANKER_SEED=" + std::to_string(seed); }
