// The colours of the preview: a dark stage, and what light and distance do to a layer's colour.

#pragma once

#include "minihost/preview/DrawList.h"

#include <cstdint>

namespace minihost::preview {

inline constexpr Colour sky_top{0.075, 0.085, 0.115};
inline constexpr Colour haze{0.235, 0.265, 0.340};
inline constexpr Colour ground{0.112, 0.124, 0.160};
inline constexpr Colour grid_line{0.62, 0.70, 0.88};
inline constexpr Colour highlight{0.36, 0.72, 1.00};
inline constexpr Colour white{1, 1, 1};
inline constexpr Colour ink{0.07, 0.08, 0.11};

// Of a layer that has no colour of its own.
Colour default_colour(int index);
// Hue in turns, saturation and value 0 to 1.
Colour hsv(double hue, double saturation, double value);
std::uint32_t seed_of(const std::string& name);
// The n-th number in [0, 1) that a seed yields.
double chance(std::uint32_t seed, int n);
// How bright a colour looks, 0 to 1.
double luminance(const Colour& colour);

// What a layer's colours become where it stands.
class Tone {
  public:
    Tone(const Plan& plan, const Item& item);
    Colour operator()(const Colour& colour) const;
    double distance() const { return _haze; }

  private:
    double _light = 1, _haze = 0;
};

} // namespace minihost::preview
