// A request, carried out from the first file read to the last one written.

#pragma once

#include "minihost/CommandLine.h"

namespace minihost {

// The exit status: 0 done; 1 the plug-in or the host reported an error, or an action could not be
// carried out; 2 a bad scene, or bad actions. Messages go to standard error, what actions print to
// standard output.
int run(const Request& request);

} // namespace minihost
