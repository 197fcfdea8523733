// The rotation from one matrix to another, as Euler angles or axis and angle. Part of
// math/matrix.h, which documents the functions.

#pragma once

#include "math/matrix.h"

namespace math {

template <typename T>
TGeomVector3D<T> TMatrix3D<T>::BuildEuler(const TMatrix3D& a, const TMatrix3D& b,
                                          const Vector& reference) {
    constexpr T pole = T(0.999999), half_pi = T(1.5707963267948966), two_pi = T(6.283185307179586);
    const TMatrix3D turn = a.Rotate().Inversed() * b.Rotate();
    const T sine = turn._m[8];
    if (-pole <= sine && sine <= pole)
        return {std::atan2(turn._m[4], turn._m[0]), std::asin(sine),
                std::atan2(turn._m[9], turn._m[10])};
    // Only x + z (at the upper pole) or x - z is fixed, up to whole turns. The value nearest to the
    // reference's is taken, and x and z share the difference.
    const T sign = sine < 0 ? -1 : 1;
    const T wanted = reference.x + sign * reference.z;
    const T angle = std::atan2(-turn._m[1], turn._m[5]);
    const T half_way = std::remainder(angle - wanted, two_pi) / 2;
    return {reference.x + half_way, sign * half_pi, reference.z + sign * half_way};
}

// The axis that a rotation leaves in place, not yet of length 1: the kernel of the block less the
// identity, by Cramer's rule from its largest cofactor, which is returned too. Components with a
// numerator up to `negligible` are 0; without any rotation the axis is Ez.
template <typename T>
TGeomVector3D<T> TMatrix3D<T>::fixed_axis(const TMatrix3D& rotation, T negligible, T& largest) {
    const auto element = [&](int r, int c) {
        return rotation._m[4 * (r % 3) + c % 3] - T(r % 3 == c % 3 ? 1 : 0);
    };
    // Cyclic indices give the cofactor its sign.
    const auto cofactor = [&](int r, int c) {
        return element(r + 1, c + 1) * element(r + 2, c + 2) -
               element(r + 1, c + 2) * element(r + 2, c + 1);
    };
    int row = 2, column = 2;
    largest = cofactor(2, 2);
    for (int i = 7; i >= 0; --i)
        if (const T value = cofactor(i / 3, i % 3); std::fabs(value) > std::fabs(largest)) {
            largest = value;
            row = i / 3;
            column = i % 3;
        }
    T axis[3];
    for (int i = 0; i < 3; ++i) {
        const T numerator = cofactor(i, column);
        axis[i] = i == row ? 1 : std::fabs(numerator) <= negligible ? 0 : numerator / largest;
    }
    return {axis[0], axis[1], axis[2]};
}

template <typename T>
void TMatrix3D<T>::BuildRotate(const TMatrix3D& a, const TMatrix3D& b, Vector& axis, T& angle) {
    const TMatrix3D turn = b.Rotate() * a.Rotate().Inversed();
    T largest;
    const Vector found = fixed_axis(turn, T(smallest_length), largest).Normalize();
    // The unit vector farthest from the axis shows best how far and which way it turns.
    const T x = std::fabs(found.x), y = std::fabs(found.y), z = std::fabs(found.z);
    Vector u, v;
    if (x <= y && x <= z) {
        u = found.x * found - Vector::Ex();
        v = found.x * found - turn.X();
    } else if (y <= z) {
        u = found.y * found - Vector::Ey();
        v = found.y * found - turn.Y();
    } else {
        u = found.z * found - Vector::Ez();
        v = found.z * found - turn.Z();
    }
    angle = u ^ v;
    Vector oriented = cross(u, v);
    const bool none = std::fabs(oriented.x) < smallest_length &&
                      std::fabs(oriented.y) < smallest_length &&
                      std::fabs(oriented.z) < smallest_length;
    axis = none ? found : oriented.Normalize();
}

template <typename T>
TGeomVector3D<T> TMatrix3D<T>::getRotationAxis(const TMatrix3D& m, T& angle) {
    const TMatrix3D turn = m.Rotate();
    T largest;
    const Vector axis = fixed_axis(turn, 0, largest).Normalize();
    if (turn == HI() || !(std::fabs(largest) >= smallest_length)) {
        angle = 0;
        return Vector::Ez();
    }
    const T cosine = (turn._m[0] + turn._m[5] + turn._m[10] - 1) / 2;
    // Twice the sine, seen along the axis: the antisymmetric part of a rotation.
    const Vector twist(turn._m[9] - turn._m[6], turn._m[2] - turn._m[8], turn._m[4] - turn._m[1]);
    const T orientation = dot(axis, twist);
    angle = math::acos(cosine);
    if (orientation < -smallest_length)
        angle = -angle;
    else if (orientation <= smallest_length)
        angle = cosine < 0 ? T(3.141592653589793) : 0;
    return axis;
}

} // namespace math
