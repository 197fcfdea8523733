// A user who does anything that the plug-in's dialog and the host let him do: what comes next is
// drawn from a seed and from what is to be seen at this moment.

#pragma once

#include "minihost/actions/Session.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace minihost {

// Lines of an action file that belong together.
using Deed = std::vector<std::string>;

class RandomUser {
  public:
    enum class Way {
        Actions, // sets controls, presses buttons, edits the composition
        Events,  // mostly mouse, wheel, keys and typing
    };

    RandomUser(std::uint64_t seed, Way way) : _random(seed), _way(way) {}

    // What he does next. A deed that may take layers away, or bring another composition before the
    // user, ends with an idle call, as a host makes one before anybody can press a button.
    Deed next(Session& session);

  private:
    // The library's distributions differ between libraries; this does not.
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(_random() % count); }
    bool chance(std::size_t percent) { return below(100) < percent; }
    template <typename Items>
    std::string any(const Items& items) {
        return items[below(std::size(items))];
    }
    std::string point(const std::vector<Control>& controls);
    std::string modifiers();

    Deed edit(const std::vector<const Layer*>& layers);
    Deed open_or_close();
    Deed use(const std::vector<Control>& controls, const ControlNames& names);
    Deed use_hands(const std::vector<Control>& controls);

    std::mt19937_64 _random;
    Way _way;
};

} // namespace minihost
