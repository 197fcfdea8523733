// Shortens a failing list of steps to those that it needs to fail.

#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <vector>

namespace minihost {

// Indices of steps, rising.
using StepIndices = std::vector<std::size_t>;

// Shortens the steps 0 to `count` - 1, which fail, until leaving out any single one makes them
// pass, or until the deadline. `fails` runs a list, never the same one twice in a row.
StepIndices shrink(std::size_t count, const std::function<bool(const StepIndices&)>& fails,
                   std::chrono::steady_clock::time_point deadline);

} // namespace minihost
