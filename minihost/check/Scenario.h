// Scenarios: what a user does in one life of a plug-in, as lines of an action file, made from what
// the plug-in shows and from nothing else.

#pragma once

#include "minihost/dialog/Controls.h"

#include <functional>
#include <string>
#include <vector>

namespace minihost {

class ControlNames;

// What a step is to the plug-in. Entry and death are before and after all steps.
enum class Phase { Entry, Open, Idle, Apply, Close, Death };

struct ScenarioStep {
    Phase phase;
    std::string line; // of an action file
};

struct Scenario {
    std::string name;
    std::vector<ScenarioStep> steps;
    bool is_mode = true; // false when it differs from another one in a typed text alone
};

// The life that every plug-in can have: its command is chosen, its panel closed and opened again,
// the host idle in between.
Scenario plain_life();

// Sets controls with these lines, and gives the controls as they are then.
using TryLines = std::function<std::vector<Control>(const std::vector<std::string>&)>;

// All of `level` for a dialog with these controls: plain_life() with all buttons pressed; a life
// for each way to set one check box, radio button, pop-up entry or edit otherwise, and one with all
// check boxes so; every push button pressed in each. A control that is disabled until a check box
// is on gets that one first.
std::vector<Scenario> scenarios_of(const std::vector<Control>& controls, const ControlNames& names,
                                   const TryLines& try_lines, int level);

} // namespace minihost
