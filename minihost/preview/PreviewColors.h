// The colours of the preview, and arithmetic with them.

#pragma once

#include "minihost/preview/Canvas.h"

namespace minihost::preview {

inline constexpr Rgba sky_top{0.075, 0.085, 0.115};
inline constexpr Rgba haze{0.235, 0.265, 0.340};
inline constexpr Rgba ground{0.112, 0.124, 0.160};
inline constexpr Rgba grid_line{0.62, 0.70, 0.88};
inline constexpr Rgba highlight{0.36, 0.72, 1.00};
inline constexpr Rgba white{1, 1, 1};
inline constexpr Rgba ink{0.07, 0.08, 0.11};

// For a layer without a colour of its own.
Rgba default_color(int index);
// Hue in turns, saturation and value 0 to 1.
Rgba hsv(double hue, double saturation, double value);

// `from` at t = 0, `to` at t = 1.
Rgba mix(const Rgba& from, const Rgba& to, double t);
Rgba with_alpha(const Rgba& color, double alpha);
// How bright a colour looks, 0 to 1.
double luminance(const Rgba& color);

} // namespace minihost::preview
