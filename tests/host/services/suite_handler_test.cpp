// What the suite handler acquires, and that it releases all of it.

#include "host/services/AEGP_SuiteHandler.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

std::vector<std::string> calls;
int tables[3];

A_Err acquire(const char* name, A_long version, const void** suite) {
    calls.push_back("+" + std::string(name) + " " + std::to_string(version));
    if (std::string(name) == "absent") return 7;
    if (std::string(name) == "empty") return *suite = nullptr, A_Err_NONE;
    *suite = &tables[version % 3];
    return A_Err_NONE;
}

A_Err release(const char* name, A_long version) {
    calls.push_back("-" + std::string(name) + " " + std::to_string(version));
    return A_Err_NONE;
}

class SuiteHandler : public testing::Test {
  protected:
    void SetUp() override { calls.clear(); }
    SPBasicSuite basic{acquire, release};
};

using Calls = std::vector<std::string>;

TEST_F(SuiteHandler, AcquiresEachNameAndVersionOnceAndReleasesAll) {
    {
        AEGP_SuiteHandler suites(&basic);
        const std::string same = "Layer"; // same name, different address
        EXPECT_EQ(suites.LoadSuite("Layer", 5), &tables[2]);
        EXPECT_EQ(suites.LoadSuite(same.c_str(), 5), &tables[2]);
        EXPECT_EQ(suites.LoadSuite("Layer", 10), &tables[1]);
        EXPECT_EQ(suites.LoadSuite("Item", 3), &tables[0]);
    }
    EXPECT_EQ(calls,
              (Calls{"+Layer 5", "+Layer 10", "+Item 3", "-Item 3", "-Layer 10", "-Layer 5"}));
}

TEST_F(SuiteHandler, ReleasesOnTheWayOutOfAnException) {
    try {
        AEGP_SuiteHandler suites(&basic);
        suites.LoadSuite("Item", 3);
        throw std::runtime_error("host failed");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(calls, (Calls{"+Item 3", "-Item 3"}));
}

TEST_F(SuiteHandler, ThrowsItsCodeForAMissingSuite) {
    const auto code_of = [](auto&& action) {
        try {
            action();
        } catch (int code) {
            return code;
        }
        return 0;
    };
    EXPECT_EQ(code_of([] { AEGP_SuiteHandler suites(nullptr); }), 516);
    AEGP_SuiteHandler suites(&basic);
    EXPECT_EQ(code_of([&] { suites.LoadSuite("absent", 1); }), 516);
    EXPECT_EQ(code_of([&] { suites.LoadSuite("empty", 1); }), 516);
    // The use without a table was counted, so it is released; the refused one was not.
    EXPECT_EQ(calls, (Calls{"+absent 1", "+empty 1", "-empty 1"}));
}

TEST_F(SuiteHandler, CanBeUsedAgainAfterReleasing) {
    AEGP_SuiteHandler suites(&basic);
    suites.LoadSuite("Item", 3);
    suites.ReleaseAllSuites();
    suites.LoadSuite("Item", 3);
    EXPECT_EQ(calls, (Calls{"+Item 3", "-Item 3", "+Item 3"}));
}

} // namespace
