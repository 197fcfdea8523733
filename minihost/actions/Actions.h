// The table of everything that a user can do, for the command line, action files, the window and
// the help.

#pragma once

#include "minihost/actions/Session.h"

#include <span>
#include <string>
#include <vector>

namespace minihost {

using Words = std::vector<std::string>;

struct Action {
    const char* name;
    const char* arguments;            // as the help shows them
    const char* sentence;             // what it does
    int min_arguments, max_arguments; // max_arguments -1: any number
    // Throws ActionError or ControlError.
    void (*run)(Session&, const Words&);
    // Whether it only posts an event. Events are handled before the next action of another kind.
    bool posts_event = false;
};

std::span<const Action> actions();

// An action with its arguments, and where it comes from ("actions.txt:3").
struct ParsedAction {
    const Action* action;
    Words arguments;
    std::string location;
};

// An unknown action, or the wrong number of arguments.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// The first word names the action. Throws UsageError.
ParsedAction parse_action(const Words& words, const std::string& location);

// Throws ActionError with location, action name and cause.
void run_action(Session& session, const ParsedAction& action);

} // namespace minihost
