// What checks that interfere with a life have in common: only what the same life does not do
// without them is told.

#pragma once

#include "minihost/check/Check.h"
#include "minihost/check/Crew.h"

#include <set>

namespace minihost {

// Tells what came of a disturbed life, whose work gave violations_text(): a crash, a time-out, a
// leak, faults of kinds that are not `known`. `example` says where, and how to repeat it.
void tell_disturbed(const Ending& ending, const std::set<ViolationKind>& known,
                    const std::string& example, Findings& findings);

} // namespace minihost
