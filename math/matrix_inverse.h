// The inverse of a matrix. Part of math/matrix.h, which tells what the functions give.

#pragma once

#include "math/matrix.h"

#include <cstdint>
#include <limits>
#include <type_traits>
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

template <typename T>
[[gnu::cold, gnu::noinline]] void TMatrix3D<T>::throw_singular() {
    throw SingularMatrix3DException(0);
}

// Whole numbers as wide as T, and constants that pick one of four rows or columns of a matrix that
// is kept as eight pairs, row by row.
template <typename T>
struct InverseMasks {
    using Whole = std::conditional_t<sizeof(T) == 8, std::int64_t, std::int32_t>;
    using Bits = Pair<Whole>;

    static constexpr Bits none = {0, 0}, all = {-1, -1}, left = {-1, 0}, right = {0, -1};
    static constexpr Bits in_row[4][4] = {{all, none, none, none},
                                          {none, all, none, none},
                                          {none, none, all, none},
                                          {none, none, none, all}};
    static constexpr Bits in_column[4][2] = {
        {left, none}, {right, none}, {none, left}, {none, right}};
    static constexpr Whole size_bits = std::numeric_limits<Whole>::max(); // all but the sign
    // From 1, as numbers, so that 0 is none.
    static constexpr Pair<T> places[8] = {{1, 2},  {3, 4},   {5, 6},   {7, 8},
                                          {9, 10}, {11, 12}, {13, 14}, {15, 16}};

    static Bits bits(Pair<T> pair) { return reinterpret_cast<Bits>(pair); }
    static Pair<T> numbers(Bits pair) { return reinterpret_cast<Pair<T>>(pair); }

    static Pair<T> larger(Pair<T> a, Pair<T> b) { return a > b ? a : b; }
    static T largest(const Pair<T> (&of)[8]) {
        const Pair<T> upper = larger(larger(of[0], of[1]), larger(of[2], of[3]));
        const Pair<T> lower = larger(larger(of[4], of[5]), larger(of[6], of[7]));
        const Pair<T> best = larger(upper, lower);
        return best[0] > best[1] ? best[0] : best[1];
    }

    // The largest element in what is open of the rows and columns, of several the last: its place,
    // or -1 when it is 0.
    static int find_pivot(const Pair<T> (&m)[8], const Bits (&rows)[4], const Bits (&columns)[2]) {
        Pair<T> sizes[8], found[8];
        for (int i = 0; i < 8; ++i) sizes[i] = numbers(bits(m[i]) & rows[i / 2] & columns[i % 2]);
        const T size = largest(sizes);
        for (int i = 0; i < 8; ++i)
            found[i] = numbers(Bits(sizes[i] == both(size)) & bits(places[i]));
        return size > 0 ? static_cast<int>(largest(found)) - 1 : -1;
    }
};

// In place: the column of each pivot takes in turn the column of the inverse that the elimination
// makes (Press and others, Numerical Recipes, 2.1; Bauer and Reinsch, 1971). Rows and columns stay
// where they are; where the pivots lay tells at the end where each element belongs. Pivots cannot
// be foreseen, so that masks, and no branches, tell the row and the column of a pivot from others.
template <typename T>
[[gnu::noinline]] void TMatrix3D<T>::invert_general() {
    using Masks = InverseMasks<T>;
    using Bits = typename Masks::Bits;
    const Bits sizes = {Masks::size_bits, Masks::size_bits};
    Bits open_rows[4] = {sizes, sizes, sizes, sizes};
    Bits open_columns[2] = {Masks::all, Masks::all};
    Pair<T> m[8];
    for (int i = 0; i < 8; ++i) m[i] = load_pair(_m + 2 * i);
    unsigned column_of_row = 0, row_of_column = 0; // a byte each
    for (int step = 0; step < 4; ++step) {
        const int place = Masks::find_pivot(m, open_rows, open_columns);
        if (place < 0) throw_singular();
        const int row = place / 4, column = place % 4;
        column_of_row |= static_cast<unsigned>(column) << (8 * row);
        row_of_column |= static_cast<unsigned>(row) << (8 * column);
        const Bits in_column[2] = {Masks::in_column[column][0], Masks::in_column[column][1]};
        const Pair<T> factor = both(1 / _m[place]);
        Pair<T> pivot_row[2];
        for (int h = 0; h < 2; ++h) {
            const Pair<T> scaled = load_pair(_m + 4 * row + 2 * h) * factor;
            pivot_row[h] = Masks::numbers((Masks::bits(scaled) & ~in_column[h]) |
                                          (Masks::bits(factor) & in_column[h]));
            open_columns[h] &= ~in_column[h];
        }
        // The pivot's own row starts from 0 and takes -1 times less of itself.
        for (int r = 0; r < 4; ++r) {
            const Bits own = Masks::in_row[row][r];
            const Pair<T> share = Masks::numbers((Masks::bits(both(_m[4 * r + column])) & ~own) |
                                                 (Masks::bits(both(T(-1))) & own));
            for (int h = 0; h < 2; ++h)
                m[2 * r + h] = Masks::numbers(Masks::bits(m[2 * r + h]) & ~in_column[h] & ~own) -
                               share * pivot_row[h];
            open_rows[r] &= ~own;
        }
        for (int i = 0; i < 8; ++i) store_pair(_m + 2 * i, m[i]);
    }
    const auto byte = [](unsigned bytes, int i) { return bytes >> (8 * i) & 3; };
    for (int r = 0; r < 4; ++r) {
        const T* const from = _m + 4 * byte(row_of_column, r);
        m[2 * r] = Pair<T>{from[byte(column_of_row, 0)], from[byte(column_of_row, 1)]};
        m[2 * r + 1] = Pair<T>{from[byte(column_of_row, 2)], from[byte(column_of_row, 3)]};
    }
    for (int i = 0; i < 8; ++i) store_pair(_m + 2 * i, m[i]);
    _flags = 0;
}

} // namespace math
