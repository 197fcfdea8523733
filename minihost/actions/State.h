// The state of a session as one line of JSON.

#pragma once

#include "minihost/actions/Session.h"

#include <string>

namespace minihost {

// With its newline. The menu is updated first, as when a user opens it.
std::string state_line(Session& session);

} // namespace minihost
