// Writes scene files with all fields.

#pragma once

#include "minihost/model/Document.h"
#include "minihost/model/JsonWriter.h"

#include <string>

namespace minihost {

// The text of a scene file, with the names of the undo steps. Doubles have the shortest form that
// reads back exactly.
std::string scene_text(const Document& document);

// The member "selection" of a scene: indices, and "other" for an item that is not a layer.
void write_selection(JsonWriter& json, const Scene& scene);

} // namespace minihost
