#include "minihost/check/Scenario.h"

#include "minihost/actions/ActionFile.h"
#include "minihost/actions/ControlNames.h"

#include <algorithm>
#include <map>
#include <set>

namespace minihost {

namespace {

constexpr int level_of_all_modes = 4, level_of_more_texts = 6;

// What somebody may type into a field.
constexpr const char* texts[] = {"7.5", "0", "-3", "250", "x", ""};

using Lines = std::vector<std::string>;

struct Mode {
    std::string name;
    Lines lines;
    bool is_text = false;
};

class Deriver {
  public:
    Deriver(const std::vector<Control>& controls, const ControlNames& names, int level)
        : _names(names), _level(level) {
        for (const Control& it : controls)
            if (it.id) _controls.push_back(it);
    }

    // Which check box must be on before a control is enabled.
    void find_keys(const TryLines& try_lines) {
        for (const Control& it : _controls) {
            if (it.kind != "check box" || !it.enabled) continue;
            for (const Control& then : try_lines({otherwise(it)}))
                if (then.id && then.enabled && is_disabled(*then.id))
                    _keys.try_emplace(*then.id, otherwise(it));
            try_lines({set(it, std::get<bool>(it.value) ? "on" : "off")});
        }
    }

    std::vector<Mode> modes() const {
        std::vector<Mode> modes;
        std::set<std::string> kinds;
        Mode everything{"everything", {}};
        for (const Control& it : _controls) {
            const std::vector<std::string> lines = lines_of(it);
            if (it.kind == "check box")
                for (const std::string& line : lines) everything.lines.push_back(line);
            // On low levels the first of a kind stands for all.
            if (_level < level_of_all_modes && !kinds.insert(it.kind).second) continue;
            for (const std::string& line : lines)
                modes.push_back({line.substr(4), with_key(it, line), it.kind == "edit"});
        }
        if (!everything.lines.empty()) modes.push_back(std::move(everything));
        return modes;
    }

    std::vector<ScenarioStep> presses() const {
        std::vector<ScenarioStep> steps;
        for (const Control& it : _controls) {
            if (it.kind != "button") continue;
            steps.push_back({Phase::Apply, "click " + quote_word(name(it))});
            steps.push_back({Phase::Idle, "idle"});
        }
        return steps;
    }

  private:
    std::string name(const Control& it) const {
        const std::string name = _names.name_of(*it.id);
        return name.empty() ? std::to_string(*it.id) : name;
    }
    std::string set(const Control& it, const std::string& value) const {
        return "set " + quote_word(name(it) + "=" + value);
    }
    std::string otherwise(const Control& it) const {
        return set(it, std::get<bool>(it.value) ? "off" : "on");
    }
    bool is_disabled(int id) const {
        return std::any_of(_controls.begin(), _controls.end(),
                           [&](const Control& it) { return *it.id == id && !it.enabled; });
    }

    // Each of the ways in which it can be set otherwise.
    Lines lines_of(const Control& it) const {
        Lines lines;
        if (it.kind == "check box") lines.push_back(otherwise(it));
        if (it.kind == "radio button") lines.push_back(set(it, "on"));
        if (it.kind == "pop-up" && it.entries)
            for (std::size_t i = 0; i < it.entries->size(); ++i)
                lines.push_back(set(it, "#" + std::to_string(i)));
        if (it.kind == "edit")
            for (const char* text : texts) {
                lines.push_back(set(it, text));
                if (_level < level_of_more_texts) break;
            }
        return lines;
    }
    Lines with_key(const Control& it, const std::string& line) const {
        const auto key = _keys.find(*it.id);
        return key == _keys.end() ? Lines{line} : Lines{key->second, line};
    }

    const ControlNames& _names;
    int _level;
    std::vector<Control> _controls;
    std::map<int, std::string> _keys;
};

Scenario life_with(const std::string& name, const std::vector<ScenarioStep>& middle) {
    Scenario scenario{name, {{Phase::Open, "menu"}, {Phase::Idle, "idle"}}};
    scenario.steps.insert(scenario.steps.end(), middle.begin(), middle.end());
    return scenario;
}

} // namespace

Scenario plain_life() {
    return life_with("life", {{Phase::Close, "menu"},
                              {Phase::Open, "menu"},
                              {Phase::Idle, "idle"},
                              {Phase::Close, "close-panel"},
                              {Phase::Idle, "idle"},
                              {Phase::Open, "menu"},
                              {Phase::Idle, "idle"}});
}

std::vector<Scenario> scenarios_of(const std::vector<Control>& controls, const ControlNames& names,
                                   const TryLines& try_lines, int level) {
    Deriver deriver(controls, names, level);
    deriver.find_keys(try_lines);
    const std::vector<ScenarioStep> presses = deriver.presses();

    std::vector<Scenario> scenarios{plain_life()};
    if (!presses.empty()) {
        auto& steps = scenarios[0].steps;
        steps.insert(steps.begin() + 2, presses.begin(), presses.end());
        steps.insert(steps.end(), presses.begin(), presses.end());
    }
    for (const Mode& mode : deriver.modes()) {
        Scenario scenario = life_with(mode.name, {});
        scenario.is_mode = !mode.is_text;
        for (const std::string& line : mode.lines) scenario.steps.push_back({Phase::Apply, line});
        scenario.steps.push_back({Phase::Idle, "idle"});
        scenario.steps.insert(scenario.steps.end(), presses.begin(), presses.end());
        scenarios.push_back(std::move(scenario));
    }
    return scenarios;
}

} // namespace minihost
