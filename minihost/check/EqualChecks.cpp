// Two equal runs at the same time of day must make the same calls with the same arguments and
// results.

#include "minihost/check/CheckFunctions.h"
#include "minihost/check/ChildPool.h"
#include "minihost/check/Clock.h"
#include "minihost/check/PluginRun.h"

#include <algorithm>
#include <malloc.h>
#include <optional>

namespace minihost {

namespace {

constexpr std::time_t time_of_day = 1'700'000'000;

// Plays a scenario and returns the log of its calls. Uninitialized memory is filled with `byte`, so
// that reading it makes a difference between runs.
std::string play(const Target& target, const Scenario& scenario, int byte,
                 ChildProgress& progress) {
    stop_clock(time_of_day);
    ::mallopt(M_PERTURB, byte);
    PluginRun run(target.plugin, target.scene, {}, progress);
    run.record_calls();
    run.play(scenario);
    std::string log;
    for (const std::string& line : run.calls()) log += line;
    return log;
}

// The logs of all scenarios; nothing for a run that fails, which is reported.
std::vector<std::optional<std::string>> play_all(const CheckContext& context, Findings& findings,
                                                 int byte) {
    std::vector<std::optional<std::string>> logs(context.baseline.runs.size());
    ChildPool pool(context.target.limits());
    for (std::size_t i = 0; i < logs.size(); ++i) {
        const BaselineRun& baseline = context.baseline.runs[i];
        if (!baseline.is_complete()) continue;
        pool.run(
            [&, byte](ChildProgress& progress) {
                return play(context.target, baseline.scenario, byte, progress);
            },
            [&, i](const ChildResult& result) {
                context.progress.checkpoint(baseline.scenario.name);
                ++context.progress.runs;
                if (result.kind == ChildResult::Kind::Done)
                    logs[i] = result.output;
                else
                    findings.add(Outcome::Fail, describe_failure(result),
                                 "with " + baseline.scenario.name);
            });
    }
    pool.finish();
    return logs;
}

std::string first_difference(const std::string& first, const std::string& second) {
    const auto [a, b] = std::mismatch(first.begin(), first.end(), second.begin(), second.end());
    const auto line_at = [](const std::string& text, std::string::const_iterator at) {
        const auto offset = static_cast<std::size_t>(at - text.begin());
        const std::size_t start = offset == 0 ? 0 : text.rfind('\n', offset - 1) + 1;
        const std::string line = text.substr(start, text.find('\n', offset) - start);
        return line.empty() ? std::string("nothing more") : line;
    };
    return "first " + line_at(first, a) + ", then " + line_at(second, b);
}

} // namespace

void check_equal_calls(const CheckContext& context, Findings& findings) {
    const auto first = play_all(context, findings, 0x5a);
    const auto second = play_all(context, findings, 0xa5);
    for (std::size_t i = 0; i < second.size(); ++i) {
        if (!second[i]) continue;
        findings.count_run();
        const std::string expected = first[i].value_or("");
        if (*second[i] != expected)
            findings.add(Outcome::Fail,
                         "the calls differ: " + first_difference(expected, *second[i]),
                         "with " + context.baseline.runs[i].scenario.name);
    }
}

} // namespace minihost
