// Asks for a file: a modal window with the path to type in and the files of its folder to choose
// from, all of it usable by keys.

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace minihost {

struct FileQuestion {
    std::string title, button;           // "Open a Scene", "Open"
    std::string start;                   // the path that stands there at first
    std::vector<std::string> extensions; // of the files that are listed, such as ".json"
    // Else a file that is there is asked about, and a name without extension gets the first.
    bool must_exist = false;
};

// The path, or nothing when the user takes back the wish.
std::optional<std::string> ask_file(const FileQuestion& question);

} // namespace minihost
