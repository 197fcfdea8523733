// What the window itself tells and asks, in alert panels that do not count as the plug-in's.

#pragma once

#include <string>

namespace minihost {

// What could not be done, and why.
void tell(const std::string& what, const std::string& why);

enum class SaveAnswer { Save, Discard, Cancel };
SaveAnswer ask_to_save(const std::string& file_name);

// Whether a file that is there may be replaced.
bool ask_to_replace(const std::string& file_name);

// Whether one of these, or the file panel, is on the screen.
bool is_asking();

// As long as it lives, is_asking() is true.
class Asking {
  public:
    Asking();
    ~Asking();
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;
};

} // namespace minihost
