// The inverse of a matrix. Part of math/matrix.h, which documents the functions.

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

// In place: the column of each pivot takes the column of the inverse that the elimination makes
// (Press and others, Numerical Recipes, 2.1). Rows and columns are put in order at the end.
template <typename T>
void TMatrix3D<T>::invert_general() {
    bool row_open[4] = {true, true, true, true}, column_open[4] = {true, true, true, true};
    int row_of[4], column_of[4]; // the row of the pivot in each column, and the other way round
    for (int step = 0; step < 4; ++step) {
        T largest = 0;
        int row = 0, column = 0;
        for (int r = 0; r < 4; ++r)
            for (int c = 0; c < 4; ++c)
                if (row_open[r] && column_open[c] && std::fabs(_m[4 * r + c]) >= largest) {
                    largest = std::fabs(_m[4 * r + c]);
                    row = r;
                    column = c;
                }
        if (largest == 0) throw SingularMatrix3DException(0);
        row_open[row] = column_open[column] = false;
        row_of[column] = row;
        column_of[row] = column;
        T* const pivot_row = _m + 4 * row;
        const T factor = 1 / pivot_row[column];
        pivot_row[column] = 1;
        for (int c = 0; c < 4; ++c) pivot_row[c] *= factor;
        for (int r = 0; r < 4; ++r) {
            if (r == row) continue;
            const T share = std::exchange(_m[4 * r + column], 0);
            for (int c = 0; c < 4; ++c) _m[4 * r + c] -= share * pivot_row[c];
        }
    }
    const TMatrix3D eliminated = *this;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) _m[4 * r + c] = eliminated._m[4 * row_of[r] + column_of[c]];
    _flags = 0;
}

} // namespace math
