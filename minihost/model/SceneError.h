// Why a file is no scene, or could not be read or written: one line that names file and place.

#pragma once

#include <stdexcept>
#include <string>

namespace minihost {

// what() is the whole line, without its end: "scene.json: layers[3].source.width: must be ...".
class SceneError : public std::runtime_error {
  public:
    SceneError(const std::string& file, const std::string& place, const std::string& cause)
        : std::runtime_error(file + ": " + (place.empty() ? "" : place + ": ") + cause) {}
};

// An output file that could not be written; what was there before is untouched.
class OutputError : public std::runtime_error {
  public:
    OutputError(const std::string& file, const std::string& cause)
        : std::runtime_error(file + ": " + cause) {}
};

} // namespace minihost
