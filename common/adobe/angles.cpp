#include "common/adobe/angles.h"

#include "math/matrix.h"

#include <cmath>

namespace {

using Matrix = math::TMatrix3D<double>;
using Vector = math::TGeomVector3D<double>;

constexpr double tiny = 1e-12;

// The angle between `a` and `b`, negative unless `sense` is above 0: an exact 0 counts as negative.
double signed_angle(const Vector& a, const Vector& b, double sense) {
    const double angle = a ^ b;
    return sense > 0 ? angle : -angle;
}

// The direction's angle about y, from z towards x, in [0, 2π]; 0 for one along y.
double heading(const Vector& direction) {
    const double across = std::sqrt(direction.x * direction.x + direction.z * direction.z);
    if (!(across >= tiny)) return 0;
    const double angle = math::acos(direction.z / across);
    return direction.x < 0 ? full_turn - angle : angle;
}

} // namespace

FacingAngles facing_angles(const Vector& direction) {
    const Vector x_axis(1, 0, 0), z_axis(0, 0, 1);
    const double theta = heading(direction);
    const Vector turned_x(std::cos(theta), 0, -std::sin(theta));
    const Vector side = cross(direction, turned_x);
    const Vector normal = cross(direction, x_axis);
    if (!(length(normal) > tiny)) // along the x axis
        return {0, signed_angle(turned_x, x_axis, dot(cross(turned_x, x_axis), side)), 0};

    const Vector across = cross(normal, direction).Normalized(); // the part of x across `direction`
    const double z = signed_angle(turned_x, across, dot(cross(turned_x, across), direction));
    const Vector turned_side = Matrix::BuildRotate(direction, z) * side;
    const double y = signed_angle(x_axis, across, dot(cross(across, x_axis), turned_side));
    return {z_axis ^ (Matrix::BuildRotate(turned_side, y) * direction), y, z};
}
