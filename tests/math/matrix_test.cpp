#include "tests/math/support.h"

using namespace math_test;

namespace {

M3 changed(int row, int column, double value) {
    M3 m;
    m(row, column) = value;
    m.setFlags();
    return m;
}

TEST(Vector, NormalizeAndAngle) {
    for (const V3& v : {V3(1e-13, 0, 0), V3(1e-12, 0, 0), V3(NAN, 1, 1)})
        EXPECT_EQ(v.Normalized(), V3());
    Inputs inputs(2);
    for (int i = 0; i < 1000; ++i) {
        const V3 a = inputs.vector(10), b = inputs.vector(0.1);
        expect_near(a.Normalized() * length(a), a, 1e-14);
        EXPECT_NEAR(a ^ b, std::atan2(length(cross(a, b)), dot(a, b)), 1e-7);
        // Parallel vectors, whatever the rounding of the cosine does.
        EXPECT_NEAR(a ^ (a * inputs.number(0.1, 9)), 0, 3e-8);
    }
    EXPECT_EQ(V3(1e-30, 0, 0) ^ V3(0, 1e-30, 0), 0);
    EXPECT_EQ(math::acos(-2), pi);
    EXPECT_TRUE(std::isnan(math::acos(NAN)));
    V3 v(1, -2, 4);
    EXPECT_EQ(v /= 0, V3(1, -1, 1) * INFINITY);
    EXPECT_EQ(-(V3(1, 2, 3) - 2.0 * V3(4, 5, 6) + V3(1, 1, 1) * 3 / 3), V3(6, 7, 8));
}

TEST(Matrix, FlagsTellWhatAMatrixIs) {
    const std::pair<M3, int> table[] = {
        {M3::HI(), 3},
        {changed(3, 3, 2), 0},
        {changed(3, 1, NAN), 0},
        {changed(3, 0, -0.0), 3},
        {changed(0, 0, 1 + 4e-8), 1}, // its squared length is within 2^-23 of 1
        {changed(1, 1, 1 + 7e-8), 0},
        {changed(2, 0, 1e-38), 1}, // not exactly 0, but orthogonal within the bound
        {changed(2, 0, 1e-37), 0},
        {changed(0, 1, NAN), 0},
        {changed(0, 3, NAN), 1},
        {M3(0, 1, 0, 5, -1, 0, 0, 6, 0, 0, 1, 7, 0, 0, 0, 1), 1},
        {M3::BuildRotate(V3::Ez(), 0), 3},
        {M3::BuildRotate(V3::Ez(), pi / 2), 1},
        {M3::BuildShift(V3()), 3},
        {M3::BuildShift({0, 0, 1e-300}), 1},
    };
    for (const auto& [matrix, flags] : table)
        EXPECT_EQ(matrix.flags(), flags) << "line " << &matrix - &table[0].first;
}

TEST(Matrix, RotationTurnsAboutItsAxis) {
    Inputs inputs(1);
    for (int i = 0; i < 2000; ++i) {
        const V3 axis = inputs.unit(), v = inputs.vector(10);
        const double angle = inputs.number(-7, 7);
        // Rodrigues: the part along the axis stays, the rest turns in its plane.
        const V3 along = axis * dot(axis, v), rest = v - along;
        expect_near(M3::BuildRotate(axis * inputs.number(0.01, 100), angle) * v,
                    along + rest * std::cos(angle) + cross(axis, rest) * std::sin(angle), 1e-13);
    }
    expect_near(M3::BuildRotate(V3(), pi), M3(-1, 0, 0, 0, 0, -1, 0, 0, 0, 0, -1, 0, 0, 0, 0, 1),
                0);
}

TEST(Matrix, GeneralProductDividesByTheProjectiveRow) {
    EXPECT_EQ(changed(3, 3, 2) * V3(2, 4, 8), V3(1, 2, 4));
    const M3 focus = changed(3, 0, -1);
    EXPECT_EQ(focus * V3(0.5, 1, 2), V3(1, 2, 4));
    EXPECT_THROW(focus * V3(1, 5, 5), math::VectorInFocusException);
    EXPECT_THROW(focus & V3(1, 5, 5), math::VectorInFocusException);
    EXPECT_THROW(focus.X(), math::VectorInFocusException);
    const V3 zeros(-0.0, -0.0, -0.0); // the identity changes nothing at all
    EXPECT_TRUE(std::signbit((M3() * zeros).y));
}

TEST(Matrix, ProductIsExactToTheLastBit) {
    Inputs inputs(2);
    const auto rigid = [&] {
        M3 m = M3::BuildRotate(inputs.whole(0, 1) ? V3::Ex() : V3::Ey(), inputs.number(-3, 3));
        const V3 t = inputs.vector(inputs.whole(0, 20) ? 9 : 1e308);
        m(0, 3) = t.x, m(1, 3) = inputs.whole(0, 9) ? t.y : -0.0, m(2, 3) = t.z;
        if (inputs.whole(0, 20) == 0) m(inputs.whole(0, 2), inputs.whole(0, 3)) = INFINITY;
        if (inputs.whole(0, 9) == 0) m.Transpose(); // still called rigid
        return m;
    };
    for (int n = 0; n < 4000; ++n) {
        const M3 a = n % 2 ? rigid() : inputs.matrix(2), b = n % 4 > 1 ? rigid() : inputs.matrix(2);
        const M3 product = a * b;
        EXPECT_EQ(product.flags(), n % 4 == 3 ? 1 : 0);
        for (int i = 0; i < 16; ++i) {
            double sum = 0.0;
            for (int k = 3; k >= 0; --k) {
                const volatile double term = a(i / 4, k) * b(k, i % 4);
                sum += term;
            }
            const double got = product(i / 4, i % 4);
            EXPECT_TRUE(got == sum ? std::signbit(got) == std::signbit(sum)
                                   : std::isnan(got) && std::isnan(sum))
                << got << " instead of " << sum << " in element " << i;
        }
    }
}

TEST(Matrix, ProductAppliesTheRightFactorFirstAndKeepsFlags) {
    Inputs inputs(3);
    const M3 turn = inputs.rotation(), shift = M3::BuildShift(inputs.vector(5));
    expect_near((turn * shift) * V3(1, 2, 3), turn * (shift * V3(1, 2, 3)), 1e-13);
    const M3 there = M3::BuildShift({1, 2, 3}), back = M3::BuildShift({-1, -2, -3});
    expect_near(there * back, M3::HI(), 0);
    EXPECT_EQ((there * back).flags(), 1);
    EXPECT_EQ((M3::HI() * there).flags(), 1);
    EXPECT_EQ((there * M3::HI()).flags(), 1);
    EXPECT_EQ((M3::HI() * M3()).flags(), 3);
    EXPECT_EQ((changed(3, 3, 2) * there).flags(), 0);
}

} // namespace
