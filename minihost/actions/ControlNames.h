// The names of a plug-in's controls, from a table beside its module ("X.controls.json" beside
// "X.plugin"): an object of names and ids.

#pragma once

#include <map>
#include <optional>
#include <string>

namespace minihost {

class ControlNames {
  public:
    ControlNames() = default;
    // Of a module; a module without a table has no names. Throws SceneError for a table that is
    // none.
    static ControlNames beside(const std::string& module_path);

    // By name, or by the id itself in digits.
    std::optional<int> id_of(const std::string& name) const;
    // Empty when the id has none.
    std::string name_of(int id) const;

  private:
    std::map<std::string, int> _ids;
    std::map<int, std::string> _names;
};

} // namespace minihost
