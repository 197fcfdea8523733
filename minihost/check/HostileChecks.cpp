// A host that misbehaves: in every scenario, each result of a kind is corrupted, or all of them, or
// the scene changes between two calls. Hooks may return errors, but nothing else may go wrong.

#include "minihost/check/CheckFunctions.h"
#include "minihost/check/ChildPool.h"
#include "minihost/check/Deviations.h"
#include "minihost/check/PluginRun.h"
#include "minihost/check/ReplayCommands.h"

#include <algorithm>
#include <limits>
#include <new>
#include <sys/resource.h>

namespace minihost {

namespace {

// How many single results of a kind are corrupted in the first scenario, by level. The others,
// which are similar, get a fraction.
constexpr std::int64_t max_results[] = {8, 8, 10, 12, 16, 20, 30, 40, 60, 100};
constexpr std::int64_t fraction_of_others = 10;
constexpr rlim_t max_memory = rlim_t{4} << 30;

[[noreturn]] void exit_out_of_memory() {
    std::fputs("it asked for more than 4 GB of memory\n", stderr);
    std::fflush(stderr);
    std::_Exit(1);
}

void limit_memory() {
    if (sanitizer_factor > 1) return; // sanitizers need more
    const rlimit limit{max_memory, max_memory};
    ::setrlimit(RLIMIT_AS, &limit);
    std::set_new_handler(exit_out_of_memory);
}

class HostileCheck {
  public:
    HostileCheck(const CheckContext& context, Findings& findings, MisbehaviourKind kind)
        : _context(context),
          _target(context.target),
          _findings(findings),
          _kind(kind),
          _pool(_target.limits(), Child::Exit::Normal) {}

    void run() {
        for (const BaselineRun& baseline : _context.baseline.runs) {
            if (!baseline.is_complete() || baseline.scenario.is_text_variant) continue;
            const std::int64_t results = count_results(baseline.scenario);
            if (results == 0) continue;
            const bool is_first = &baseline == &_context.baseline.runs[0];
            for (const Misbehaviour& misbehaviour : misbehaviours()) {
                if (misbehaviour.kind != _kind) continue;
                try_misbehaviour(baseline, {&misbehaviour, 0});
                for (const std::int64_t number : choose_numbers(results, is_first))
                    try_misbehaviour(baseline, {&misbehaviour, number});
            }
        }
        _pool.finish();
        if (_findings.runs() == 0) _findings.skip("the plug-in asks for nothing of the kind");
        note_small_scene(_target, _findings);
    }

  private:
    // Evenly among all results, and different ones for each scenario.
    std::vector<std::int64_t> choose_numbers(std::int64_t results, bool is_first) {
        const std::int64_t all = max_results[_target.level - 1];
        const std::int64_t count =
            is_first ? all : std::max<std::int64_t>(1, all / fraction_of_others);
        const std::int64_t stride = std::max<std::int64_t>(1, results / count);
        std::vector<std::int64_t> numbers;
        for (std::int64_t i = 1 + _turn++ % stride; i <= results; i += stride) numbers.push_back(i);
        return numbers;
    }

    std::int64_t count_results(const Scenario& scenario) {
        HostOptions options;
        for (const Misbehaviour& it : misbehaviours())
            options.misbehaviours.push_back({&it, std::numeric_limits<std::int64_t>::max()});
        const ChildResult counted = run_in_child(
            [&](ChildProgress& progress) {
                PluginRun run(_target.plugin, _target.small_scene, options, progress);
                run.play(scenario);
                return std::to_string(run.session().host().misbehaviour_plan.count(_kind));
            },
            _target.limits(), Child::Exit::Quick);
        // Other checks report a failure here.
        return counted.kind == ChildResult::Kind::Done ? std::stoll(counted.output) : 0;
    }

    void try_misbehaviour(const BaselineRun& baseline, PlannedMisbehaviour planned) {
        _pool.run(
            [this, &baseline, planned](ChildProgress& progress) {
                limit_memory();
                HostOptions options;
                options.misbehaviours = {planned};
                return violations_of_run(_target.plugin, _target.small_scene, options,
                                         baseline.scenario, progress);
            },
            [this, &baseline, planned](const ChildResult& result) {
                report(result, baseline, example_of(baseline.scenario, planned));
            });
    }

    void report(const ChildResult& result, const BaselineRun& baseline,
                const std::string& example) {
        std::set<ViolationKind> known = baseline.kinds();
        known.insert(ViolationKind::HookError); // hooks may give up
        if (_kind == MisbehaviourKind::Scene) known.insert(ViolationKind::StaleHandle);
        // The host rejects the null handle that it gave itself, so using it is not worse than a
        // warning.
        if (_kind == MisbehaviourKind::Handle && result.kind == ChildResult::Kind::Done)
            for (const Violation& violation : violations_from_json(result.output))
                if (violation.kind == ViolationKind::WrongHandle && !known.contains(violation.kind))
                    _findings.add(Outcome::Warn, violation.text, example);
        if (_kind == MisbehaviourKind::Handle) known.insert(ViolationKind::WrongHandle);
        report_deviations(result, known, example, _context.progress, _findings);
    }

    std::string example_of(const Scenario& scenario, PlannedMisbehaviour planned) const {
        std::string text = planned.misbehaviour->word;
        if (planned.number > 0) text += ":" + std::to_string(planned.number);
        return counted_replay_hint(_target, scenario, "--misbehave " + shell_quote(text));
    }

    const CheckContext& _context;
    const Target& _target;
    Findings& _findings;
    const MisbehaviourKind _kind;
    std::int64_t _turn = 0;
    ChildPool _pool;
};

} // namespace

void report_hostile(const CheckContext& context, Findings& findings, MisbehaviourKind kind) {
    HostileCheck(context, findings, kind).run();
}

} // namespace minihost
