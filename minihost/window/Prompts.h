// What the window itself reports and asks, in alert panels that do not count as the plug-in's.

#pragma once

#include <string>

namespace minihost {

// What could not be done, and why.
void show_error(const std::string& what, const std::string& why);

enum class SaveAnswer { Save, Discard, Cancel };
SaveAnswer ask_to_save(const std::string& file_name);

// Whether an existing file may be replaced.
bool ask_to_replace(const std::string& file_name);

// Whether one of these, or the file panel, is on the screen.
bool prompt_is_open();

// Makes prompt_is_open() true for as long as it lives.
class OpenPrompt {
  public:
    OpenPrompt();
    ~OpenPrompt();
    OpenPrompt(const OpenPrompt&) = delete;
    OpenPrompt& operator=(const OpenPrompt&) = delete;
};

} // namespace minihost
