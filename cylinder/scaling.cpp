#include "cylinder/scaling.h"

#include "core/truncated.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Vector = math::TGeomVector3D<double>;

constexpr double outside = 2.0; // a parameter beyond the segment's end
constexpr double shortest = 1e-12;

struct Crossings {
    double first = outside, second = outside;
};

// Where the line p + t·d meets the wall, both in units of the half axes: |p + t·d| = 1.
Crossings wall_crossings(double qa, double qb, double qc) {
    if (qa != 0) {
        const double discriminant = qb * qb - 4 * qa * qc;
        if (discriminant > 0) {
            const double root = std::sqrt(discriminant);
            return {(root - qb) * 0.5 / qa, (-qb - root) * 0.5 / qa};
        }
        if (discriminant == 0) return {qb * (-0.5) / qa, outside};
        return {};
    }
    if (qb != 0) return {-qc / qb, outside};
    return {};
}

} // namespace

double downscale(const Vector& p1, const Vector& p2, const Vector& size) {
    const Vector d = p2 - p1;
    const double xx = size.x * size.x * 0.25, zz = size.z * size.z * 0.25;
    const auto at = [&](double t) { return p1 + d * t; };
    const auto on_segment = [](double t) { return 0 <= t && t <= 1; };

    double t_top = outside, t_bottom = outside;
    if (d.y != 0) {
        t_top = (size.y * 0.5 - p1.y) / d.y;
        t_bottom = (size.y * (-0.5) - p1.y) / d.y;
    }
    const Crossings wall =
        wall_crossings(d.x * d.x / xx + d.z * d.z / zz, 2 * (p1.x * d.x / xx + p1.z * d.z / zz),
                       p1.x * p1.x / xx + p1.z * p1.z / zz - 1);

    int count = 0;
    double crossing = 0;
    const auto collect = [&](double t) { ++count, crossing = t; };
    for (const double t : {wall.first, wall.second}) {
        if (!on_segment(t)) continue;
        const double y = at(t).y;
        if (-size.y / 2 < y && y < size.y / 2) collect(t);
    }
    for (const double t : {t_top, t_bottom}) {
        if (!on_segment(t)) continue;
        const Vector p = at(t);
        if (p.x * p.x / xx + p.z * p.z / zz <= 1.0) collect(t);
    }
    if (count != 1) return 1.0;

    const double whole = length(p1 - p2);
    if (whole <= shortest) return 0.0;
    const double part = length(p1 - at(crossing));
    return part <= shortest ? 0.0 : part / whole;
}

void scale_layers_to_fit(std::list<LayerInfo>& layers, const CylinderOptions& options) {
    for (LayerInfo& layer : layers) {
        layer.refresh_mat();
        const A_long longer = std::max(layer.scaled_width, layer.scaled_height);
        if (longer == 0) continue;

        const AEGP_ThreeDVal& pos = layer.pos.val.three_d;
        const Vector centre(pos.x, pos.y, pos.z);
        const double hw = 0.5 * layer.scaled_width, hh = 0.5 * layer.scaled_height;
        double s = std::numeric_limits<double>::infinity();
        for (const Vector& corner :
             {Vector(-hw, -hh, 0), Vector(hw, hh, 0), Vector(hw, -hh, 0), Vector(-hw, hh, 0)})
            s = std::min(s, downscale(centre, layer.mat * corner, options.size));
        if (longer * s < 1.0) s = 1.0 / longer;

        layer.scale.val.three_d.x *= s;
        layer.scale.val.three_d.y *= s;
        layer.scaled_width = truncated(layer.scaled_width * s);
        layer.scaled_height = truncated(layer.scaled_height * s);
    }
}

void scale_layers_conform(std::list<LayerInfo>& layers, const CylinderOptions& options) {
    const auto conform = [&](double& scale, A_long& pixels) {
        if (pixels == 0) return;
        const double k = options.target_size / static_cast<float>(pixels);
        scale *= k;
        pixels = truncated(pixels * k);
    };
    for (LayerInfo& layer : layers) {
        conform(layer.scale.val.three_d.x, layer.scaled_width);
        conform(layer.scale.val.three_d.y, layer.scaled_height);
    }
}
