// Makes a long list of steps short: leaves out what is not needed for it to go wrong.

#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <vector>

namespace minihost {

// Indices of steps, rising.
using StepIndices = std::vector<std::size_t>;

// From the steps 0 to `count` - 1, which go wrong, to few of them that still do: leaving out any
// one of those that are left, it no longer went wrong, unless `until` has come before that was
// known. `goes_wrong` tries a list, and is asked about the same one never twice in a row.
StepIndices shrink(std::size_t count, const std::function<bool(const StepIndices&)>& goes_wrong,
                   std::chrono::steady_clock::time_point until);

} // namespace minihost
