// Carries out a request, from reading the first file to writing the last one.

#pragma once

#include "minihost/CommandLine.h"

namespace minihost {

// Returns the exit status: 0 for success; 1 if the plug-in or the host reported an error or an
// action was not possible; 2 for a bad scene or bad actions. Messages go to standard error, the
// output of actions to standard output.
int run(const Request& request);

} // namespace minihost
