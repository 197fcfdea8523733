// Writes scene files with all fields.

#pragma once

#include "minihost/model/Document.h"

#include <string>
#include <string_view>

namespace minihost {

// The text of a scene file, with the names of the undo steps. Doubles have the shortest form that
// reads back exactly.
std::string scene_text(const Document& document);

} // namespace minihost
