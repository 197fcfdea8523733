// Matrices built from vectors and numbers. Part of math/matrix.h, which documents them.

#pragma once

#include "math/matrix.h"

namespace math {

template <typename T>
TMatrix3D<T> TMatrix3D<T>::BuildShift(const Vector& t) {
    TMatrix3D shift;
    shift._m[3] = t.x;
    shift._m[7] = t.y;
    shift._m[11] = t.z;
    if (!(t == Vector())) shift._flags = rigid_flag;
    return shift;
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::BuildScale(T sx, T sy, T sz) {
    TMatrix3D scale;
    scale._m[0] = sx;
    scale._m[5] = sy;
    scale._m[10] = sz;
    if (!(sx == 1 && sy == 1 && sz == 1)) scale._flags = 0;
    return scale;
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::BuildPerspective(T px, T py, T pz) {
    TMatrix3D perspective;
    perspective._m[12] = px == 0 ? 0 : -1 / px;
    perspective._m[13] = py == 0 ? 0 : -1 / py;
    perspective._m[14] = pz == 0 ? 0 : -1 / pz;
    perspective._flags = 0;
    return perspective;
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::BuildRotate(Vector axis, T angle) {
    const auto [x, y, z] = axis.Normalize();
    const T c = std::cos(angle), s = std::sin(angle), t = 1 - c;
    return TMatrix3D(t * x * x + c, t * x * y - s * z, t * x * z + s * y, 0, //
                     t * x * y + s * z, t * y * y + c, t * y * z - s * x, 0, //
                     t * x * z - s * y, t * y * z + s * x, t * z * z + c, 0, //
                     0, 0, 0, 1);
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::BuildLRotate(Vector axis, T angle) {
    const auto [x, y, z] = axis.Normalize();
    const T c = std::cos(angle), s = std::sin(angle), t = 1 - c;
    TMatrix3D rotation(x * x + (1 - x * x) * c, t * x * y + s * z, t * x * z - s * y, 0, //
                       t * x * y - s * z, y * y + (1 - y * y) * c, t * y * z + s * x, 0, //
                       t * x * z + s * y, t * y * z - s * x, z * z + (1 - z * z) * c, 0, //
                       0, 0, 0, 1);
    rotation._flags = rigid_flag;
    return rotation;
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::BuildRotate(const Vector& p, const Vector& axis, T angle) {
    TMatrix3D rotation = BuildRotate(axis, angle);
    const Vector shift = p - rotation * p;
    rotation._m[3] = shift.x;
    rotation._m[7] = shift.y;
    rotation._m[11] = shift.z;
    rotation._flags = 0;
    return rotation;
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::BuildEuler(const Vector& e) {
    const T ca = std::cos(e.x), sa = std::sin(e.x);
    const T cb = std::cos(e.y), sb = std::sin(e.y);
    const T cc = std::cos(e.z), sc = std::sin(e.z);
    return TMatrix3D(ca * cb, -sa * cc - ca * sb * sc, sa * sc - ca * sb * cc, 0, //
                     sa * cb, ca * cc - sa * sb * sc, -ca * sc - sa * sb * cc, 0, //
                     sb, cb * sc, cb * cc, 0,                                     //
                     0, 0, 0, 1);
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::BuildHMatrix(const Vector& a, const Vector& b, const Vector& o) {
    const Vector c = cross(b, a);
    return {a.x, c.x, b.x, o.x, //
            a.y, c.y, b.y, o.y, //
            a.z, c.z, b.z, o.z, //
            0,   0,   0,   1};
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::BuildRotateScale(const Vector& a, const Vector& b) {
    const T k = counted_length(b) / counted_length(a);
    const Vector from = a.Normalized(), to = b.Normalized();
    Vector axis = cross(from, to);
    // The arc tangent is the angle itself, exact also where the cosine is flat.
    const T angle = std::atan2(length(axis), dot(from, to));
    if (length(axis) <= smallest_length && dot(from, to) < 0)
        axis = cross(from, std::fabs(from.x) < T(0.5) ? Vector::Ex() : Vector::Ey());
    return BuildRotate(axis, angle) * BuildScale(k, k, k);
}

} // namespace math
