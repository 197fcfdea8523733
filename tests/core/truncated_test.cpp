#include "core/truncated.h"

#include <climits>
#include <gtest/gtest.h>
#include <limits>

namespace {

TEST(Truncated, RoundsTowardZeroAndNeverOverflows) {
    const struct {
        double value;
        int wanted;
    } cases[] = {{3.33, 3},
                 {-3.99, -3},
                 {0.999, 0},
                 {2147483646.5, 2147483646},
                 {1e300, INT_MAX},
                 {-1e300, INT_MIN},
                 {std::numeric_limits<double>::quiet_NaN(), 0}};
    for (const auto& c : cases) EXPECT_EQ(truncated(c.value), c.wanted) << c.value;
}

} // namespace
