#include "cylinder/orientation.h"

#include "common/adobe/angles.h"
#include "math/random.h"

#include <cmath>

namespace {

using Matrix = math::TMatrix3D<double>;
using Vector = math::TGeomVector3D<double>;

constexpr double tiny = 1e-12;

// The angles in degrees that turn a layer's face (its z axis) into the direction `n`; turned round
// by half a turn about y for `inward`. `n` lies in the x-z plane and has length 1 or 0.
void orient_layer(const Vector& n, AEGP_StreamValue* out, bool inward) {
    const FacingAngles facing = facing_angles(n);
    AEGP_ThreeDVal& angles = out->val.three_d;
    angles.x = -facing.x * 180.0 / pi;
    angles.y = facing.y * 180.0 / pi;
    if (inward) angles.y += 180.0;
    angles.z = facing.z * 180.0 / pi;
}

// The direction away from the axis, in a frame whose z points towards the viewer.
Vector away_from_axis(const AEGP_ThreeDVal& pos) {
    return Vector(pos.x, 0, -pos.z).Normalized();
}

// The outward normal of the elliptic cross-section with half axes a and c, in that same frame: its
// tangent there, turned by a quarter.
Vector wall_normal(const AEGP_ThreeDVal& pos, double a, double c) {
    const double x = pos.x, z = -pos.z;
    if (!(std::abs(z) > tiny)) return Vector(x >= 0 ? 1 : -1, 0, 0);
    const Vector tangent = Vector(1, 0, -x * (c * c) / (z * (a * a))).Normalized();
    return Matrix::BuildRotate(Vector::Ey(), z < 0 ? quarter_turn : -quarter_turn) * tangent;
}

AEGP_ThreeDVal random_angles() {
    const double x = math::Rand();
    const double y = math::Rand();
    const double z = math::Rand();
    return {x * 360.0, y * 360.0, z * 360.0};
}

AEGP_ThreeDVal flat_angles(const AEGP_ThreeDVal& pos) {
    const Vector v = away_from_axis(pos);
    double phi = v ^ Vector(0, 0, 1);
    if (v.x > 0) phi = full_turn - phi;
    return {-90, 0, phi * degrees_per_radian};
}

} // namespace

void orient_layers(std::list<LayerInfo>& layers, const CylinderOptions& options,
                   const AEGP_StreamValue& camera_orient) {
    if (options.orientation == Orientation::unchanged) return;
    const double a = options.size.x / 2, c = options.size.z / 2;
    const Matrix quarter = Matrix::BuildRotate(Vector::Ey(), quarter_turn);
    for (LayerInfo& layer : layers) {
        const AEGP_ThreeDVal& pos = layer.pos.val.three_d;
        AEGP_ThreeDVal& angles = layer.orient.val.three_d;
        switch (options.orientation) {
        case Orientation::unchanged:
            break;
        case Orientation::xy:
            angles = {0, 0, 0};
            break;
        case Orientation::xz:
            angles = {-90, 0, 0};
            break;
        case Orientation::yz:
            angles = {0, -90, 0};
            break;
        case Orientation::towards_camera:
            layer.orient = camera_orient;
            break;
        case Orientation::random:
            angles = random_angles();
            break;
        case Orientation::yz_outward:
        case Orientation::yz_inward:
            orient_layer(wall_normal(pos, a, c), &layer.orient,
                         options.orientation == Orientation::yz_inward);
            break;
        case Orientation::tangent_xy:
            orient_layer(quarter * away_from_axis(pos), &layer.orient, false);
            break;
        case Orientation::flat_xz:
            angles = flat_angles(pos);
            break;
        }
    }
}
