// What goes wrong in lives that nothing disturbs: looked up in the rehearsal.

#include "minihost/check/Groups.h"

namespace minihost {

namespace {

bool died_idle(const RehearsedLife& life) {
    return life.ending.kind == Ending::Kind::TimedOut && life.ending.step == "idle";
}

void tell_death(const CheckContext& context, Findings& findings, const RehearsedLife& life) {
    const Outcome outcome =
        life.ending.kind == Ending::Kind::Crashed ? Outcome::Crash : Outcome::Fail;
    findings.add(outcome, death_of(life.ending), where(context.subject, life.scenario, ""));
}

} // namespace

void report_plain_violations(const CheckContext& context, Findings& findings, ViolationKind kind) {
    for (const RehearsedLife& life : context.rehearsal.lives) {
        if (!life.ended_well()) continue;
        findings.count_run();
        for (const Violation& violation : life.violations)
            if (violation.kind == kind)
                findings.add(Outcome::Fail, violation.text,
                             where(context.subject, life.scenario, ""));
    }
}

void check_idle_ends(const CheckContext& context, Findings& findings) {
    for (const RehearsedLife& life : context.rehearsal.lives) {
        findings.count_run();
        if (died_idle(life)) tell_death(context, findings, life);
    }
}

void check_hooks_return(const CheckContext& context, Findings& findings) {
    for (const RehearsedLife& life : context.rehearsal.lives) {
        findings.count_run();
        if (!life.ended_well() && !died_idle(life) && life.ending.step != "load")
            tell_death(context, findings, life);
    }
}

} // namespace minihost
