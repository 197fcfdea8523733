// The state of a session as one line of JSON, for whoever plays the host from outside.

#pragma once

#include "minihost/actions/Session.h"

#include <string>

namespace minihost {

// With its end. The menu is updated first, as when a user opens it.
std::string state_line(Session& session);

} // namespace minihost
