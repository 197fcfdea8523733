// Asks for a file: a modal window with the path to type in and the files of its folder to choose
// from, all of it usable by keys.

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace minihost {

struct FilePanelOptions {
    std::string title, button;           // "Open a Scene", "Open"
    std::string start;                   // the path at first
    std::vector<std::string> extensions; // of the files that are listed, such as ".json"
    // Otherwise an existing file is asked about, and a name without extension gets the first.
    bool must_exist = false;
};

// The path, or nothing if the user cancels.
std::optional<std::string> run_file_panel(const FilePanelOptions& options);

} // namespace minihost
