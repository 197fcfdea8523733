// What a matrix is made of: its axes, scale and rotation, and its transpose. Part of
// math/matrix.h, which documents the functions.

#pragma once

#include "math/matrix.h"

#include <utility>

namespace math {

template <typename T>
TGeomVector3D<T> TMatrix3D<T>::column_image(int c) const {
    if (_flags) return {_m[c], _m[4 + c], _m[8 + c]};
    const T w = _m[15] + _m[12 + c];
    if (w == 0) throw VectorInFocusException(0);
    return {(_m[3] + _m[c]) / w - _m[3] / _m[15], (_m[7] + _m[4 + c]) / w - _m[7] / _m[15],
            (_m[11] + _m[8 + c]) / w - _m[11] / _m[15]};
}

template <typename T>
TGeomVector3D<T> TMatrix3D<T>::Scale() const {
    return {length(Vector(_m[0], _m[4], _m[8])), length(Vector(_m[1], _m[5], _m[9])),
            length(Vector(_m[2], _m[6], _m[10]))};
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::Rotate() const {
    const Vector scale = Scale();
    const T lengths[3] = {scale.x, scale.y, scale.z};
    TMatrix3D rotation;
    for (int c = 0; c < 3; ++c)
        if (lengths[c] != 0)
            for (int r = 0; r < 3; ++r) rotation._m[4 * r + c] = _m[4 * r + c] / lengths[c];
    if (!is_identity()) rotation._flags = rigid_flag;
    return rotation;
}

template <typename T>
void TMatrix3D<T>::Transpose() {
    if (is_identity()) return;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < r; ++c) std::swap(_m[4 * r + c], _m[4 * c + r]);
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::Transposed() const {
    TMatrix3D copy = *this;
    copy.Transpose();
    return copy;
}

} // namespace math
