// What a disturbed run does wrong that the baseline does not.

#pragma once

#include "minihost/check/Check.h"

#include <set>

namespace minihost {

// Counts a run whose output is that of violations_to_json(), and reports a crash, a time-out, a
// leak, and violations of kinds that are not `known`. `example` says how to repeat it.
void report_deviations(const ChildResult& result, const std::set<ViolationKind>& known,
                       const std::string& example, ChildProgress& progress, Findings& findings);

// Notes what the small scene left out, for the checks that use it.
void note_small_scene(const Target& target, Findings& findings);

} // namespace minihost
