// The names of all layers, and the name for the next duplicate of a layer: the first of "Card 2",
// "Card 3", ... that is free.

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace minihost {

class LayerNames {
  public:
    // A name added several times is free when it is removed as often.
    void add(const std::string& name);
    void remove(const std::string& name);

    // The first free one of "STEM 2", "STEM 3", ...; the stem of "Card 7" is "Card". Amortised O(1)
    // for many duplicates. Does not add the name.
    std::string for_duplicate_of(const std::string& name);

  private:
    std::unordered_map<std::string, std::uint32_t> _uses;
    // By stem: no smaller number from 2 is free.
    std::unordered_map<std::string, std::uint64_t> _first_maybe_free;
};

} // namespace minihost
