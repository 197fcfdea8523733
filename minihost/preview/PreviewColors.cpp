#include "minihost/preview/PreviewColors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace minihost::preview {

namespace {

constexpr std::array<Rgba, 12> default_colors{{{0.91, 0.36, 0.34},
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

} // namespace

Rgba default_color(int index) {
    return default_colors[static_cast<std::size_t>(index) % default_colors.size()];
}

Rgba hsv(double hue, double saturation, double value) {
    const auto part = [&](double n) {
        const double k = std::fmod(n + hue * 6, 6.0);
        return value - value * saturation * std::clamp(std::min(k, 4 - k), 0.0, 1.0);
    };
    return {part(5), part(3), part(1)};
}

Rgba mix(const Rgba& from, const Rgba& to, double t) {
    const auto blend = [t](double a, double b) { return a + (b - a) * t; };
    return {blend(from.r, to.r), blend(from.g, to.g), blend(from.b, to.b), blend(from.a, to.a)};
}

Rgba with_alpha(const Rgba& color, double alpha) {
    return {color.r, color.g, color.b, alpha};
}

double luminance(const Rgba& c) {
    return 0.299 * c.r + 0.587 * c.g + 0.114 * c.b;
}

} // namespace minihost::preview
