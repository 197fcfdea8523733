// Why a file is no scene, or could not be read or written: one line that names file and place.

#pragma once

#include <stdexcept>
#include <string>

namespace minihost {

// Names and texts of a file may hold line ends; a message stays one line: "\u000a".
inline std::string as_one_line(const std::string& message) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string line;
    for (const char c : message) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= ' ' && code != 0x7f)
            line += c;
        else
            line += {'\\', 'u', '0', '0', digits[code >> 4], digits[code & 15]};
    }
    return line;
}

// what() is the whole line, without its end: "scene.json: layers[3].source.width: must be ...".
class SceneError : public std::runtime_error {
  public:
    SceneError(const std::string& file, const std::string& place, const std::string& cause)
        : std::runtime_error(
              as_one_line(file + ": " + (place.empty() ? "" : place + ": ") + cause)) {}
};

// An output file that could not be written; what was there before is untouched.
class OutputError : public std::runtime_error {
  public:
    OutputError(const std::string& file, const std::string& cause)
        : std::runtime_error(file + ": " + cause) {}
};

} // namespace minihost
