// The products with points and matrices. Part of math/matrix.h, which tells what they give.
//
// An element of a product is ((((0.0 + a3 * b3) + a2 * b2) + a1 * b1) + a0 * b0), in this order and
// each step rounded, so that every platform makes the same bits. The leading 0.0 counts: it turns a
// sum of negative zeros into a positive one.

#pragma once

#include "math/matrix.h"

namespace math {

// The common rigid case alone stands in the loops of callers, where compilers can take it apart.
template <typename T>
inline TGeomVector3D<T> TMatrix3D<T>::operator*(const Vector& v) const {
    if (_flags == rigid_flag) return {row_times(0, v), row_times(1, v), row_times(2, v)};
    return general_image(v);
}

template <typename T>
[[gnu::cold, gnu::noinline]] void TMatrix3D<T>::throw_in_focus() {
    throw VectorInFocusException(0);
}

// Not in the callers' loops: its divisions take longer than the call.
template <typename T>
[[gnu::noinline]] TGeomVector3D<T> TMatrix3D<T>::general_image(const Vector& v) const {
    if (is_identity()) return v;
    if (is_rigid()) return {row_times(0, v), row_times(1, v), row_times(2, v)};
    const Pair<T> xy = load_pair(&v.x), z1 = {v.z, 1};
    const auto two_rows = [&](int r) {
        const Pair<T> a = load_pair(_m + 4 * r) * xy, b = load_pair(_m + 4 * r + 4) * xy;
        const Pair<T> c = load_pair(_m + 4 * r + 2) * z1, d = load_pair(_m + 4 * r + 6) * z1;
        return ((Pair<T>{a[0], b[0]} + Pair<T>{a[1], b[1]}) + Pair<T>{c[0], d[0]}) +
               Pair<T>{c[1], d[1]};
    };
    const Pair<T> zw = two_rows(2);
    const T w = zw[1];
    if (w == 0) throw_in_focus();
    const Pair<T> image = two_rows(0) / both(w);
    return {image[0], image[1], zw[0] / w};
}

template <typename T>
[[gnu::noinline]] TMatrix3D<T> TMatrix3D<T>::general_product(const TMatrix3D& b) const {
    if (is_identity()) return b;
    if (b.is_identity()) return *this;
    TMatrix3D product(Unfilled{});
    const Pair<T> left[4] = {load_pair(b._m), load_pair(b._m + 4), load_pair(b._m + 8),
                             load_pair(b._m + 12)};
    const Pair<T> right[4] = {load_pair(b._m + 2), load_pair(b._m + 6), load_pair(b._m + 10),
                              load_pair(b._m + 14)};
    const auto fill_row = [&](int i) {
        const T* const a = _m + 4 * i;
        const Pair<T> a0 = both(a[0]), a1 = both(a[1]), a2 = both(a[2]), a3 = both(a[3]);
        const Pair<T> zero = {0, 0};
        store_pair(product._m + 4 * i,
                   (((zero + a3 * left[3]) + a2 * left[2]) + a1 * left[1]) + a0 * left[0]);
        store_pair(product._m + 4 * i + 2,
                   (((zero + a3 * right[3]) + a2 * right[2]) + a1 * right[1]) + a0 * right[0]);
    };
    fill_row(0);
    fill_row(1);
    fill_row(2);
    fill_row(3);
    product._flags = _flags & b._flags & rigid_flag;
    return product;
}

// Of a rigid matrix.
template <typename T>
[[gnu::cold, gnu::noinline]] void TMatrix3D<T>::note_last_row() {
    const bool plain = _m[12] == 0 && _m[13] == 0 && _m[14] == 0 && _m[15] == 1;
    _flags = flags() | (plain ? 0 : odd_last_row);
}

// The rows 3 of both are (0, 0, 0, 1), so that a3 * b3 is 0 or the translation, and that of the
// product is the same, as long as all is finite: 0 times anything else would be none, and the
// result is false. Row by row, two pairs each.
template <typename T>
inline bool TMatrix3D<T>::rigid_product(const TMatrix3D& b, Pair<T> (&rows)[8]) const {
    const Pair<T> left0 = load_pair(b._m), right0 = load_pair(b._m + 2);
    const Pair<T> left1 = load_pair(b._m + 4), right1 = load_pair(b._m + 6);
    const Pair<T> left2 = load_pair(b._m + 8), right2 = load_pair(b._m + 10);
    const Pair<T> zero = {0, 0};
    const auto fill_row = [&](int i) {
        const Pair<T> a01 = load_pair(_m + 4 * i), a23 = load_pair(_m + 4 * i + 2);
        const Pair<T> a0 = both(a01[0]), a1 = both(a01[1]), a2 = both(a23[0]), a3 = {0, a23[1]};
        rows[2 * i] = ((zero + a2 * left2) + a1 * left1) + a0 * left0;
        rows[2 * i + 1] = (((zero + a3) + a2 * right2) + a1 * right1) + a0 * right0;
    };
    fill_row(0);
    fill_row(1);
    fill_row(2);
    rows[6] = zero;
    rows[7] = Pair<T>{0, 1};
    const Pair<T> sums = ((rows[0] + rows[2]) + rows[4]) + ((rows[1] + rows[3]) + rows[5]);
    const T sum = sums[0] + sums[1];
    return sum - sum == 0;
}

// Both cases end in the same pairs, so that these need not go through memory before the copy that
// the caller makes of the result.
template <typename T>
inline TMatrix3D<T> TMatrix3D<T>::operator*(const TMatrix3D& b) const {
    TMatrix3D product(Unfilled{});
    Pair<T> rows[8];
    product._flags = rigid_flag;
    if (!(_flags == rigid_flag && b._flags == rigid_flag && rigid_product(b, rows))) {
        TMatrix3D general = general_product(b);
        if (general.is_rigid()) general.note_last_row();
        for (int i = 0; i < 8; ++i) rows[i] = load_pair(general._m + 2 * i);
        product._flags = general._flags;
    }
    for (int i = 0; i < 8; ++i) store_pair(product._m + 2 * i, rows[i]);
    return product;
}

} // namespace math
