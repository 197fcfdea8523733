// The baseline: every scenario run once, undisturbed. Checks compare with it, so that they report
// only what they cause themselves.

#pragma once

#include "minihost/check/Child.h"
#include "minihost/check/Scenario.h"
#include "minihost/suites/Violation.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace minihost {

struct Target;

struct BaselineRun {
    Scenario scenario;
    ChildResult result;
    std::vector<Violation> violations; // empty for a run that was not completed

    bool is_complete() const { return result.kind == ChildResult::Kind::Done; }
    std::set<ViolationKind> kinds() const;
};

struct Baseline {
    std::string load_error;        // empty if the plug-in loads
    std::vector<BaselineRun> runs; // the first is of the plain scenario
};

// `progress` receives the number of runs so far.
Baseline record_baseline(const Target& target, const std::function<void(std::size_t)>& progress);

} // namespace minihost
