// Scene files, read: JSON of the format "minihost scene 1", and nothing else.

#pragma once

#include "minihost/model/Scene.h"
#include "minihost/model/SceneError.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace minihost {

// Sizes are from 1 to this many pixels.
constexpr int max_size = 30000;

// Gets the number of layers read so far, after each.
using ReadProgress = std::function<void(std::size_t)>;

// Reads a scene file; throws SceneError for a file that cannot be read or is no scene.
Scene read_scene(const std::string& path, const ReadProgress& progress = {});

// The same of a text; `file` is the name in the errors.
Scene parse_scene(std::string_view text, const std::string& file,
                  const ReadProgress& progress = {});

// The whole content of a file; throws SceneError with the system's reason.
std::string read_file(const std::string& path);

} // namespace minihost
