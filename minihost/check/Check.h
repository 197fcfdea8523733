// A check of a plug-in. It runs in a child process and returns findings.
//
// Each fault is to be reported by one check alone: a check that disturbs the plug-in (a call fails,
// a suite is missing) reports only kinds of violations that the baseline of the same scenario does
// not have, and leaves out scenarios that crash undisturbed.

#pragma once

#include "minihost/check/Baseline.h"
#include "minihost/check/Child.h"
#include "minihost/check/Findings.h"
#include "minihost/check/Target.h"

#include <string_view>

namespace minihost {

struct CheckContext {
    const Target& target;
    const Baseline& baseline;
    ChildProgress& progress;
};

// A check is skipped if the plug-in cannot do this.
enum class Prerequisite {
    None,
    Loads,
    CompletesRun, // at least one run of the baseline
};

struct Check {
    const char* id; // "group.words-with-hyphens"; never changes
    const char* sentence;
    Prerequisite prerequisite;
    void (*run)(const CheckContext&, Findings&);

    std::string_view group() const {
        const std::string_view all = id;
        return all.substr(0, all.find('.'));
    }
};

} // namespace minihost
