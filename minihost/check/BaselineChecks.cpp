// Checks that look only at the baseline.

#include "minihost/check/CheckFunctions.h"
#include "minihost/check/ReplayCommands.h"

namespace minihost {

namespace {

bool timed_out_in_idle(const ChildResult& result) {
    return result.kind == ChildResult::Kind::TimedOut && result.last_checkpoint == "idle";
}

void report_failure(const CheckContext& context, Findings& findings, const BaselineRun& run) {
    const bool crashed = run.result.kind == ChildResult::Kind::Crashed;
    findings.add(crashed ? Outcome::Crash : Outcome::Fail, describe_failure(run.result),
                 replay_hint(context.target, run.scenario, ""));
}

} // namespace

void report_baseline_violations(const CheckContext& context, Findings& findings,
                                ViolationKind kind) {
    for (const BaselineRun& run : context.baseline.runs) {
        if (!run.is_complete()) continue;
        findings.count_run();
        for (const Violation& violation : run.violations)
            if (violation.kind == kind)
                findings.add(Outcome::Fail, violation.text,
                             replay_hint(context.target, run.scenario, ""));
    }
}

void check_idle_ends(const CheckContext& context, Findings& findings) {
    for (const BaselineRun& run : context.baseline.runs) {
        findings.count_run();
        if (timed_out_in_idle(run.result)) report_failure(context, findings, run);
    }
}

void check_hooks_return(const CheckContext& context, Findings& findings) {
    for (const BaselineRun& run : context.baseline.runs) {
        findings.count_run();
        if (!run.is_complete() && !timed_out_in_idle(run.result) &&
            run.result.last_checkpoint != "load")
            report_failure(context, findings, run);
    }
}

} // namespace minihost
