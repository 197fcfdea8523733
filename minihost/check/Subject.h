// Where the scene of the checks comes from.

#pragma once

#include "minihost/check/Check.h"

namespace minihost {

// A composition with something of everything: 3D solids, a text, a shape and a camera selected, a
// layer in the plane, a light, keys.
std::string built_in_scene();

// Fills in the scenes: from a file, or the built-in one when `scene_file` is empty. Throws
// SceneError for a bad file.
void read_scenes(Subject& subject);

} // namespace minihost
