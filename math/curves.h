// Interpolation, and the search for a root. Curves take vectors of either kind or doubles.

#pragma once

#include <cmath>
#include <utility>

namespace math {

// The point that far on the way from a (s = 0) to b (s = 1); s may lie beyond [0, 1].
template <typename V>
V LinApprox(const V& a, const V& b, double s) {
    return a + (b - a) * s;
}

// The cubic from p0 at s = 0 to p1 at s = 1 with the tangents t0 and t1 there (Hermite's form).
template <typename V>
V HermitSpline(const V& p0, const V& p1, const V& t0, const V& t1, double s) {
    const double r = 1 - s;
    return p0 * (r * r * (1 + 2 * s)) + p1 * (s * s * (3 - 2 * s)) +
           LinApprox(t0, V(-t1), s) * (s * r);
}

// A root of f in [a, b], where f(a) and f(b) differ in sign, to within 2e-12 |root| + tol: zeroin
// of Forsythe, Malcolm and Moler, Computer Methods for Mathematical Computations, 1977, after
// Brent. f is called with a and b first. Without a change of sign the result is some point of
// [a, b]; the search always ends.
template <typename Function>
double Zeroin(double a, double b, Function&& f, double tol) {
    constexpr int max_steps = 10000; // bisection alone needs some 2100 for all doubles
    double fa = f(a);
    double fb = f(b);
    double c = a, fc = fa, d = b - a, e = d; // the root lies between b, the best so far, and c
    for (int step = 0; step < max_steps; ++step) {
        if (std::fabs(fc) < std::fabs(fb)) {
            a = b, b = c, c = a;
            fa = fb, fb = fc, fc = fa;
        }
        const double tolerance = 1e-12 * std::fabs(b) + 0.5 * tol;
        const double middle = 0.5 * (c - b);
        if (std::fabs(middle) <= tolerance || fb == 0) break;
        const double before = std::exchange(e, d);
        bool bisect = true;
        if (std::fabs(before) >= tolerance && std::fabs(fa) > std::fabs(fb)) {
            // The secant, or the inverse parabola through three points.
            const double s = fb / fa;
            double p = 2 * middle * s, q = 1 - s;
            if (a != c) {
                const double t = fa / fc, r = fb / fc;
                p = s * (2 * middle * t * (t - r) - (b - a) * (r - 1));
                q = (t - 1) * (r - 1) * (s - 1);
            }
            if (p > 0) q = -q;
            p = std::fabs(p);
            bisect = 2 * p >= 3 * middle * q - std::fabs(tolerance * q) ||
                     p >= std::fabs(0.5 * before * q);
            if (!bisect) d = p / q;
        }
        if (bisect) d = e = middle;
        a = b;
        fa = fb;
        b += std::fabs(d) > tolerance ? d : std::copysign(tolerance, middle);
        fb = f(b);
        if ((fb > 0) == (fc > 0)) {
            c = a, fc = fa;
            d = e = b - a;
        }
    }
    return b;
}

} // namespace math
