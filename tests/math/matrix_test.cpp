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

TEST(Matrix, FlagsClassifyTheMatrix) {
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
    EXPECT_THROW(focus * V3(1, 5, 5), VectorInFocusException);
    EXPECT_THROW(focus & V3(1, 5, 5), VectorInFocusException);
    EXPECT_THROW(focus.X(), VectorInFocusException);
    const V3 zeros(-0.0, -0.0, -0.0); // the identity changes nothing at all
    EXPECT_TRUE(std::signbit((M3() * zeros).y));
}

TEST(Matrix, ProductAddsFromTheLastColumnDown) {
    const M3 m(1, -1e17, 1, 1e17, -0.0, -0.0, -0.0, -0.0, 0, 0, 0, 0, 0, 0, 0, 0);
    const M3 ones(1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1);
    EXPECT_EQ((m * ones)(0, 2), 1) << "any other order loses a 1";
    EXPECT_FALSE(std::signbit((m * ones)(1, 2))) << "the sum starts with 0.0";
}

TEST(Matrix, ProductAppliesTheRightFactorFirstAndKeepsFlags) {
    Inputs inputs(3);
    const M3 shift = M3::BuildShift(inputs.vector(5));
    for (const M3& m : {inputs.rotation(), inputs.matrix(2)})
        expect_near((m * shift) * V3(1, 2, 3), m * (shift * V3(1, 2, 3)), 1e-13);
    const M3 there = M3::BuildShift({1, 2, 3}), back = M3::BuildShift({-1, -2, -3});
    expect_near(there * back, M3::HI(), 0);
    EXPECT_EQ((there * back).flags(), 1);
    EXPECT_EQ((M3::HI() * there).flags(), 1);
    EXPECT_EQ((there * M3::HI()).flags(), 1);
    EXPECT_EQ((M3::HI() * M3()).flags(), 3);
    EXPECT_EQ((changed(3, 3, 2) * there).flags(), 0);
}

} // namespace
