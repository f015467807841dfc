// Part of each test program: names the seed of the order in which its tests run, which the brief report
// leaves out, so that an order that fails can be run again.
#include <gtest/gtest.h>

#include <iostream>

namespace {

class PrintOrder : public testing::EmptyTestEventListener {
    void OnTestIterationStart(const testing::UnitTest& program, int /*iteration*/) override
    {
        if (program.random_seed() != 0) {
            std::cout << "order of the tests: GTEST_RANDOM_SEED=" << program.random_seed() << std::endl;
        }
    }
};

[[maybe_unused]] const bool s_listens = [] {
    testing::UnitTest::GetInstance()->listeners().Append(new PrintOrder);  // which owns it
    return true;
}();

}  // namespace
