#include "tests/math/support.h"

#include <limits>

using namespace math_test;

namespace {

TEST(Vector, NormalizeKeepsTheDirectionOrGivesUp) {
    expect_near(V3(3, 0, 4).Normalize(), {0.6, 0, 0.8}, 1e-15);
    EXPECT_EQ(V3(1e-13, 0, 0).Normalize(), V3());
    EXPECT_EQ(V3(1e-12, 0, 0).Normalize(), V3());
    EXPECT_EQ(V3(std::nan(""), 1, 1).Normalize(), V3());
    Inputs inputs(1);
    for (int i = 0; i < 1000; ++i) {
        const V3 v = inputs.vector(1e6), n = v.Normalized();
        EXPECT_NEAR(length(n), 1, 1e-15);
        EXPECT_GT(dot(n, v), 0);
        EXPECT_NEAR(length(cross(n, v)) / length(v), 0, 1e-15);
    }
}

TEST(Vector, AngleIsThatOfTheArcTangent) {
    Inputs inputs(2);
    for (int i = 0; i < 1000; ++i) {
        const V3 a = inputs.vector(10), b = inputs.vector(0.1);
        EXPECT_NEAR(a ^ b, std::atan2(length(cross(a, b)), dot(a, b)), 1e-7);
        EXPECT_EQ(a ^ b, b ^ a);
        // Parallel vectors, whatever the rounding of the cosine does.
        EXPECT_NEAR(a ^ (a * inputs.number(0.1, 9)), 0, 3e-8);
    }
    EXPECT_EQ(V3(1, 0, 0) ^ V3(), 0);
    EXPECT_EQ(V3(1e-30, 0, 0) ^ V3(0, 1e-30, 0), 0);
    EXPECT_EQ(V3(1, 0, 0) ^ V3(-1, 0, 0), pi);
    EXPECT_EQ(V2(0, 2) ^ V2(3, 0), pi / 2);
}

TEST(Vector, ArcCosineIsClamped) {
    EXPECT_EQ(math::acos(1.0000001), 0);
    EXPECT_EQ(math::acos(-2), pi);
    EXPECT_NEAR(math::acos(0.5), pi / 3, 1e-15);
    EXPECT_TRUE(std::isnan(math::acos(std::nan(""))));
}

TEST(Vector, Arithmetic) {
    V3 v(1, -2, 4);
    v /= 2;
    EXPECT_EQ(v, V3(0.5, -1, 2));
    v /= 0;
    EXPECT_EQ(v, V3(1, -1, 1) * std::numeric_limits<double>::infinity());
    EXPECT_EQ(-(V3(1, 2, 3) - 2.0 * V3(4, 5, 6) + V3(1, 1, 1) * 3 / 3), V3(6, 7, 8));
    EXPECT_EQ(cross(V3::Ex(), V3::Ey()), V3::Ez());
    EXPECT_EQ(cross(V3::Ey(), V3::Ez()), V3::Ex());
    EXPECT_EQ(dot(V3(1, 2, 3), V3(10, 100, 1000)), 3210);
    EXPECT_EQ(-(V2(1, 2) - 2.0 * V2(4, 5) + V2(1, 1) * 3 / 3), V2(6, 7));
    EXPECT_EQ(dot(V2(1, 2), V2(10, 100)), 210);
    EXPECT_GT(cross(V2(1, 0), V2(0, 1)), 0);
}

} // namespace
