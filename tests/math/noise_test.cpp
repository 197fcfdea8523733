#include "math/noise.h"

#include "tests/math/support.h"

using namespace math_test;
using math::LatticeVNoise2D;
using math::VNoise2D;

namespace {

TEST(Noise, IsTheHashOnTheLattice) {
    Inputs inputs(1);
    for (int n = 0; n < 2000; ++n) {
        const int i = inputs.whole(-300, 300), j = inputs.whole(-300, 300),
                  seed = inputs.whole(-9, 9);
        const double k = inputs.number(0, 1);
        EXPECT_EQ(LatticeVNoise2D::value(i, j, seed, k), math::FRandom(i, j, seed));
        EXPECT_EQ(LatticeVNoise2D::grad(i, j, seed, k), V2());
        // Approached from below, across the edge of the cell, it is the same.
        EXPECT_NEAR(LatticeVNoise2D::value(i - 1e-9, j - 1e-9, seed, k), math::FRandom(i, j, seed),
                    1e-8);
    }
}

TEST(Noise, BlendsTheCornersOfItsCell) {
    Inputs inputs(2);
    for (int n = 0; n < 2000; ++n) {
        const double x = inputs.number(-150, 150), y = inputs.number(-150, 150);
        const int seed = inputs.whole(-999, 999);
        const auto i = static_cast<std::int64_t>(std::floor(x)),
                   j = static_cast<std::int64_t>(std::floor(y));
        const double fx = x - std::floor(x), fy = y - std::floor(y);
        const double c00 = math::FRandom(i, j, seed), c10 = math::FRandom(i + 1, j, seed),
                     c01 = math::FRandom(i, j + 1, seed), c11 = math::FRandom(i + 1, j + 1, seed);
        const double b = c10 - c00, c = c01 - c00, d = c11 - c10 - c01 + c00;
        for (const double k : {0.0, 1.0, 0.3}) {
            const double sx = std::lerp(fx, fx * fx * (3 - 2 * fx), k);
            const double sy = std::lerp(fy, fy * fy * (3 - 2 * fy), k);
            double value;
            V2 gradient;
            LatticeVNoise2D::get_value_and_grad(x, y, seed, value, gradient, k);
            EXPECT_NEAR(value, c00 + b * sx + c * sy + d * sx * sy, 1e-14);
            EXPECT_NEAR(gradient.x, (b + d * sy) * 4 * sx * (1 - sx), 1e-14);
            EXPECT_NEAR(gradient.y, (c + d * sx) * 4 * sy * (1 - sy), 1e-14);
            EXPECT_EQ(value, LatticeVNoise2D::value(x, y, seed, k));
            EXPECT_EQ(gradient, LatticeVNoise2D::grad(x, y, seed, k));
        }
    }
}

TEST(Noise, TwoLatticesAreAveragedAndSlide) {
    Inputs inputs(3);
    for (int n = 0; n < 1000; ++n) {
        const V2 p = inputs.point(200);
        const double t = inputs.number(-9, 9), r = std::sqrt(0.5);
        const V2 turned(r * (p.x - p.y), r * (p.x + p.y));
        double value, moved, first, second;
        V2 gradient, moved_gradient, g1, g2;
        VNoise2D::get_value_and_grad(p.x, p.y, n, value, gradient, 0.8);
        EXPECT_EQ(VNoise2D::value(p.x, p.y, n, 0.8), value);
        EXPECT_EQ(VNoise2D::grad(p.x, p.y, n, 0.8), gradient);
        EXPECT_TRUE(0 <= value && value <= 1);
        VNoise2D::get_value_and_grad(t, p.x, p.y, n, moved, moved_gradient, 0.8);
        for (const double slide : {0.0, t}) {
            LatticeVNoise2D::get_value_and_grad(p.x, p.y + slide, n, first, g1, 0.8);
            LatticeVNoise2D::get_value_and_grad(turned.x, turned.y - slide, n, second, g2, 0.8);
            EXPECT_NEAR(slide == 0 ? value : moved, (first + second) / 2, 1e-11);
            // Up a turned gradient g2 means up along both turned axes.
            const V2 wanted = (g1 + V2(r, -r) * g2.x + V2(r, r) * g2.y) / 2;
            EXPECT_NEAR(length(wanted - (slide == 0 ? gradient : moved_gradient)), 0, 1e-11);
        }
    }
}

TEST(Noise, AnyCoordinateIsAnswered) {
    for (const double far : {0x1p52, -0x1p62, 0x1p63, -0x1p63, 1e300, -1e300})
        for (const double y : {0.5, far}) {
            const double value = VNoise2D::value(far, y, INT64_MIN);
            EXPECT_TRUE(0 <= value && value <= 1) << far;
        }
    EXPECT_TRUE(std::isnan(VNoise2D::value(NAN, 0, 1)));
    EXPECT_TRUE(std::isnan(VNoise2D::value(0, INFINITY, 1)));
}

} // namespace
