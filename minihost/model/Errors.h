// Errors of files. Every message is one line.

#pragma once

#include <stdexcept>
#include <string>

namespace minihost {

// A line end becomes "\u000a".
inline std::string escape_control_characters(const std::string& text) {
    static constexpr char digits[] = "0123456789abcdef";
    std::string escaped;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= ' ' && code != 0x7f)
            escaped += c;
        else
            escaped += {'\\', 'u', '0', '0', digits[code >> 4], digits[code & 15]};
    }
    return escaped;
}

// A file that cannot be read or is not a valid scene. what() is the whole message:
// "scene.json: layers[3].source.width: must be ...".
class SceneError : public std::runtime_error {
  public:
    // `path` is that of a value in the file, and may be empty.
    SceneError(const std::string& file, const std::string& path, const std::string& cause)
        : std::runtime_error(
              escape_control_characters(file + ": " + (path.empty() ? "" : path + ": ") + cause)) {}
};

// An output file that cannot be written. A file that was there is unchanged.
class OutputError : public std::runtime_error {
  public:
    OutputError(const std::string& file, const std::string& cause)
        : std::runtime_error(file + ": " + cause) {}
};

} // namespace minihost
