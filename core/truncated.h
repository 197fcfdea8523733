// Numbers from elsewhere, which may be too large for an int or no number at all.

#pragma once

#include <algorithm>
#include <limits>

// `value` truncated toward zero; beyond the range of int the nearest int, 0 for NaN.
inline int truncated(double value) {
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return value == value ? static_cast<int>(std::clamp(value, lowest, highest)) : 0;
}
