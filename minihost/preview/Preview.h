// The preview: a picture of the composition as its first camera sees it (a default camera if it has
// none), to see what an arrangement looks like.

#pragma once

#include "minihost/model/Scene.h"

#include <string>

namespace minihost {

// For --help: what the picture shows and how large it is.
inline constexpr const char* preview_help =
    "picture of the composition as its first camera sees it (a default camera if it has none); "
    ".png or .svg. It has the composition's shape, its longer side 960 points long";

enum class PreviewFormat { Png, Svg };

// Pixels per point of a picture.
inline constexpr double least_preview_scale = 0.1, greatest_preview_scale = 16;

// The bytes of a picture of the composition at its current time, of the composition's shape, its
// longer side 960 · scale pixels long. The same scene gives the same bytes. Throws
// std::runtime_error for a scale out of range, or if memory runs out.
std::string encode_preview(const Scene& scene, PreviewFormat format, double scale);

// Writes the picture to a file, whole or not at all; the extension (.png or .svg, in any case)
// chooses the format. Throws std::runtime_error, with the path in its text, for any other
// extension, and as above; OutputError for a path that cannot be written.
void write_preview(const Scene& scene, const std::string& path, double scale);

} // namespace minihost
