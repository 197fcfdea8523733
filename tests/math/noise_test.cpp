#include "math/noise.h"

#include "tests/math/support.h"

using namespace math_test;
using math::LatticeVNoise2D;
using math::VNoise2D;

namespace {

TEST(Noise, BlendsTheCornersOfItsCell) {
    Inputs inputs(2);
    for (int n = 0; n < 3000; ++n) {
        const std::int64_t i = inputs.whole(-300, 300), j = inputs.whole(-300, 300);
        const int seed = inputs.whole(-999, 999);
        const double fx = n % 3 ? inputs.number(0, 1) : 0, fy = n % 3 ? inputs.number(0, 1) : 0;
        const auto corner = [&](int di, int dj) { return math::FRandom(i + di, j + dj, seed); };
        const double c00 = corner(0, 0), c10 = corner(1, 0), c01 = corner(0, 1), c11 = corner(1, 1);
        const double b = c10 - c00, c = c01 - c00, d = c11 - c10 - c01 + c00;
        for (const double k : {0.0, 1.0, 0.3}) {
            const double sx = std::lerp(fx, fx * fx * (3 - 2 * fx), k);
            const double sy = std::lerp(fy, fy * fy * (3 - 2 * fy), k);
            double value;
            V2 gradient;
            const double x = static_cast<double>(i) + fx, y = static_cast<double>(j) + fy;
            LatticeVNoise2D::get_value_and_grad(x, y, seed, value, gradient, k);
            EXPECT_NEAR(value, c00 + b * sx + c * sy + d * sx * sy, 1e-12);
            EXPECT_NEAR(gradient.x, (b + d * sy) * 4 * sx * (1 - sx), 1e-12);
            EXPECT_NEAR(gradient.y, (c + d * sx) * 4 * sy * (1 - sy), 1e-12);
            EXPECT_TRUE(n % 3 || (value == c00 && gradient == V2())) << "on the lattice";
        }
    }
}

TEST(Noise, TwoLatticesAreAveragedAndSlide) {
    Inputs inputs(3);
    for (int n = 0; n < 1000; ++n) {
        const double x = inputs.number(-200, 200), y = inputs.number(-200, 200);
        const double r = std::sqrt(0.5), t = n % 2 ? inputs.number(-9, 9) : 0;
        double value, first, second;
        V2 gradient, g1, g2;
        VNoise2D::get_value_and_grad(t, x, y, n, value, gradient, 0.8);
        LatticeVNoise2D::get_value_and_grad(x, y + t, n, first, g1, 0.8);
        LatticeVNoise2D::get_value_and_grad(r * (x - y), r * (x + y) - t, n, second, g2, 0.8);
        EXPECT_NEAR(value, (first + second) / 2, 1e-11);
        // Up a turned gradient g2 means up along both turned axes.
        const V2 off = (g1 + V2(r, -r) * g2.x + V2(r, r) * g2.y) * 0.5 - gradient;
        EXPECT_NEAR(std::hypot(off.x, off.y), 0, 1e-11);
        EXPECT_TRUE(n % 2 || (VNoise2D::value(x, y, n, 0.8) == value &&
                              VNoise2D::grad(x, y, n, 0.8) == gradient));
    }
}

TEST(Noise, AnyCoordinateHasAValue) {
    for (const double far : {0x1p52, -0x1p62, 0x1p63, -0x1p63, 1e300, -1e300})
        EXPECT_NEAR(VNoise2D::value(far, -far, INT64_MIN), 0.5, 0.5) << far;
    EXPECT_TRUE(std::isnan(VNoise2D::value(0, INFINITY, 1)));
}

} // namespace
