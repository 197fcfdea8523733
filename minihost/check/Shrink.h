// Shortens a list of steps that fails to the steps that are necessary for it.

#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <vector>

namespace minihost {

// Indices of steps, rising.
using StepIndices = std::vector<std::size_t>;

// From the steps 0 to `count` - 1, which fail, to a list that fails, but no longer without any one
// of its steps. At the deadline it returns what it has so far. `fails` runs a list, never the same
// one twice in a row.
StepIndices shrink(std::size_t count, const std::function<bool(const StepIndices&)>& fails,
                   std::chrono::steady_clock::time_point deadline);

} // namespace minihost
