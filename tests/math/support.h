// Shared by the math tests: seeded random inputs and comparisons that print both sides.

#pragma once

#include "math/matrix.h"

#include <gtest/gtest.h>

#include <random>

namespace math_test {

using V2 = math::TGeomVector2D<double>;
using V3 = math::TGeomVector3D<double>;
using M3 = math::TMatrix3D<double>;

constexpr double pi = 3.141592653589793;

// Inputs that do not depend on the generator under test.
class Inputs {
  public:
    explicit Inputs(unsigned seed) : _engine(seed) {}
    double number(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(_engine);
    }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(_engine); }
    V3 vector(double size) {
        const double x = number(-size, size), y = number(-size, size), z = number(-size, size);
        return {x, y, z};
    }
    V3 unit() { return vector(1).Normalize(); }
    M3 matrix(double size) {
        M3 m;
        for (int i = 0; i < 16; ++i) m(i / 4, i % 4) = number(-size, size);
        m.setFlags();
        return m;
    }
    M3 rotation() {
        const V3 axis = unit();
        return M3::BuildRotate(axis, number(-pi, pi));
    }

  private:
    std::mt19937_64 _engine;
};

inline void expect_near(const V3& got, const V3& wanted, double tolerance) {
    EXPECT_NEAR(got.x, wanted.x, tolerance);
    EXPECT_NEAR(got.y, wanted.y, tolerance);
    EXPECT_NEAR(got.z, wanted.z, tolerance);
}

inline void expect_near(const M3& got, const M3& wanted, double tolerance) {
    for (int i = 0; i < 16; ++i)
        EXPECT_NEAR(got(i / 4, i % 4), wanted(i / 4, i % 4), tolerance) << "element " << i;
}

} // namespace math_test
