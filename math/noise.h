// Value noise of the plane: numbers at the points of an integer lattice, blended in between.
// LatticeVNoise2D uses one lattice, VNoise2D the mean of it and one turned by 45 degrees, so that
// the axes do not show. Both only read constants: any thread may call them.
//
// All functions take a point (x, y) in cells, the seed that selects the lattice (FRandom), and the
// weight k of the smoothing: 1 blends by the smoothstep 3t^2 - 2t^3, 0 linearly. Values are in
// [0, 1] for k in [0, 1]. A gradient uses 4s(1 - s), where s is the blended fraction, in place of
// the derivative of the blending: it is 0 on the lattice, largest in the middle, and not the exact
// derivative of the value. NaN or infinite coordinates give NaN; all coordinates beyond 64 bits
// lie in the same cell.

#pragma once

#include "math/random.h"
#include "math/vector.h"

#include <limits>

namespace math {

class LatticeVNoise2D {
  public:
    static double value(double x, double y, std::int64_t seed, double k = 1.0) {
        return Cell(x, y, seed, k).value();
    }

    static TGeomVector2D<double> grad(double x, double y, std::int64_t seed, double k = 1.0) {
        return Cell(x, y, seed, k).grad();
    }

    // Both from the same look-ups.
    static void get_value_and_grad(double x, double y, std::int64_t seed, double& value,
                                   TGeomVector2D<double>& gradient, double k = 1.0) {
        const Cell cell(x, y, seed, k);
        value = cell.value();
        gradient = cell.grad();
    }

  private:
    // The cell around a point: the blended fractions and the lattice values at its corners.
    struct Cell {
        double sx, sy, c00, c01, c10, c11;

        Cell(double x, double y, std::int64_t seed, double k) {
            const std::int64_t i = cell_of(x), j = cell_of(y);
            sx = blended(x - std::floor(x), k);
            sy = blended(y - std::floor(y), k);
            c00 = FRandom(i, j, seed);
            c01 = FRandom(i, j + 1, seed);
            c10 = FRandom(i + 1, j, seed);
            c11 = FRandom(i + 1, j + 1, seed);
        }

        static std::int64_t cell_of(double x) {
            if (!(x >= -0x1p63 && x < 0x1p63)) return std::numeric_limits<std::int64_t>::min();
            return static_cast<std::int64_t>(std::floor(x));
        }
        static double blended(double f, double k) {
            return k * (f * f) * (3 - 2 * f) + (1 - k) * f;
        }

        double value() const {
            return (1 - sy) * ((1 - sx) * c00 + sx * c10) + sy * ((1 - sx) * c01 + sx * c11);
        }
        TGeomVector2D<double> grad() const {
            return {4 * sx * (1 - sx) * ((1 - sy) * (c10 - c00) + sy * (c11 - c01)),
                    4 * sy * (1 - sy) * ((1 - sx) * (c01 - c00) + sx * (c11 - c10))};
        }
    };
};

class VNoise2D {
  public:
    static double value(double x, double y, std::int64_t seed, double k = 1.0) {
        return 0.5 * (LatticeVNoise2D::value(x, y, seed, k) +
                      LatticeVNoise2D::value(c * x - c * y, c * x + c * y, seed, k));
    }

    static TGeomVector2D<double> grad(double x, double y, std::int64_t seed, double k = 1.0) {
        return turned_back(LatticeVNoise2D::grad(x, y, seed, k),
                           LatticeVNoise2D::grad(c * x - c * y, c * x + c * y, seed, k));
    }

    static void get_value_and_grad(double x, double y, std::int64_t seed, double& value,
                                   TGeomVector2D<double>& gradient, double k = 1.0) {
        get_value_and_grad(0, x, y, seed, value, gradient, k);
    }

    // Moving noise: the two lattices slide by t in opposite directions.
    static void get_value_and_grad(double t, double x, double y, std::int64_t seed, double& value,
                                   TGeomVector2D<double>& gradient, double k = 1.0) {
        double first, second;
        TGeomVector2D<double> g1, g2;
        LatticeVNoise2D::get_value_and_grad(x, y + t, seed, first, g1, k);
        LatticeVNoise2D::get_value_and_grad(c * x - c * y, c * x + c * y - t, seed, second, g2, k);
        value = 0.5 * (first + second);
        gradient = turned_back(g1, g2);
    }

  private:
    static constexpr double c = 0.7071067811865476; // the sine and cosine of 45 degrees

    // The chain rule: the second gradient is in the turned coordinates.
    static TGeomVector2D<double> turned_back(const TGeomVector2D<double>& g1,
                                             const TGeomVector2D<double>& g2) {
        return {(c * g2.x + c * g2.y + g1.x) * 0.5, (-c * g2.x + c * g2.y + g1.y) * 0.5};
    }
};

} // namespace math
