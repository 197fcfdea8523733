// Long lists of steps are shortened.

#include "minihost/check/Shrink.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace minihost {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Clock = std::chrono::steady_clock;

bool has(const StepIndices& steps, std::size_t step) {
    return std::binary_search(steps.begin(), steps.end(), step);
}

TEST(Shrink, LeavesWhatIsNeededAndTriesLittle) {
    const auto later = Clock::now() + std::chrono::hours(1);
    int tries = 0;
    const auto far_apart = [&](const StepIndices& steps) {
        ++tries;
        EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
        return has(steps, 3) && has(steps, 500) && has(steps, 997);
    };
    EXPECT_THAT(shrink(1000, far_apart, later), ElementsAre(3, 500, 997));
    EXPECT_LT(tries, 150);
    // 2 and 8 fail together, but 5 hides that without 6.
    const auto entangled = [](const StepIndices& steps) {
        return has(steps, 2) && has(steps, 8) && (!has(steps, 5) || has(steps, 6));
    };
    EXPECT_THAT(shrink(9, entangled, later), ElementsAre(2, 8));
    const auto three_of_them = [](const StepIndices& steps) { return steps.size() >= 3; };
    EXPECT_THAT(shrink(50, three_of_them, later), SizeIs(3));
    const auto always = [](const StepIndices&) { return true; };
    EXPECT_THAT(shrink(7, always, later), IsEmpty());
    EXPECT_THAT(shrink(0, always, later), IsEmpty());
    EXPECT_THAT(shrink(50, always, Clock::now()), SizeIs(50)) << "no time";
}

} // namespace
} // namespace minihost
