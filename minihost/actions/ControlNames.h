// The names of a plug-in's controls, from a file beside its module ("X.controls.json" beside
// "X.plugin"): a JSON object of names and ids.

#pragma once

#include <map>
#include <optional>
#include <string>

namespace minihost {

class ControlNames {
  public:
    ControlNames() = default;
    // Reads the file of a module, if there is one. Throws SceneError for a bad file.
    static ControlNames beside(const std::string& module_path);

    // The name may be an id in digits.
    std::optional<int> id_of(const std::string& name) const;
    // Empty for an id without a name.
    std::string name_of(int id) const;
    std::string name_or_id(int id) const;

  private:
    std::map<std::string, int> _ids;
};

} // namespace minihost
