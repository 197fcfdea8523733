// The inverse of a matrix. Part of math/matrix.h, which tells what the functions give.

#pragma once

#include "math/matrix.h"

#include <utility>

namespace math {

template <typename T>
void TMatrix3D<T>::Inverse() {
    if (is_identity()) return;
    if (is_rigid())
        invert_rigid();
    else
        invert_general();
}

template <typename T>
TMatrix3D<T> TMatrix3D<T>::Inversed() const {
    TMatrix3D copy = *this;
    copy.Inverse();
    return copy;
}

template <typename T>
void TMatrix3D<T>::invert_rigid() {
    const Vector t(_m[3], _m[7], _m[11]);
    _m[3] = -(t.x * _m[0] + t.y * _m[4] + t.z * _m[8]);
    _m[7] = -(t.x * _m[1] + t.y * _m[5] + t.z * _m[9]);
    _m[11] = -(t.x * _m[2] + t.y * _m[6] + t.z * _m[10]);
    std::swap(_m[1], _m[4]);
    std::swap(_m[2], _m[8]);
    std::swap(_m[6], _m[9]);
}

// In place: the column of each pivot takes in turn the column of the inverse that the elimination
// makes (Press and others, Numerical Recipes, 2.1; Bauer and Reinsch, 1971).
template <typename T>
void TMatrix3D<T>::invert_general() {
    int row_of[4], column_of[4];
    bool used[4] = {};
    for (int step = 0; step < 4; ++step) {
        int row = -1, column = -1;
        T best = 0;
        for (int r = 0; r < 4; ++r)
            for (int c = 0; c < 4 && !used[r]; ++c)
                if (const T size = std::fabs(_m[4 * r + c]); !used[c] && size > best) {
                    best = size;
                    row = r;
                    column = c;
                }
        if (row < 0) throw SingularMatrix3DException(0);
        used[column] = true;
        row_of[step] = row;
        column_of[step] = column;
        T* const pivot_row = _m + 4 * column;
        if (row != column) std::swap_ranges(pivot_row, pivot_row + 4, _m + 4 * row);
        const T factor = 1 / pivot_row[column];
        pivot_row[column] = 1;
        for (int c = 0; c < 4; ++c) pivot_row[c] *= factor;
        for (int r = 0; r < 4; ++r) {
            if (r == column) continue;
            const T share = std::exchange(_m[4 * r + column], 0);
            for (int c = 0; c < 4; ++c) _m[4 * r + c] -= pivot_row[c] * share;
        }
    }
    for (int step = 3; step >= 0; --step)
        if (row_of[step] != column_of[step])
            for (int r = 0; r < 4; ++r)
                std::swap(_m[4 * r + row_of[step]], _m[4 * r + column_of[step]]);
    _flags = 0;
}

} // namespace math
