// Angles of directions: constants, and the turn that makes a layer face along a direction.

#pragma once

#include "math/vector.h"

inline constexpr double pi = 3.141592653589793;
inline constexpr double full_turn = 2 * pi;
inline constexpr double quarter_turn = pi / 2;
inline constexpr double degrees_per_radian = 180 / pi;
inline constexpr double radians_per_degree = pi / 180;

// Angles about x, y and z in radians. Which way x and y count is the caller's convention.
struct FacingAngles {
    double x, y, z;
};

// The rotation that brings the z axis onto `direction`, a vector of length 1 or 0, and leaves the x
// axis as close to where it was as it can be. Of length 0: no rotation about x and z.
FacingAngles facing_angles(const math::TGeomVector3D<double>& direction);
