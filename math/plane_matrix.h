// TMatrix2D: 3 x 3 homogeneous matrices for points of the plane. Row-major, row vectors: a point is
// sent to (x, y, 1) * M, the translation is row 2, and p * (A * B) would apply A first.

#pragma once

#include "math/vector.h"

#include <cassert>

namespace math {

template <typename T>
class TMatrix2D {
  public:
    using Vector = TGeomVector2D<T>;

    // The identity.
    constexpr TMatrix2D() = default;
    // The nine elements in row-major order.
    constexpr TMatrix2D(T m00, T m01, T m02, T m10, T m11, T m12, T m20, T m21, T m22)
        : _m{m00, m01, m02, m10, m11, m12, m20, m21, m22} {}

    // The element in a row and a column, both 0..2.
    T& operator()(int row, int column) {
        assert(row >= 0 && row < 3 && column >= 0 && column < 3);
        return _m[3 * row + column];
    }
    const T& operator()(int row, int column) const {
        assert(row >= 0 && row < 3 && column >= 0 && column < 3);
        return _m[3 * row + column];
    }

    // A translation by t.
    static TMatrix2D BuildShift(const Vector& t) { return {1, 0, 0, 0, 1, 0, t.x, t.y, 1}; }
    // A rotation by the angle (radians) about the centre, counter-clockwise where y points up.
    static TMatrix2D BuildRotate(const Vector& center, T angle) {
        const T c = std::cos(angle), s = std::sin(angle);
        const T x = (1 - c) * center.x + s * center.y, y = (1 - c) * center.y - s * center.x;
        return {c, s, 0, -s, c, 0, x, y, 1};
    }
    // A scale about the origin.
    static TMatrix2D BuildScale(const Vector& s) { return {s.x, 0, 0, 0, s.y, 0, 0, 0, 1}; }

  private:
    T _m[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
};

} // namespace math
