// Homogeneous matrices: TMatrix3D, 4 x 4, for points of space. (TMatrix2D, for the plane, is in
// math/plane_matrix.h, which comes along.)
//
// Conventions: row-major, column vectors. A point p is sent to M * (p, 1); the translation is
// column 3, row 3 is the projective row; (A * B) * p applies B first. Angles are radians, and a
// rotation is counter-clockwise when seen from the tip of its axis (right-handed).
//
// A matrix also keeps flags, with which products take short cuts:
//   0                          general: projective, or with a block that is not orthonormal
//   rigid_flag (1)             row 3 is exactly (0, 0, 0, 1) and the 3 x 3 block is orthonormal
//   rigid_flag|identity_flag   exactly the identity
// Call setFlags() after writing elements; every operation here keeps the flags right.

#pragma once

#include "core/MathExceptions.h"
#include "math/vector.h"

#include <cassert>
#include <cstdint>

namespace math {

template <typename T>
class TMatrix3D {
  public:
    using Vector = TGeomVector3D<T>;

    static constexpr std::uint16_t rigid_flag = 1;
    static constexpr std::uint16_t identity_flag = 2;

    // The identity.
    constexpr TMatrix3D()
        : _m{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}, _flags(rigid_flag | identity_flag) {}
    // The sixteen elements in row-major order; computes the flags.
    TMatrix3D(T m00, T m01, T m02, T m03, T m10, T m11, T m12, T m13, T m20, T m21, T m22, T m23,
              T m30, T m31, T m32, T m33)
        : _m{m00, m01, m02, m03, m10, m11, m12, m13, m20, m21, m22, m23, m30, m31, m32, m33} {
        setFlags();
    }

    // The shared identity.
    static const TMatrix3D& HI() {
        static constexpr TMatrix3D identity;
        return identity;
    }

    // The element in a row and a column, both 0..3.
    T& operator()(int row, int column) {
        assert(row >= 0 && row < 4 && column >= 0 && column < 4);
        return _m[4 * row + column];
    }
    const T& operator()(int row, int column) const {
        assert(row >= 0 && row < 4 && column >= 0 && column < 4);
        return _m[4 * row + column];
    }

    std::uint16_t flags() const { return _flags; }
    bool is_rigid() const { return _flags & rigid_flag; }
    bool is_identity() const { return _flags & identity_flag; }
    // Computes the flags from the elements. Squared lengths of rows may differ from 1 by 2^-23,
    // their products from 0 by next to nothing: a rotation about an oblique axis is seldom rigid.
    void setFlags();

    // The image of the point v. Throws VectorInFocusException when a general matrix sends it to
    // infinity (the divisor is exactly 0).
    Vector operator*(const Vector& v) const;
    // The matrix that applies b first. With an identity it is a copy of the other one; the product
    // of two other rigid matrices is flagged rigid, even if it is the identity. The additions have
    // a fixed order, so that every platform gets the same bits.
    TMatrix3D operator*(const TMatrix3D& b) const;

    // The image of the direction v: that of the point v less that of the origin, without the
    // translation. Throws VectorInFocusException like the product with a point.
    Vector operator&(const Vector& v) const;

    // Whether no two elements differ by more than the accuracy, relative to the larger of them.
    // Flags do not matter; a NaN or an infinity equals everything.
    bool operator==(const TMatrix3D& b) const;
    // Sets the accuracy of all comparisons and returns it; 0.0 only returns it. It starts as 0.0,
    // with which equality is exact.
    static T Accuracy(T a);

    // -- Builders (math/matrix_build.h) ------------------------------------------------------

    // A translation by t.
    static TMatrix3D BuildShift(const Vector& t);
    static TMatrix3D BuildScale(T sx, T sy, T sz);
    // Vanishing points at px, py and pz on the axes; 0 means none on that axis. Always general.
    static TMatrix3D BuildPerspective(T px, T py, T pz);
    // A rotation about an axis of any length through the origin. The axis (0, 0, 0), or one no
    // longer than 1e-12, gives the scale cos(angle).
    static TMatrix3D BuildRotate(Vector axis, T angle);
    // The rotation by -angle, always flagged rigid.
    static TMatrix3D BuildLRotate(Vector axis, T angle);
    // A rotation about the line through p along the axis; always flagged general.
    static TMatrix3D BuildRotate(const Vector& p, const Vector& axis, T angle);
    // Rz(e.x) * Ry(-e.y) * Rx(e.z).
    static TMatrix3D BuildEuler(const Vector& e);
    // The frame with the columns a, b x a, b and the origin o: maps coordinates in the frame to
    // those outside.
    static TMatrix3D BuildHMatrix(const Vector& a, const Vector& b, const Vector& o);
    // Maps a to b: a rotation and a scale by |b| / |a|. Opposite vectors turn about some axis at
    // right angles to them. Lengths up to 1e-12 count as 0; if that of a does, the elements are
    // infinite or NaN.
    static TMatrix3D BuildRotateScale(const Vector& a, const Vector& b);

    // -- Relations of two matrices (math/matrix_relate.h) ------------------------------------

    // The angles e with BuildEuler(e) = Rot(a)^-1 * Rot(b); e.y is in [-pi/2, pi/2]. Where |e.y|
    // is that of a pole (its sine beyond 0.999999), only the sum or the difference of e.x and e.z
    // is fixed, up to whole turns: those nearest to the reference are taken.
    static Vector BuildEuler(const TMatrix3D& a, const TMatrix3D& b, const Vector& reference = {});
    // The unit axis and the angle in [0, pi] of the rotation Rot(b) * Rot(a)^-1; the axis Ez and 0
    // when there is none.
    static void BuildRotate(const TMatrix3D& a, const TMatrix3D& b, Vector& axis, T& angle);
    // The unit axis of the rotation of m, with its angle in [-pi, pi]: BuildRotate(axis, angle)
    // gives Rot(m) again. Ez and 0 when m does not rotate, or by less than about 1e-6.
    static Vector getRotationAxis(const TMatrix3D& m, T& angle);

    // -- Parts (math/matrix_parts.h) ---------------------------------------------------------

    // The images of the unit vectors as directions. Throw VectorInFocusException when the unit
    // point is sent to infinity; an element (3, 3) of 0 gives infinities or NaNs.
    Vector X() const { return column_image(0); }
    Vector Y() const { return column_image(1); }
    Vector Z() const { return column_image(2); }
    // The lengths of the first three columns of the 3 x 3 block.
    Vector Scale() const;
    // The block with columns of length 1, without translation; a column of length 0 becomes the
    // unit column of its place. Flagged rigid, whether its columns are at right angles or not.
    TMatrix3D Rotate() const;

    // Swaps rows and columns of all sixteen elements. The flags stay.
    void Transpose();
    TMatrix3D Transposed() const;

    // -- Inverse (math/matrix_inverse.h) -----------------------------------------------------

    // Gauss-Jordan elimination with full pivoting for a general matrix, the transposed block for a
    // rigid one. Throws SingularMatrix3DException when there is no inverse (or a NaN prevents it)
    // and then leaves the elements half changed.
    void Inverse();
    TMatrix3D Inversed() const;

  private:
    inline static T acc = 0;

    static bool near_one(T x) { return x >= T(0.9999998807907104) && x <= T(1.0000001192092896); }
    static bool near_zero(T x) { return x >= -T(smallest_float) && x <= T(smallest_float); }
    T row_product(int r, int k) const {
        return _m[4 * r] * _m[4 * k] + _m[4 * r + 1] * _m[4 * k + 1] +
               _m[4 * r + 2] * _m[4 * k + 2];
    }
    Vector column_image(int c) const;
    static Vector fixed_axis(const TMatrix3D& rotation, T negligible, T& largest);
    void invert_rigid();
    void invert_general();

    // The linear and translating part of row r applied to v.
    T row_times(int r, const Vector& v) const {
        return _m[4 * r] * v.x + _m[4 * r + 1] * v.y + _m[4 * r + 2] * v.z + _m[4 * r + 3];
    }

    T _m[16];
    std::uint16_t _flags;
};

template <typename T>
void TMatrix3D<T>::setFlags() {
    _flags = 0;
    if (!(_m[12] == 0 && _m[13] == 0 && _m[14] == 0 && _m[15] == 1)) return;
    bool identity = _m[3] == 0 && _m[7] == 0 && _m[11] == 0;
    for (int r = 2; r >= 0; --r) {
        if (!near_one(row_product(r, r))) return;
        for (int k = r - 1; k >= 0; --k)
            if (!near_zero(row_product(r, k))) return;
        for (int c = 0; c < 3; ++c)
            if (_m[4 * r + c] != (r == c ? 1 : 0)) identity = false;
    }
    _flags = identity ? rigid_flag | identity_flag : rigid_flag;
}

template <typename T>
TGeomVector3D<T> TMatrix3D<T>::operator*(const Vector& v) const {
    const Vector image(row_times(0, v), row_times(1, v), row_times(2, v));
    if (_flags == rigid_flag) return image;
    if (is_identity()) return v;
    const T w = row_times(3, v);
    if (w == 0) throw VectorInFocusException(0);
    return image / w;
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::operator*(const TMatrix3D& b) const {
    if (is_identity()) return b;
    if (b.is_identity()) return *this;
    TMatrix3D product;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) {
            T sum = 0; // makes a sum of negative zeros positive
            for (int k = 3; k >= 0; --k) sum += _m[4 * r + k] * b._m[4 * k + c];
            product._m[4 * r + c] = sum;
        }
    product._flags = _flags & b._flags & rigid_flag;
    return product;
}

template <typename T>
TGeomVector3D<T> TMatrix3D<T>::operator&(const Vector& v) const {
    if (is_identity()) return v;
    if (is_rigid())
        return {_m[0] * v.x + _m[1] * v.y + _m[2] * v.z, _m[4] * v.x + _m[5] * v.y + _m[6] * v.z,
                _m[8] * v.x + _m[9] * v.y + _m[10] * v.z};
    const T w = row_times(3, v);
    if (w == 0) throw VectorInFocusException(0);
    return {row_times(0, v) / w - _m[3] / _m[15], row_times(1, v) / w - _m[7] / _m[15],
            row_times(2, v) / w - _m[11] / _m[15]};
}

template <typename T>
bool TMatrix3D<T>::operator==(const TMatrix3D& b) const {
    for (int i = 15; i >= 0; --i) {
        const T larger = std::fmax(std::fabs(_m[i]), std::fabs(b._m[i]));
        if (larger != 0 && std::fabs(_m[i] - b._m[i]) / larger > acc) return false;
    }
    return true;
}

template <typename T>
T TMatrix3D<T>::Accuracy(T a) {
    if (a != 0) acc = a;
    return acc;
}

} // namespace math

#include "math/matrix_build.h"
#include "math/matrix_inverse.h"
#include "math/matrix_parts.h"
#include "math/matrix_relate.h"
#include "math/plane_matrix.h"
