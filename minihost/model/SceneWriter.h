// Scene files, written: the format that SceneReader reads, with all fields.

#pragma once

#include "minihost/model/Document.h"

#include <string>
#include <string_view>

namespace minihost {

// The document's scene as a file's text, with the names of its undo steps. Doubles are the shortest
// that read back exactly.
std::string scene_text(const Document& document);

} // namespace minihost
