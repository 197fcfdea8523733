// Times between host and plug-in: the host hands out 600ths of a second and accepts any scale.

#pragma once

#include "minihost/suites/Handles.h"

namespace minihost {

constexpr AEGP_LTimeMode layer_time_mode = 0;

inline bool is_time_mode(AEGP_LTimeMode mode) {
    return mode == layer_time_mode || mode == AEGP_LTimeMode_CompTime;
}

inline A_Time host_time(double seconds) {
    return {to_ticks(seconds), static_cast<A_u_long>(ticks_per_second)};
}

// Seconds of the composition. Throws Misuse for a scale of 0.
inline double seconds_of(const A_Time& time, AEGP_LTimeMode mode, const Layer& layer) {
    if (time.scale == 0) throw Misuse("a time with the scale 0");
    const double seconds = static_cast<double>(time.value) / time.scale;
    return mode == AEGP_LTimeMode_CompTime ? seconds : seconds + layer.start;
}

} // namespace minihost
