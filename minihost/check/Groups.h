// The functions of the checks, by group, for the table; what they share.

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

// Of one kind of fault, in lives that nothing disturbs: hooks, held, misuse.
void report_plain_violations(const CheckContext&, Findings&, ViolationKind kind);
template <ViolationKind kind>
void check_plain(const CheckContext& context, Findings& findings) {
    report_plain_violations(context, findings, kind);
}
void check_memory(const CheckContext&, Findings&);

// missing
void check_missing_optional(const CheckContext&, Findings&);
void check_missing_any(const CheckContext&, Findings&);

// failing
void tell_failing_calls(const CheckContext&, Findings&, Phase phase);
template <Phase phase>
void check_failing(const CheckContext& context, Findings& findings) {
    tell_failing_calls(context, findings, phase);
}

// hostile
void tell_hostile(const CheckContext&, Findings&, MisbehaviourKind kind);
template <MisbehaviourKind kind>
void check_hostile(const CheckContext& context, Findings& findings) {
    tell_hostile(context, findings, kind);
}

// random
void check_random_actions(const CheckContext&, Findings&);
void check_random_events(const CheckContext&, Findings&);

// equal
void check_equal_calls(const CheckContext&, Findings&);

// --- What they share

// "ended by a signal: Aborted at "click apply"", with what was said.
std::string death_of(const Ending& ending);

// One line that repeats a life outside of the checks; `fail` is an option's text, or empty. Without
// a scene file there is none: empty then.
std::string command_of_life(const Subject& subject, const Scenario& scenario,
                            const std::string& options);
// "with orientation.random=on; to repeat it: ...": where something was found. `options` are of the
// command.
std::string where(const Subject& subject, const Scenario& scenario, const std::string& options);
// The same for an option that tells a call or an answer by its number: without a command when that
// was counted in a smaller scene than the one that would be loaded.
std::string where_counted(const Subject& subject, const Scenario& scenario,
                          const std::string& option);
// Of checks that use the small scene: tells what it lacks.
void note_cut(const Subject& subject, Findings& findings);
// The one that repeats a check.
std::string command_of_check(const Subject& subject, const std::string& id);
// A word as a shell reads it.
std::string shell_word(const std::string& text);

} // namespace minihost
