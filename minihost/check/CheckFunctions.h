// The functions of the checks, by group.

#pragma once

#include "minihost/check/Check.h"
#include "minihost/suites/MisbehaviourPlan.h"

namespace minihost {

// load
void check_exports(const CheckContext&, Findings&);
void check_entry(const CheckContext&, Findings&);
void check_loading_repeatedly(const CheckContext&, Findings&);

// hooks
void check_registered(const CheckContext&, Findings&);
void check_idle_ends(const CheckContext&, Findings&);
void check_hooks_return(const CheckContext&, Findings&);

// hooks, held, misuse: violations of one kind in the baseline
void report_baseline_violations(const CheckContext&, Findings&, ViolationKind kind);
template <ViolationKind kind>
void check_baseline(const CheckContext& context, Findings& findings) {
    report_baseline_violations(context, findings, kind);
}
void check_memory(const CheckContext&, Findings&);

// missing
void check_missing_optional(const CheckContext&, Findings&);
void check_missing_any(const CheckContext&, Findings&);

// failing
void report_failing_calls(const CheckContext&, Findings&, Phase phase);
template <Phase phase>
void check_failing(const CheckContext& context, Findings& findings) {
    report_failing_calls(context, findings, phase);
}

// hostile
void report_hostile(const CheckContext&, Findings&, MisbehaviourKind kind);
template <MisbehaviourKind kind>
void check_hostile(const CheckContext& context, Findings& findings) {
    report_hostile(context, findings, kind);
}

// random
void check_random_actions(const CheckContext&, Findings&);
void check_random_events(const CheckContext&, Findings&);

// equal
void check_equal_calls(const CheckContext&, Findings&);

} // namespace minihost
