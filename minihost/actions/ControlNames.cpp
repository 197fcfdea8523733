#include "minihost/actions/ControlNames.h"

#include "minihost/model/Numbers.h"
#include "minihost/model/SceneReader.h"

#include <climits>
#include <filesystem>
#include <nlohmann/json.hpp>

namespace minihost {

ControlNames ControlNames::beside(const std::string& module_path) {
    const std::string path =
        std::filesystem::path(module_path).replace_extension("controls.json").string();
    ControlNames names;
    std::error_code unreadable;
    if (!std::filesystem::exists(path, unreadable)) return names;
    const auto table = nlohmann::json::parse(read_file(path), nullptr, false);
    if (!table.is_object()) throw SceneError(path, "", "must be an object of names and ids");
    for (const auto& [name, id] : table.items()) {
        if (!id.is_number_integer() || id < 1 || id > INT_MAX)
            throw SceneError(path, name, "must be an id, a whole number from 1");
        names._ids[name] = id;
    }
    return names;
}

std::optional<int> ControlNames::id_of(const std::string& name) const {
    if (const auto found = _ids.find(name); found != _ids.end()) return found->second;
    const auto id = parse_number<int>(name);
    return id && *id >= 1 ? id : std::nullopt;
}

std::string ControlNames::name_of(int id) const {
    for (const auto& [name, it] : _ids)
        if (it == id) return name;
    return "";
}

std::string ControlNames::name_or_id(int id) const {
    const std::string name = name_of(id);
    return name.empty() ? std::to_string(id) : name;
}

} // namespace minihost
