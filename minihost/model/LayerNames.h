// Which names of layers are taken, and the name that the next duplicate of a layer gets: "Card 2"
// for "Card", then "Card 3", and so on to the first that is free.

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace minihost {

class LayerNames {
  public:
    // Names may be taken more than once and are free when each taking has been given back.
    void take(const std::string& name);
    void give_back(const std::string& name);

    // The first free of "STEM 2", "STEM 3", ...; the stem of "Card 7" is "Card". Amortised O(1)
    // over a run of duplicates. Takes nothing.
    std::string for_duplicate_of(const std::string& name);

  private:
    std::unordered_map<std::string, std::uint32_t> _taken;
    // By stem: every smaller number from 2 is taken.
    std::unordered_map<std::string, std::uint64_t> _first_maybe_free;
};

} // namespace minihost
