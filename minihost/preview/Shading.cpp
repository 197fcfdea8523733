#include "minihost/preview/Shading.h"

#include "minihost/preview/PreviewColors.h"

#include <algorithm>

namespace minihost::preview {

namespace {

// Toward the light, in the axes of the camera: above the viewer's left shoulder.
constexpr Vector light_direction{-0.36, -0.56, -0.745};
constexpr double max_haze_share = 0.62;

} // namespace

Shading::Shading(const DrawList& list, const DrawItem& item) {
    if (item.flat) return;
    const bool front = item.quad.faces_camera();
    const double facing =
        std::max(0.0, dot(item.quad.normal(), light_direction) * (front ? 1 : -1));
    _light = front ? 0.70 + 0.38 * facing : 0.62 + 0.14 * facing;
    const double range = list.far - list.near;
    if (range > 0) {
        const double t = std::clamp((item.depth - list.near) / range, 0.0, 1.0);
        // A shallow scene has little haze.
        _haze_share = max_haze_share * t * std::min(1.0, range / (0.45 * list.comp_width));
    }
}

Rgba Shading::operator()(const Rgba& c) const {
    const auto lit = [&](double part) { return std::min(1.0, part * _light); };
    return mix({lit(c.r), lit(c.g), lit(c.b), c.a}, with_alpha(haze, c.a), _haze_share);
}

} // namespace minihost::preview
