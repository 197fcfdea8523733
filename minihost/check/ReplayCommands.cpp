#include "minihost/check/ReplayCommands.h"

namespace minihost {

namespace {

// Empty for the built-in scene.
std::string replay_command(const Target& target, const Scenario& scenario,
                           const std::string& options) {
    if (target.scene_file.empty()) return "";
    std::string command = "printf '%s\\n'";
    for (const ScenarioAction& it : scenario.actions) command += " " + shell_quote(it.line);
    command += " | minihost run " + shell_quote(target.scene_file) + " - --plugin " +
               shell_quote(target.plugin);
    return options.empty() ? command : command + " " + options;
}

} // namespace

std::string shell_quote(const std::string& text) {
    static constexpr const char* plain =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_./+=:,@";
    if (!text.empty() && text.find_first_not_of(plain) == std::string::npos) return text;
    std::string word = "'";
    for (const char c : text) word += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return word + "'";
}

std::string replay_hint(const Target& target, const Scenario& scenario,
                        const std::string& options) {
    const std::string command = replay_command(target, scenario, options);
    std::string text = (options.empty() ? "with " : options + " with ") + scenario.name;
    if (!command.empty()) text += "; to repeat it: " + command;
    return text;
}

std::string counted_replay_hint(const Target& target, const Scenario& scenario,
                                const std::string& option) {
    return target.small_scene_note.empty() ? replay_hint(target, scenario, option)
                                           : option + " with " + scenario.name;
}

std::string check_command(const Target& target, const std::string& id) {
    std::string command = "minihost check";
    if (!target.scene_file.empty()) command += " " + shell_quote(target.scene_file);
    return command + " --plugin " + shell_quote(target.plugin) + " --level " +
           std::to_string(target.level) + " --seed " + std::to_string(target.seed) + " --only " +
           id;
}

} // namespace minihost
