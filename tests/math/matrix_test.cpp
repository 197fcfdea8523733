#include "tests/math/support.h"

#include <limits>

using namespace math_test;

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

TEST(Matrix, FlagsTellWhatAMatrixIs) {
    M3 tall;
    tall(3, 3) = 2;
    M3 nearly;
    nearly(0, 0) = 1 + 4e-8; // its squared length is within 2^-23 of 1
    M3 too_long;
    too_long(1, 1) = 1 + 7e-8;
    M3 sheared;
    sheared(2, 0) = 1e-37;
    M3 barely;
    barely(2, 0) = 1e-38; // not exactly 0, but orthogonal within the bound
    M3 nan_row;
    nan_row(3, 1) = std::nan("");
    M3 nan_block;
    nan_block(0, 1) = std::nan("");
    M3 nan_shift;
    nan_shift(0, 3) = std::nan("");
    M3 minus_zero;
    minus_zero(3, 0) = minus_zero(1, 2) = -0.0;
    const M3 swap(0, 1, 0, 5, -1, 0, 0, 6, 0, 0, 1, 7, 0, 0, 0, 1);
    const std::pair<M3, int> table[] = {
        {M3(), 3},   {M3::HI(), 3}, {tall, 0}, {nearly, 1},    {too_long, 0},  {sheared, 0},
        {barely, 1}, {nan_row, 0},  {swap, 1}, {nan_block, 0}, {nan_shift, 1}, {minus_zero, 3},
    };
    for (auto [matrix, flags] : table) {
        matrix.setFlags();
        EXPECT_EQ(matrix.flags(), flags) << &matrix - &table[0].first;
    }
    EXPECT_EQ(swap.flags(), 1);
}

TEST(Matrix, RotationTurnsAboutItsAxis) {
    Inputs inputs(1);
    for (int i = 0; i < 2000; ++i) {
        const V3 axis = inputs.unit();
        const double angle = inputs.number(-7, 7);
        const M3 r = M3::BuildRotate(axis * inputs.number(0.01, 100), angle);
        // Rodrigues: the part along the axis stays, the rest turns in its plane.
        const V3 v = inputs.vector(10), along = axis * dot(axis, v), rest = v - along;
        expect_near(r * v, along + rest * std::cos(angle) + cross(axis, rest) * std::sin(angle),
                    1e-13);
    }
    EXPECT_EQ(M3::BuildRotate(V3::Ez(), 0).flags(), 3);
    const M3 quarter = M3::BuildRotate(V3::Ez(), pi / 2);
    EXPECT_EQ(quarter.flags(), 1);
    expect_near(quarter * V3::Ex(), V3::Ey(), 1e-15);
    const double c = std::cos(0.7);
    expect_near(M3::BuildRotate(V3(), 0.7), M3(c, 0, 0, 0, 0, c, 0, 0, 0, 0, c, 0, 0, 0, 0, 1), 0);
}

TEST(Matrix, ShiftMovesAndKnowsWhenItDoesNot) {
    EXPECT_EQ(M3::BuildShift(V3()).flags(), 3);
    for (const V3& t : {V3(1, 0, 0), V3(0, -2, 0), V3(0, 0, 1e-300)}) {
        EXPECT_EQ(M3::BuildShift(t).flags(), 1);
        EXPECT_EQ(M3::BuildShift(t) * V3(), t);
    }
}

TEST(Matrix, GeneralProductDividesByTheProjectiveRow) {
    M3 half;
    half(3, 3) = 2;
    half(0, 3) = 6;
    half.setFlags();
    EXPECT_EQ(half * V3(), V3(3, 0, 0));
    EXPECT_EQ(half * V3(2, 4, 8), V3(4, 2, 4));
    M3 focus;
    focus(3, 0) = -1;
    focus.setFlags();
    EXPECT_EQ(focus * V3(0.5, 1, 2), V3(1, 2, 4));
    EXPECT_THROW(focus * V3(1, 5, 5), VectorInFocusException);
}

TEST(Matrix, ProductIsExactToTheLastBit) {
    Inputs inputs(2);
    const auto rigid = [&] {
        M3 m = M3::BuildRotate(inputs.whole(0, 1) ? V3::Ex() : V3::Ey(), inputs.number(-3, 3));
        const V3 t = inputs.vector(inputs.whole(0, 20) ? 9 : 1e308);
        m(0, 3) = t.x, m(1, 3) = inputs.whole(0, 9) ? t.y : -0.0, m(2, 3) = t.z;
        if (inputs.whole(0, 20) == 0) m(inputs.whole(0, 2), 3) = inf;
        return m;
    };
    for (int n = 0; n < 4000; ++n) {
        const M3 a = n % 2 ? rigid() : inputs.matrix(2), b = n % 4 > 1 ? rigid() : inputs.matrix(2);
        const M3 product = a * b;
        EXPECT_EQ(product.flags(), n % 4 == 3 ? 1 : 0);
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 4; ++j) {
                double sum = 0.0;
                for (int k = 3; k >= 0; --k) {
                    const volatile double term = a(i, k) * b(k, j);
                    sum += term;
                }
                const double got = product(i, j);
                EXPECT_TRUE(got == sum ? std::signbit(got) == std::signbit(sum)
                                       : std::isnan(got) && std::isnan(sum))
                    << got << " instead of " << sum << " at " << i << ", " << j;
            }
    }
}

TEST(Matrix, ProductAppliesTheRightFactorFirst) {
    Inputs inputs(3);
    for (int n = 0; n < 1000; ++n) {
        const M3 a = M3::BuildRotate(inputs.unit(), inputs.number(-3, 3));
        const M3 b = M3::BuildShift(inputs.vector(5));
        const V3 v = inputs.vector(5);
        expect_near((a * b) * v, a * (b * v), 1e-13);
    }
}

TEST(Matrix, ProductFlags) {
    const M3 quarter = M3::BuildRotate(V3::Ey(), pi / 2), there = M3::BuildShift({1, 2, 3});
    const M3 back = M3::BuildShift({-1, -2, -3});
    expect_near(there * back, M3::HI(), 0);
    EXPECT_EQ((there * back).flags(), 1);
    EXPECT_EQ((M3::HI() * there).flags(), 1);
    EXPECT_EQ((quarter * M3::HI()).flags(), 1);
    EXPECT_EQ((M3::HI() * M3()).flags(), 3);
    M3 tall;
    tall(3, 3) = 2;
    tall.setFlags();
    EXPECT_EQ((tall * there).flags(), 0);
    EXPECT_EQ((M3::HI() * tall)(3, 3), 2);
}

} // namespace
