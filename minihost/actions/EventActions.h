// Actions that post events to the dialog. The events are handled together before the next action of
// another kind, as an open menu or a held button needs the events that follow.

#pragma once

#include "minihost/actions/Session.h"

#include <span>
#include <string>
#include <vector>

namespace minihost {

// Each throws ActionError or ControlError.
void mouse_action(Session& session, const std::vector<std::string>& words);
void wheel_action(Session& session, const std::vector<std::string>& words);
void key_action(Session& session, const std::vector<std::string>& words);
void type_action(Session& session, const std::vector<std::string>& words);

// A key that has no printable character.
struct NamedKey {
    const char* name;
    char16_t character;
};
std::span<const NamedKey> keys_with_names();

} // namespace minihost
