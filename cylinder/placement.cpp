#include "cylinder/placement.h"

#include "common/adobe/angles.h"
#include "math/random.h"

#include <algorithm>
#include <cmath>

namespace {

// Not std::clamp, which asks for a lower bound that is not above the upper one.
double limited(double value, double bound) {
    return value < -bound ? -bound : std::min(bound, value);
}

// How far the ellipse x²/a² + z²/c² = 1 is from its centre in the direction `angle`.
double radius_towards(double angle, double a, double c) {
    const double t = std::tan(angle);
    return std::sqrt((1 + t * t) / (t * t / (c * c) + 1 / (a * a)));
}

} // namespace

void pos_use_dist(std::list<LayerInfo>& layers, const CylinderOptions& options) {
    const double a = options.size.x / 2, b = options.size.y / 2, c = options.size.z / 2;
    const CylinderOptions::Range &angle = options.angle, &distance = options.distance,
                                 &height = options.height;
    double theta = 0, h = 0;
    int i = 0;
    for (LayerInfo& layer : layers) {
        AEGP_ThreeDVal& pos = layer.pos.val.three_d;
        if (i == 0) {
            const double u = math::Rand();
            const double d = u * distance.span() + distance.min;
            pos = {std::min(a, d), 0, 0};
        } else {
            const double u1 = math::Rand();
            const double u2 = math::Rand();
            const double u3 = math::Rand();
            theta += (u1 * angle.span() + angle.min + angle.increment * i) * radians_per_degree;
            h = limited(h + u2 * height.span() + height.min + height.increment * i, b);
            const double d = limited(u3 * distance.span() + distance.min + distance.increment * i,
                                     radius_towards(theta, a, c));
            pos = {d * std::cos(theta), -h, -d * std::sin(theta)};
        }
        ++i;
    }
}

void pos_randomly(std::list<LayerInfo>& layers, const CylinderOptions& options) {
    const auto& size = options.size;
    for (LayerInfo& layer : layers) {
        const double u_height = math::Rand();
        const double u_angle = math::Rand();
        const double u_radius = math::Rand();
        const double h = -size.y / 2 + u_height * size.y;
        const double phi = u_angle * full_turn;
        const double cosine = std::cos(phi), sine = std::sin(phi);
        const double r_max =
            0.5 / std::sqrt(cosine * cosine / (size.x * size.x) + sine * sine / (size.z * size.z));
        const double r = u_radius * r_max;
        layer.pos.val.three_d = {r * cosine, -h, -r * sine};
    }
}
