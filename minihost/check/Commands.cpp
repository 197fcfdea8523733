// Where a check has found something, and the command that repeats it.

#include "minihost/check/Groups.h"

namespace minihost {

std::string shell_word(const std::string& text) {
    static constexpr const char* plain =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-_./+=:,@";
    if (!text.empty() && text.find_first_not_of(plain) == std::string::npos) return text;
    std::string word = "'";
    for (const char c : text) word += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return word + "'";
}

std::string death_of(const Ending& ending) {
    std::string text = ending.cause + " at \"" + ending.step + "\"";
    for (const std::string& line : ending.said) text += "\n" + line;
    return text;
}

std::string command_of_life(const Subject& subject, const Scenario& scenario,
                            const std::string& options) {
    if (subject.scene_file.empty()) return "";
    std::string command = "printf '%s\\n'";
    for (const ScenarioStep& it : scenario.steps) command += " " + shell_word(it.line);
    command += " | minihost run " + shell_word(subject.scene_file) + " - --plugin " +
               shell_word(subject.plugin);
    return options.empty() ? command : command + " " + options;
}

std::string where(const Subject& subject, const Scenario& scenario, const std::string& options) {
    const std::string command = command_of_life(subject, scenario, options);
    std::string text = (options.empty() ? "with " : options + " with ") + scenario.name;
    if (!command.empty()) text += "; to repeat it: " + command;
    return text;
}

std::string where_counted(const Subject& subject, const Scenario& scenario,
                          const std::string& option) {
    return subject.cut.empty() ? where(subject, scenario, option)
                               : option + " with " + scenario.name;
}

void note_cut(const Subject& subject, Findings& findings) {
    if (!subject.cut.empty()) findings.note(subject.cut);
}

std::string command_of_check(const Subject& subject, const std::string& id) {
    std::string command = "minihost check";
    if (!subject.scene_file.empty()) command += " " + shell_word(subject.scene_file);
    return command + " --plugin " + shell_word(subject.plugin) + " --level " +
           std::to_string(subject.level) + " --seed " + std::to_string(subject.seed) + " --only " +
           id;
}

} // namespace minihost
