// Actions that are raw events at the dialog. They wait until an action of another kind comes, so
// that lists that are open and buttons that are held find what the user does next.

#pragma once

#include "minihost/actions/Session.h"

#include <span>
#include <string>
#include <vector>

namespace minihost {

// Each throws ActionError, or ControlError.
void mouse_action(Session& session, const std::vector<std::string>& words);
void wheel_action(Session& session, const std::vector<std::string>& words);
void key_action(Session& session, const std::vector<std::string>& words);
void type_action(Session& session, const std::vector<std::string>& words);

// The keys that have a name because they write nothing that could stand in a file.
std::span<const char* const> key_names();

} // namespace minihost
