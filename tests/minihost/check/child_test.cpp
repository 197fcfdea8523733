// Work in a child process.

#include "minihost/check/Child.h"

#include <atomic>
#include <gmock/gmock.h>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace minihost {
namespace {

constexpr Limits limits{std::chrono::seconds(20), std::chrono::seconds(10)};

TEST(Children, DoNotInheritALockOfAnotherThread) {
    std::mutex lock;
    std::atomic<bool> is_held = false;
    std::thread holder([&] {
        const std::scoped_lock held(lock);
        is_held = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    });
    while (!is_held) std::this_thread::yield();
    const ChildResult result = run_in_child(
        [&](ChildProgress&) {
            const std::scoped_lock held(lock);
            return std::string("done");
        },
        limits, Child::Exit::Quick);
    holder.join();
    EXPECT_EQ(result.output, "done") << result.cause;
}

TEST(Children, ReachTheLimitBetweenCheckpointsByWorkingAndNotByWaiting) {
    constexpr Limits short_limits{std::chrono::seconds(20), std::chrono::milliseconds(300)};
    const ChildResult waited = run_in_child(
        [](ChildProgress&) {
            std::this_thread::sleep_for(std::chrono::seconds(1));
            return std::string("done");
        },
        short_limits, Child::Exit::Quick);
    EXPECT_EQ(waited.kind, ChildResult::Kind::Done) << waited.cause;

    const ChildResult worked = run_in_child(
        [](ChildProgress& progress) {
            progress.checkpoint("a loop");
            for (volatile bool forever = true; forever;) {
            }
            return std::string();
        },
        short_limits, Child::Exit::Quick);
    EXPECT_EQ(worked.kind, ChildResult::Kind::TimedOut);
    EXPECT_EQ(worked.last_checkpoint, "a loop");

    constexpr Limits shorter{std::chrono::seconds(20), std::chrono::milliseconds(20)};
    const ChildResult stuck = run_in_child(
        [](ChildProgress&) {
            for (;;) ::pause();
            return std::string();
        },
        shorter, Child::Exit::Quick);
    EXPECT_EQ(stuck.kind, ChildResult::Kind::TimedOut) << "after waiting twenty times as long";
}

TEST(Children, ReturnOutputOfAnySizeAndTheLastErrorLines) {
    const std::string large(3 << 20, 'x');
    const ChildResult done =
        run_in_child([&](ChildProgress&) { return large; }, limits, Child::Exit::Quick);
    EXPECT_EQ(done.kind, ChildResult::Kind::Done);
    EXPECT_TRUE(done.output == large);

    const ChildResult crashed = run_in_child(
        [&](ChildProgress& progress) -> std::string {
            progress.checkpoint("a step");
            for (int i = 0; i < 20; ++i) std::fprintf(stderr, "line %i\n", i);
            throw std::runtime_error("the reason");
        },
        limits, Child::Exit::Quick);
    EXPECT_EQ(crashed.kind, ChildResult::Kind::Crashed);
    EXPECT_EQ(crashed.last_checkpoint, "a step");
    EXPECT_THAT(crashed.error_lines, testing::SizeIs(12));
    EXPECT_EQ(crashed.error_lines.back(), "the reason");
    EXPECT_EQ(crashed.output, "");
}

} // namespace
} // namespace minihost
