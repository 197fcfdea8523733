// What the computations of orientations share.

#pragma once

#include "math/vector.h"

inline constexpr double full_turn = 6.283185307179586;
inline constexpr double quarter_turn = 1.5707963267948966;
inline constexpr double degrees_per_radian = 57.29577951308232;
inline constexpr double radians_per_degree = 0.017453292519943295;

// The angle between `a` and `b` in radians, negative unless `sense` is above 0: an exact 0 counts
// as negative.
inline double signed_angle(const math::TGeomVector3D<double>& a,
                           const math::TGeomVector3D<double>& b, double sense) {
    const double angle = a ^ b;
    return sense > 0 ? angle : -angle;
}
