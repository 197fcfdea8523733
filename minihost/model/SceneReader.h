// Reads scene files: JSON of the format "minihost scene 1".

#pragma once

#include "minihost/model/Errors.h"
#include "minihost/model/Scene.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace minihost {

// The greatest width and height, in pixels.
constexpr int max_size = 30000;

// Receives the number of layers so far, after each.
using ReadProgress = std::function<void(std::size_t)>;

// Throws SceneError for a file that cannot be read or is not a valid scene.
Scene read_scene(const std::string& path, const ReadProgress& progress = {});

// The same for a text; `file` is its name in errors.
Scene parse_scene(std::string_view text, const std::string& file,
                  const ReadProgress& progress = {});

// The whole content. Throws SceneError with the system's reason.
std::string read_file(const std::string& path);

} // namespace minihost
