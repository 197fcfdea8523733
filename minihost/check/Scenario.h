// Scenarios: what a user does from loading a plug-in to unloading it, derived from the controls
// that it shows.

#pragma once

#include "minihost/dialog/Controls.h"

#include <functional>
#include <string>
#include <vector>

namespace minihost {

class ControlNames;

// What an action does to the plug-in. Entry and Death are loading and unloading.
enum class Phase { Entry, Open, Idle, Apply, Close, Death };

struct ScenarioAction {
    Phase phase;
    std::string line; // of an action file
};

struct Scenario {
    std::string name;
    std::vector<ScenarioAction> actions;
    bool is_text_variant = false; // differs from another one only in a typed text

    // The first part is loading, then comes a part for each action, the last is unloading.
    std::size_t part_count() const { return actions.size() + 2; }
    Phase phase_of_part(std::size_t part) const;
    std::string name_of_part(std::size_t part) const;
};

// What every plug-in can do: its command is chosen, its panel closed and opened again, with idle
// calls in between.
Scenario plain_scenario();

// Plays these lines and returns the controls as they are then.
using PlayLines = std::function<std::vector<Control>(const std::vector<std::string>&)>;

// All scenarios of a level: plain_scenario() with all buttons pressed; one for each way to change
// one check box, radio button, pop-up or edit; one with all check boxes changed. Every button is
// pressed in each. A control that a check box enables gets that one clicked first.
std::vector<Scenario> scenarios_of(const std::vector<Control>& controls, const ControlNames& names,
                                   const PlayLines& play, int level);

} // namespace minihost
