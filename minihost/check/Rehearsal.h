// What the plug-in does when nothing stands in its way: every scenario lived once, each in a
// process of its own. Checks look here for what is wrong without them.

#pragma once

#include "minihost/check/Child.h"
#include "minihost/check/Scenario.h"
#include "minihost/suites/Violation.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace minihost {

struct Subject;

struct RehearsedLife {
    Scenario scenario;
    Ending ending;
    std::vector<Violation> violations; // none are known of a life that did not end well

    bool ended_well() const { return ending.kind == Ending::Kind::Done; }
    std::set<ViolationKind> kinds() const;
};

struct Rehearsal {
    std::string why_not;              // it does not start; empty when it does
    std::vector<RehearsedLife> lives; // the first is the plain one
};

Rehearsal rehearse(const Subject& subject, const std::function<void(std::size_t)>& progress);

} // namespace minihost
