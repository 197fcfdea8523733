// Colours, seeds and tones.

#include "minihost/preview/PreviewColors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace minihost::preview {

namespace {

constexpr std::array<Colour, 12> wheel{{{0.91, 0.36, 0.34},
                                        {0.96, 0.58, 0.29},
                                        {0.97, 0.78, 0.33},
                                        {0.66, 0.79, 0.36},
                                        {0.34, 0.73, 0.46},
                                        {0.22, 0.70, 0.67},
                                        {0.27, 0.66, 0.86},
                                        {0.33, 0.50, 0.88},
                                        {0.49, 0.43, 0.87},
                                        {0.68, 0.43, 0.83},
                                        {0.87, 0.44, 0.70},
                                        {0.70, 0.64, 0.58}}};

// Where the light stands, in the axes of the lens: above the viewer's left shoulder.
constexpr Vector light{-0.36, -0.56, -0.745};
constexpr double thickest = 0.62;

} // namespace

Colour default_colour(int index) {
    return wheel[static_cast<std::size_t>(index) % wheel.size()];
}

Colour hsv(double hue, double saturation, double value) {
    const auto part = [&](double n) {
        const double k = std::fmod(n + hue * 6, 6.0);
        return value - value * saturation * std::clamp(std::min(k, 4 - k), 0.0, 1.0);
    };
    return {part(5), part(3), part(1)};
}

std::uint32_t seed_of(const std::string& name) {
    std::uint32_t h = 2166136261u; // FNV-1a
    for (const char c : name) h = (h ^ static_cast<unsigned char>(c)) * 16777619u;
    return h;
}

double chance(std::uint32_t seed, int n) {
    std::uint32_t h = seed + 0x9e3779b9u * static_cast<std::uint32_t>(n + 1);
    h = (h ^ (h >> 16)) * 0x85ebca6bu;
    h = (h ^ (h >> 13)) * 0xc2b2ae35u;
    return (h ^ (h >> 16)) / 4294967296.0;
}

double luminance(const Colour& c) {
    return 0.299 * c.r + 0.587 * c.g + 0.114 * c.b;
}

Tone::Tone(const Plan& plan, const Item& item) {
    if (item.flat) return;
    const Vector normal = item.facet.normal();
    const bool front = item.facet.faces_lens();
    const double facing = std::max(0.0, dot(normal, light) * (front ? 1 : -1));
    _light = front ? 0.70 + 0.38 * facing : 0.62 + 0.14 * facing;
    const double range = plan.far - plan.near;
    if (range > 0) {
        const double t = std::clamp((item.depth - plan.near) / range, 0.0, 1.0);
        // A shallow scene has thin air.
        _haze = thickest * t * std::min(1.0, range / (0.45 * plan.comp_width));
    }
}

Colour Tone::operator()(const Colour& c) const {
    const auto lit = [&](double part) { return std::min(1.0, part * _light); };
    const Colour there{lit(c.r), lit(c.g), lit(c.b), c.a};
    return mix(there, with_alpha(haze, c.a), _haze);
}

} // namespace minihost::preview
