// The checks: one table of rows that the command line, the runner, the report and the tests all go
// through. A check has an id that never changes and a sentence that says what holds when it passes;
// it runs in a child process and puts down what it finds.
//
// To add one: a function in the file of its group, declared in Groups.h, and a row in Checks.cpp.
//
// So that one fault is told by one check alone: a check that interferes (a call fails, a suite is
// missing) tells only faults of kinds that the same scenario does not have without it, and
// scenarios that crash by themselves are left out.

#pragma once

#include "minihost/check/Child.h"
#include "minihost/check/Findings.h"
#include "minihost/check/Rehearsal.h"
#include "minihost/check/Subject.h"

#include <span>
#include <string_view>

namespace minihost {

struct CheckContext {
    const Subject& subject;
    const Rehearsal& rehearsal;
    Place& place; // to be entered at every step; its runs are the progress
};

// What a plug-in must be able to do before a check makes sense; it is skipped otherwise.
enum class Needs {
    Nothing,
    Start, // it starts
    Life,  // and lives through at least one scenario
};

struct Check {
    const char* id; // "group.words-with-hyphens"
    const char* sentence;
    Needs needs;
    void (*run)(const CheckContext&, Findings&);

    std::string_view group() const {
        const std::string_view all = id;
        return all.substr(0, all.find('.'));
    }
};

std::span<const Check> checks();
// Null when there is none.
const Check* find_check(std::string_view id);

} // namespace minihost
