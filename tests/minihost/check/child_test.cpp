// Work in a process of its own.

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

TEST(Children, FindNoLockHeldByAThreadThatTheyDoNotHave) {
    std::mutex lock;
    std::atomic<bool> is_held = false;
    std::thread holder([&] {
        const std::scoped_lock held(lock);
        is_held = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    });
    while (!is_held) std::this_thread::yield();
    const Ending ending = run_in_child(
        [&](Place&) {
            const std::scoped_lock held(lock);
            return std::string("done");
        },
        limits, Child::Exit::Quick);
    holder.join();
    EXPECT_EQ(ending.result, "done") << ending.cause;
}

TEST(Children, ReachTheLimitOfAStepByWorkingAndNotByWaiting) {
    constexpr Limits short_limits{std::chrono::seconds(20), std::chrono::milliseconds(300)};
    const Ending waited = run_in_child(
        [](Place&) {
            std::this_thread::sleep_for(std::chrono::seconds(1));
            return std::string("done");
        },
        short_limits, Child::Exit::Quick);
    EXPECT_EQ(waited.kind, Ending::Kind::Done) << waited.cause;

    const Ending worked = run_in_child(
        [](Place& place) {
            place.enter("a loop");
            for (volatile bool forever = true; forever;) {
            }
            return std::string();
        },
        short_limits, Child::Exit::Quick);
    EXPECT_EQ(worked.kind, Ending::Kind::TimedOut);
    EXPECT_EQ(worked.step, "a loop");

    constexpr Limits shorter{std::chrono::seconds(20), std::chrono::milliseconds(20)};
    const Ending stuck = run_in_child(
        [](Place&) {
            for (;;) ::pause();
            return std::string();
        },
        shorter, Child::Exit::Quick);
    EXPECT_EQ(stuck.kind, Ending::Kind::TimedOut) << "it waited twenty times as long";
}

TEST(Children, GiveResultsOfAnySizeAndTheLastThatTheySaid) {
    const std::string large(3 << 20, 'x');
    const Ending done = run_in_child([&](Place&) { return large; }, limits, Child::Exit::Quick);
    EXPECT_EQ(done.kind, Ending::Kind::Done);
    EXPECT_TRUE(done.result == large);

    const Ending crashed = run_in_child(
        [&](Place& place) -> std::string {
            place.enter("a step");
            for (int i = 0; i < 20; ++i) std::fprintf(stderr, "line %i\n", i);
            throw std::runtime_error("the reason");
        },
        limits, Child::Exit::Quick);
    EXPECT_EQ(crashed.kind, Ending::Kind::Crashed);
    EXPECT_EQ(crashed.step, "a step");
    EXPECT_THAT(crashed.said, testing::SizeIs(12));
    EXPECT_EQ(crashed.said.back(), "the reason");
    EXPECT_EQ(crashed.result, "");
}

} // namespace
} // namespace minihost
