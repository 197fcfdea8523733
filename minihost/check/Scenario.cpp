#include "minihost/check/Scenario.h"

#include "minihost/actions/ActionFile.h"
#include "minihost/actions/ControlNames.h"

#include <algorithm>
#include <map>
#include <set>

namespace minihost {

namespace {

constexpr int all_variants_level = 4, more_texts_level = 6;

// What a user may type into a field.
constexpr const char* texts[] = {"7.5", "0", "-3", "250", "x", ""};

using Lines = std::vector<std::string>;

// One way to change the controls.
struct Variant {
    std::string name;
    Lines lines;
    bool is_text = false;
};

class ScenarioBuilder {
  public:
    ScenarioBuilder(const std::vector<Control>& controls, const ControlNames& names, int level)
        : _names(names), _level(level) {
        for (const Control& it : controls)
            if (it.id) _controls.push_back(it);
    }

    // Finds the check box that enables a control, for each control that is disabled.
    void find_enablers(const PlayLines& play) {
        for (const Control& it : _controls) {
            if (it.kind != "check box" || !it.enabled) continue;
            for (const Control& then : play({toggle(it)}))
                if (then.id && then.enabled && is_disabled(*then.id))
                    _enablers.try_emplace(*then.id, toggle(it));
            play({set(it, std::get<bool>(it.value) ? "on" : "off")});
        }
    }

    std::vector<Variant> variants() const {
        std::vector<Variant> variants;
        std::set<std::string> kinds;
        Variant everything{"everything", {}};
        for (const Control& it : _controls) {
            const std::vector<std::string> lines = lines_of(it);
            if (it.kind == "check box")
                for (const std::string& line : lines) everything.lines.push_back(line);
            // On low levels the first of a kind stands for all.
            if (_level < all_variants_level && !kinds.insert(it.kind).second) continue;
            for (const std::string& line : lines)
                variants.push_back({line.substr(4), with_enabler(it, line), it.kind == "edit"});
        }
        if (!everything.lines.empty()) variants.push_back(std::move(everything));
        return variants;
    }

    std::vector<ScenarioAction> button_presses() const {
        std::vector<ScenarioAction> actions;
        for (const Control& it : _controls) {
            if (it.kind != "button") continue;
            actions.push_back({Phase::Apply, "click " + quote_word(name(it))});
            actions.push_back({Phase::Idle, "idle"});
        }
        return actions;
    }

  private:
    std::string name(const Control& it) const { return _names.name_or_id(*it.id); }
    std::string set(const Control& it, const std::string& value) const {
        return "set " + quote_word(name(it) + "=" + value);
    }
    std::string toggle(const Control& it) const {
        return set(it, std::get<bool>(it.value) ? "off" : "on");
    }
    bool is_disabled(int id) const {
        return std::any_of(_controls.begin(), _controls.end(),
                           [&](const Control& it) { return *it.id == id && !it.enabled; });
    }

    // Each way to change it.
    Lines lines_of(const Control& it) const {
        Lines lines;
        if (it.kind == "check box") lines.push_back(toggle(it));
        if (it.kind == "radio button") lines.push_back(set(it, "on"));
        if (it.kind == "pop-up" && it.entries)
            for (std::size_t i = 0; i < it.entries->size(); ++i)
                lines.push_back(set(it, "#" + std::to_string(i)));
        if (it.kind == "edit")
            for (const char* text : texts) {
                lines.push_back(set(it, text));
                if (_level < more_texts_level) break;
            }
        return lines;
    }
    Lines with_enabler(const Control& it, const std::string& line) const {
        const auto enabler = _enablers.find(*it.id);
        return enabler == _enablers.end() ? Lines{line} : Lines{enabler->second, line};
    }

    const ControlNames& _names;
    int _level;
    std::vector<Control> _controls;
    std::map<int, std::string> _enablers; // lines by control
};

Scenario scenario_with(const std::string& name, const std::vector<ScenarioAction>& middle) {
    Scenario scenario{name, {{Phase::Open, "menu"}, {Phase::Idle, "idle"}}};
    scenario.actions.insert(scenario.actions.end(), middle.begin(), middle.end());
    return scenario;
}

} // namespace

Phase Scenario::phase_of_part(std::size_t part) const {
    if (part == 0) return Phase::Entry;
    return part > actions.size() ? Phase::Death : actions[part - 1].phase;
}

std::string Scenario::name_of_part(std::size_t part) const {
    if (part == 0) return "load";
    return part > actions.size() ? "unload" : actions[part - 1].line;
}

Scenario plain_scenario() {
    return scenario_with("life", {{Phase::Close, "menu"},
                                  {Phase::Open, "menu"},
                                  {Phase::Idle, "idle"},
                                  {Phase::Close, "close-panel"},
                                  {Phase::Idle, "idle"},
                                  {Phase::Open, "menu"},
                                  {Phase::Idle, "idle"}});
}

std::vector<Scenario> scenarios_of(const std::vector<Control>& controls, const ControlNames& names,
                                   const PlayLines& play, int level) {
    ScenarioBuilder builder(controls, names, level);
    builder.find_enablers(play);
    const std::vector<ScenarioAction> presses = builder.button_presses();

    std::vector<Scenario> scenarios{plain_scenario()};
    if (!presses.empty()) {
        auto& actions = scenarios[0].actions;
        actions.insert(actions.begin() + 2, presses.begin(), presses.end());
        actions.insert(actions.end(), presses.begin(), presses.end());
    }
    for (const Variant& variant : builder.variants()) {
        Scenario scenario = scenario_with(variant.name, {});
        scenario.is_text_variant = variant.is_text;
        for (const std::string& line : variant.lines)
            scenario.actions.push_back({Phase::Apply, line});
        scenario.actions.push_back({Phase::Idle, "idle"});
        scenario.actions.insert(scenario.actions.end(), presses.begin(), presses.end());
        scenarios.push_back(std::move(scenario));
    }
    return scenarios;
}

} // namespace minihost
