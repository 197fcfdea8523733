// Everything that a user can do, as one typed table: the command line, action files, the help and
// the tests all go through it.

#pragma once

#include "minihost/actions/Session.h"

#include <span>
#include <string>
#include <vector>

namespace minihost {

using Words = std::vector<std::string>;

struct Action {
    const char* name;
    const char* arguments; // as the help shows them
    const char* sentence;  // what it does
    int least, greatest;   // how many arguments; greatest -1: any number
    // Throws ActionError, or ControlError.
    void (*run)(Session&, const Words&);
    // Whether it waits, with others like it, to be answered before the next action of another kind.
    bool waits = false;
};

std::span<const Action> actions();

// One action with its arguments, and where it was asked for ("actions.txt:3").
struct Step {
    const Action* action;
    Words arguments;
    std::string place;
};

// Bad usage: an action that is not known, or the wrong number of arguments.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// Finds the action of the first word. Throws UsageError.
Step make_step(const Words& words, const std::string& place);

// Carries it out; throws ActionError with the place and the action's name before the cause.
void run_step(Session& session, const Step& step);

} // namespace minihost
