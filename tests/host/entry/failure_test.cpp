// Every host call that the plug-in makes fails once: it must not crash, leak or misuse anything.

#include "tests/host/entry/PluginTest.h"

#include "minihost/suites/Module.h"
#include "minihost/suites/SuiteTable.h"

#include <map>
#include <set>

namespace {

using minihost::HostOptions;
using minihost::is_release_call;
using testing::IsEmpty;

// A session that makes every kind of call; skips actions that a failure has made impossible.
constexpr const char* actions[] = {"menu",
                                   "idle",
                                   "state",
                                   "set orientation.towards-camera=on",
                                   "set scale-to-fit=on",
                                   "set random-order=on",
                                   "set keys.position=on",
                                   "set keys.orientation=on",
                                   "set keys.scale=on",
                                   "set repeat=on",
                                   "set repeat.sequentially=on",
                                   "click apply",
                                   "set scale-to-fit=off",
                                   "click apply",
                                   "close-panel",
                                   "menu",
                                   "idle"};

const std::string scene =
    scene_of({solid("S"), R"({"name": "T", "kind": "text", "three_d": true})", camera("C")});

void run_actions(PluginHost& host) {
    try {
        host.session.load(PLUGIN);
    } catch (const minihost::LoadError&) {
        return;
    }
    const auto& failures = host.session.host().options().failures;
    const bool must_close = failures.empty() || !is_release_call(failures[0].call);
    for (const char* action : actions) {
        try {
            host.play(action);
        } catch (const std::runtime_error&) {
        }
        if (must_close) {
            ASSERT_EQ(host.document().open_groups(), 0) << action;
        }
    }
}

// How often each call is made in a session without failures.
std::map<std::string, int> calls_of_a_session(const HostOptions& options) {
    std::map<std::string, int> counts;
    PluginHost host(scene, options, false);
    host.session.host().log.set_sink([&](const std::string& line) {
        const Json call = Json::parse(line);
        ++counts[call["suite"].get<std::string>() + "." + call["call"].get<std::string>()];
    });
    run_actions(host);
    EXPECT_THAT(host.session.unload(), IsEmpty());
    EXPECT_THAT(host.messages, IsEmpty());
    return counts;
}

void fail_each_call(std::set<std::string> without, int step) {
    HostOptions options;
    options.without = std::move(without);
    int runs = 0;
    for (auto [call, count] : calls_of_a_session(options)) {
        // Colours are queried at every drawing; failing the first is enough.
        if (call.find("GetColor") != std::string::npos) count = 1;
        // One refused release is like the others.
        const int stride = call.find("ReleaseSuite") != std::string::npos ? 20 : step;
        for (int number = 1; number <= count; number += stride) {
            const std::string name = call + ":" + std::to_string(number);
            SCOPED_TRACE(name);
            HostOptions failing = options;
            failing.failures = {{call, number, 4 + number % 3}};
            PluginHost host(scene, failing, false);
            run_actions(host);
            const auto held = host.session.unload();
            if (!is_release_call(call)) {
                EXPECT_THAT(held, IsEmpty());
            }
            EXPECT_EQ(host.session.host().misuses(), 0) << host.messages.back();
            ++runs;
        }
    }
    EXPECT_GT(runs, 50);
}

// A null handle with success means no object, and must not be passed to the host. Every fifth call
// is enough, since each place makes several.
TEST(NullHandles, AreNotPassedOn) {
    HostOptions options;
    options.misbehaviours = {minihost::parse_misbehaviour("null-handles:1000000")};
    std::int64_t answers = 0;
    {
        PluginHost plain(scene, options, false);
        run_actions(plain);
        answers = plain.session.host().misbehaviour_plan.count(minihost::MisbehaviourKind::Handle);
    }
    ASSERT_GT(answers, 50);
    for (std::int64_t number = 1; number <= answers; number += 5) {
        options.misbehaviours[0].number = number;
        PluginHost host(scene, options, false);
        run_actions(host);
        EXPECT_THAT(host.session.unload(), IsEmpty()) << number;
        EXPECT_EQ(host.session.host().misuses(), 0) << number;
    }
}

// On the full host every single call fails; on the reduced ones, which differ in few calls, every
// fourth of a kind.
TEST(FailingCalls, OnAHostWithEverything) {
    fail_each_call({}, 1);
}
TEST(FailingCalls, OnAHostWithoutPanels) {
    fail_each_call({"panels"}, 4);
}
TEST(FailingCalls, OnAHostThatDuplicatesByCommand) {
    fail_each_call({"layer-suite-10", "layer-suite-8", "colours"}, 4);
}

} // namespace
