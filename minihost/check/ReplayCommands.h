// Command lines that repeat what a check has found.

#pragma once

#include "minihost/check/Scenario.h"
#include "minihost/check/Target.h"

#include <string>

namespace minihost {

// A word for the shell, quoted if necessary.
std::string shell_quote(const std::string& text);

// "--fail ... with orientation.random=on; to repeat it: ...". `options` are of the command, and may
// be empty. There is no command for the built-in scene.
std::string replay_hint(const Target& target, const Scenario& scenario, const std::string& options);
// The same for an option that counts calls or results: there is no command either if those were
// counted in the small scene.
std::string counted_replay_hint(const Target& target, const Scenario& scenario,
                                const std::string& option);
// The command that repeats a check.
std::string check_command(const Target& target, const std::string& id);

} // namespace minihost
