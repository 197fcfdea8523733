// A user who does anything that the plug-in's dialog and the host allow. What comes next is drawn
// from a seed and from what the user sees.

#pragma once

#include "minihost/actions/Session.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace minihost {

// Lines of an action file that belong together.
using Step = std::vector<std::string>;

class RandomUser {
  public:
    enum class Input {
        Actions, // sets controls, presses buttons, edits the composition
        Events,  // mostly mouse, wheel, keys and typing
    };

    RandomUser(std::uint64_t seed, Input input) : _random(seed), _input(input) {}

    // A step that may remove layers or change the active item ends with an idle call, as a host
    // makes one before a user can press a button.
    Step next(Session& session);

  private:
    // Unlike the library's distributions, the same everywhere.
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(_random() % count); }
    bool chance(std::size_t percent) { return below(100) < percent; }
    template <typename Items>
    std::string any(const Items& items) {
        return items[below(std::size(items))];
    }
    std::string point(const std::vector<Control>& controls);
    std::string modifiers();

    Step edit_composition(const std::vector<const Layer*>& layers);
    Step open_or_close();
    Step use_control(const std::vector<Control>& controls, const ControlNames& names);
    Step post_events(const std::vector<Control>& controls);

    std::mt19937_64 _random;
    Input _input;
};

} // namespace minihost
