// Calls that fail: in each part of a scenario, every call that the plug-in makes returns an error
// once. One process runs the scenario up to that part; from there each failure has a process of its
// own, forked at that moment.

#include "minihost/check/CheckFunctions.h"
#include "minihost/check/ChildPool.h"
#include "minihost/check/Deviations.h"
#include "minihost/check/PluginRun.h"
#include "minihost/check/ReplayCommands.h"
#include "minihost/suites/SuiteTable.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <utility>

namespace minihost {

namespace {

using Json = nlohmann::json;

constexpr std::int32_t codes[] = {4, A_Err_MISSING_SUITE, -1};

// How many calls of a part fail, by level.
constexpr std::size_t max_failures[] = {12, 20, 40, 60, 100, 200, 400, 1000, 4000, SIZE_MAX};

// The indices of the calls that fail: the first of each name, and evenly among all.
std::set<std::size_t> choose_calls(const std::vector<std::string>& calls, int level) {
    std::set<std::size_t> chosen;
    std::set<std::string> names;
    for (std::size_t i = 0; i < calls.size(); ++i)
        if (names.insert(calls[i]).second) chosen.insert(i);
    const std::size_t stride = std::max<std::size_t>(1, calls.size() / max_failures[level - 1]);
    for (std::size_t i = 0; i < calls.size(); i += stride) chosen.insert(i);
    return chosen;
}

// All failures in one part of a scenario.
class FailureSweep {
  public:
    FailureSweep(const CheckContext& context, const BaselineRun& baseline, std::size_t part,
                 ChildProgress& progress)
        : _target(context.target),
          _baseline(baseline),
          _is_first(&baseline == &context.baseline.runs.front()),
          _part(part),
          _progress(progress),
          _run(_target.plugin, _target.small_scene, {}, progress),
          _pool(_target.limits()) {}

    Findings run() {
        _run.record_calls();
        for (std::size_t i = 0; i < _part; ++i) _run.play_part(_baseline.scenario, i);
        for (const std::string& line : _run.calls()) ++_calls_before[call_name(line)];
        const std::vector<std::string> calls = calls_of_part();
        std::map<std::string, std::int64_t> number;
        std::vector<PlannedFailure> failures;
        for (const std::string& call : calls) failures.push_back({call, ++number[call], 0});
        std::size_t turn = 0;
        for (const std::size_t call : choose_calls(calls, _target.level))
            for (std::size_t i = 0; i < codes_per_call(); ++i) {
                failures[call].code = codes[turn++ % std::size(codes)];
                try_failure(failures[call]);
            }
        _pool.finish();
        return _findings;
    }

  private:
    // All codes only on the last level and in the plain scenario; otherwise they take turns.
    std::size_t codes_per_call() const {
        return _target.level >= 10 && _is_first ? std::size(codes) : 1;
    }

    // The calls that the plug-in makes when none fails.
    std::vector<std::string> calls_of_part() {
        const std::size_t before = _run.calls().size();
        const ChildResult result = run_in_child(
            [&](ChildProgress&) {
                _run.play_part(_baseline.scenario, _part);
                Json names = Json::array();
                for (std::size_t i = before; i < _run.calls().size(); ++i)
                    names.push_back(call_name(_run.calls()[i]));
                return names.dump();
            },
            _target.limits(), Child::Exit::Quick);
        if (result.kind != ChildResult::Kind::Done) return {}; // other checks report that
        return Json::parse(result.output);
    }

    void try_failure(const PlannedFailure& failure) {
        std::set<ViolationKind> known = _baseline.kinds();
        known.insert(ViolationKind::HookError); // hooks may pass the error on
        if (is_release_call(failure.call))
            known.insert({ViolationKind::HeldSuite, ViolationKind::HeldStream,
                          ViolationKind::HeldCollection, ViolationKind::OpenUndoGroup});
        const std::string example = example_of(failure);
        _pool.run(
            [this, failure](ChildProgress& progress) {
                Host& host = _run.session().host();
                host.log.set_sink({});
                host.failure_plan = FailurePlan({failure});
                for (std::size_t i = _part; i < _baseline.scenario.part_count(); ++i) {
                    progress.checkpoint(_baseline.scenario.name_of_part(i));
                    _run.play_part(_baseline.scenario, i);
                }
                return violations_to_json(_run.violations());
            },
            [this, known, example](const ChildResult& result) {
                report_deviations(result, known, example, _progress, _findings);
            });
    }

    std::string example_of(const PlannedFailure& failure) {
        const std::string text = failure.call + ":" +
                                 std::to_string(failure.number + _calls_before[failure.call]) +
                                 ":" + std::to_string(failure.code);
        return counted_replay_hint(_target, _baseline.scenario, "--fail " + shell_quote(text));
    }

    const Target& _target;
    const BaselineRun& _baseline;
    const bool _is_first;
    const std::size_t _part;
    ChildProgress& _progress;
    PluginRun _run;
    std::map<std::string, std::int64_t> _calls_before; // by name
    Findings _findings;
    ChildPool _pool; // destroyed before the findings
};

// Runs a sweep in a child process, whose progress it passes on.
void sweep_part(const CheckContext& context, const BaselineRun& baseline, std::size_t part,
                Findings& findings) {
    const Limits limits{std::chrono::hours(2), 4 * context.target.limits().between_checkpoints};
    const std::uint64_t runs_before = context.progress.runs;
    Child child(
        [&](ChildProgress& progress) {
            return FailureSweep(context, baseline, part, progress).run().to_json();
        },
        limits, Child::Exit::Quick);
    std::uint64_t checkpoints = 0;
    while (!child.wait(std::chrono::milliseconds(200))) {
        context.progress.runs = runs_before + child.progress().runs;
        const std::uint64_t now = child.progress().checkpoints();
        if (now != std::exchange(checkpoints, now))
            context.progress.checkpoint(child.progress().last_checkpoint());
    }
    context.progress.runs = runs_before + child.progress().runs;
    context.progress.checkpoint(baseline.scenario.name);
    if (child.result().kind == ChildResult::Kind::Done)
        findings.add(Findings::from_json(child.result().output));
    else
        findings.add(Outcome::Crash, describe_failure(child.result()),
                     "with " + baseline.scenario.name);
}

} // namespace

void report_failing_calls(const CheckContext& context, Findings& findings, Phase phase) {
    for (const BaselineRun& baseline : context.baseline.runs) {
        if (!baseline.is_complete() || baseline.scenario.is_text_variant) continue;
        for (std::size_t part = 0; part < baseline.scenario.part_count(); ++part)
            if (baseline.scenario.phase_of_part(part) == phase)
                sweep_part(context, baseline, part, findings);
        // All scenarios have the parts of the other phases in common.
        if (phase != Phase::Apply) break;
    }
    if (findings.runs() == 0) findings.skip("the plug-in makes no call there");
    note_small_scene(context.target, findings);
}

} // namespace minihost
