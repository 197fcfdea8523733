#include "math/geometry.h"

#include "tests/math/support.h"

#include <vector>

using namespace math_test;
using math::intersect;

namespace {

double cross(const V2& a, const V2& b) {
    return a.x * b.y - a.y * b.x;
}

// A polygon around a centre in the plane of u and v, with radii in [1, 3].
std::vector<V3> star(Inputs& inputs, int n, const V3& center, const V3& u, const V3& v) {
    std::vector<V3> polygon;
    for (int i = 0; i < n; ++i) {
        const double r = inputs.number(1, 3), angle = 2 * pi * i / n;
        polygon.push_back(center + u * (r * std::cos(angle)) + v * (r * std::sin(angle)));
    }
    return polygon;
}

TEST(Clip, KeepsJustThePartInside) {
    Inputs inputs(1);
    for (int n = 0; n < 300; ++n) {
        std::vector<V2> whole(math::max_clipped_vertices), part;
        int count = 0;
        for (const V3& v : star(inputs, inputs.whole(3, 19), {}, V3::Ex(), V3::Ey()))
            whole[count++] = {v.x, v.y};
        part = whole;
        const double a = inputs.number(-2, 2), b = inputs.number(-2, 2), c = inputs.number(-2, 2),
                     d = inputs.number(-2, 2);
        int part_count = count;
        math::polygon_clip(a, b, c, d, part.data(), part_count);
        double area = 0;
        for (int i = 0; i < part_count; ++i) {
            area += cross(part[i], part[(i + 1) % part_count]) / 2;
            EXPECT_LE(std::fabs(part[i].x - (b + d) / 2), std::fabs(b - d) / 2 + 1e-9);
            EXPECT_LE(std::fabs(part[i].y - (a + c) / 2), std::fabs(a - c) / 2 + 1e-9);
        }
        // The area again, by counting small cells of the rectangle.
        int inside = 0;
        for (int i = 0; i < 10000; ++i)
            inside += math::PolygonContainsPoint(
                whole.data(), count,
                {b + (d - b) * (i % 100 + 0.5) / 100, a + (c - a) * (i / 100 + 0.5) / 100});
        EXPECT_NEAR(area, std::fabs((a - c) * (b - d)) * inside / 1e4, 0.1);
    }
    // A comb, which each pass cuts into more pieces; one tooth too many; no vertices; a bad count.
    for (const auto& [count, left] : {std::pair{19, 37}, {20, 20}, {0, 0}, {-1, -1}}) {
        std::vector<V2> comb(math::max_clipped_vertices);
        for (int i = 1; i < 20; ++i) comb[i] = {i * 1.0, i % 2 ? 9.0 : -9.0};
        int clipped = count;
        EXPECT_EQ(math::polygon_clip(-1, 0, 1, 18, comb.data(), clipped), count == 19);
        EXPECT_EQ(clipped, left);
    }
}

TEST(Clip, Lines) {
    V2 out[9];
    int count = 0;
    EXPECT_TRUE(math::line_clip(-1, 0, 1, 4, {2, 7}, {0, 1}, out, count));
    EXPECT_EQ(out[0], V2(2, -1));
    EXPECT_EQ(out[1], V2(2, 1));
    EXPECT_FALSE(math::line_clip(-1, 0, 1, 4, {5, 0}, {0, 1}, out, count));
    EXPECT_FALSE(math::line_clip(-1, 0, 1, 4, {0, 9}, {1, 1}, out, count));
    Inputs inputs(2);
    for (int n = 0; n < 1000; ++n) {
        const V2 p(inputs.number(0, 4), inputs.number(-1, 1)), v(inputs.number(-1, 1), n % 3 * 0.5);
        ASSERT_TRUE(math::line_clip(1, 4, -1, 0, p, v, out, count));
        for (int i = 0; i < count; ++i) {
            EXPECT_NEAR(cross(out[i] - p, v) / std::hypot(v.x, v.y), 0, 1e-9);
            EXPECT_NEAR(std::min(2 - std::fabs(out[i].x - 2), 1 - std::fabs(out[i].y)), 0, 1e-9);
        }
    }
}

TEST(Contains, InsideOutsideAndOnTheBoundary) {
    const V2 notched[] = {{0, 0}, {4, 0}, {4, 4}, {2, 2}, {0, 4}};
    for (const V2& p : {V2(2, 1), V2(0.5, 3), V2(0, 0), V2(4, 4), V2(2, 2), V2(2, 0), V2(4, 2)})
        EXPECT_TRUE(math::PolygonContainsPoint(notched, 5, p)) << p.x << " " << p.y;
    for (const V2& p :
         {V2(2, 3), V2(-1, 0), V2(-1, 2), V2(-1, 4), V2(5, 0), V2(4.001, 2), V2(NAN, 1)})
        EXPECT_FALSE(math::PolygonContainsPoint(notched, 5, p)) << p.x << " " << p.y;
    EXPECT_FALSE(math::PolygonContainsPoint(nullptr, 0, {0, 0}));
    const math::Pyramid3D pyramid{{0, 3, 0}, {-1, 0, -1}, {-1, 0, 1}, {1, 0, 1}, {1, 0, -1}};
    EXPECT_TRUE(math::PyramidContainsPoint(pyramid, {0.3, 1, -0.3}));
    EXPECT_FALSE(math::PyramidContainsPoint(pyramid, {0.9, 1, 0}));
    EXPECT_FALSE(math::PyramidContainsPoint(pyramid, {0, 1, 0.9}));
}

TEST(Measures, DistancesAndDifferences) {
    EXPECT_NEAR(math::dist_to_plane({1, 1, 1}, V3::Ez(), {8, 9, -4}), 5, 1e-15);
    EXPECT_NEAR(math::dist_to_line({1, 1, 1}, V3::Ez(), {4, 5, -4}), 5, 1e-15);
    EXPECT_EQ(math::compute_normal(nullptr, 0), V3());
    EXPECT_FALSE(math::DifVect({1, 2, 3}, {1, 2, 3}, -1));
    EXPECT_TRUE(math::DifVect({0, 0, 3}, {0, 0, 4}, 0.25));
    EXPECT_FALSE(math::DifVect({0, 0, 3}, {0, 0, 4}, 0.26));
}

TEST(Intersect, HitsSatisfyBothEquations) {
    Inputs inputs(4);
    for (int n = 0; n < 2000; ++n) {
        const V3 p = inputs.vector(5), v = inputs.unit(), q = inputs.vector(5), s = inputs.unit();
        V3 out, direction, ray(7, 7, 7);
        double t = 7;
        ASSERT_TRUE(intersect(p, v, q, s, out));
        EXPECT_NEAR(dot(out - q, s), 0, 1e-9);
        EXPECT_NEAR(length(cross(out - p, v)), 0, 1e-9);
        const bool ahead = intersect(p, v, q, s, ray, t);
        EXPECT_EQ(ahead, dot(out - p, v) >= 0);
        EXPECT_EQ(ray, ahead ? out : V3(7, 7, 7));
        ASSERT_TRUE(intersect(p, v, q, s, out, direction));
        expect_near(direction, cross(v, s).Normalize(), 1e-15);
        EXPECT_NEAR(dot(out - p, v), 0, 1e-9);
        EXPECT_NEAR(dot(out - q, s), 0, 1e-9);
        const V3 r(inputs.number(1, 4), inputs.number(1, 4), inputs.number(1, 4));
        const auto level = [&](const V3& x) { return length(V3(x.x / r.x, x.y / r.y, x.z / r.z)); };
        const bool hit = intersect(p, v, r, out);
        EXPECT_TRUE(!hit || std::fabs(level(out) - 1) < 1e-9);
        EXPECT_TRUE(!hit || length(cross(out - p, v)) < 1e-9);
        // Walking along the ray must not cross the surface without, or before, the hit.
        double way = 0;
        while (way < 25 && (level(p) > 1 + 1e-9) == (level(p + v * way) > 1 - 1e-9)) way += 0.05;
        EXPECT_TRUE(way >= 25 || (hit && dot(out - p, v) <= way && dot(out - p, v) >= 0));
    }
    V3 out;
    EXPECT_FALSE(intersect(V3(), V3(), {1, 1, 1}, out));
    EXPECT_FALSE(intersect(V3(), V3::Ex(), {0, 0, 5}, V3::Ez(), out));
}

TEST(Intersect, SegmentsWithPolygonsInAnyPlane) {
    Inputs inputs(5);
    const V3 axes[] = {V3::Ex(), V3::Ey(), V3::Ez()};
    for (int n = 0; n < 2000; ++n) {
        const V3 normal = n % 2 ? inputs.unit() : axes[n / 2 % 3];
        const V3 u = n % 2 ? cross(normal, inputs.unit()).Normalize() : axes[(n / 2 + 1) % 3];
        const V3 v = cross(normal, u), center = inputs.vector(50);
        const auto polygon = star(inputs, 12, center, u, v);
        expect_near(math::compute_normal(polygon.data(), 12), -normal, 1e-11);
        // Every star contains the disc of radius cos(15 degrees) and lies in that of radius 3.
        const double angle = inputs.number(0, 6), r = n % 3 ? inputs.number(0, 0.9) : 3.1;
        const V3 at = center + u * (r * std::cos(angle)) + v * (r * std::sin(angle));
        const V3 slope = normal * 4 + inputs.vector(2);
        V3 out(7, 7, 7);
        ASSERT_EQ(intersect(polygon.data(), 12, at - slope, at + slope * 0.9, out), n % 3 != 0);
        expect_near(out, n % 3 ? at : V3(7, 7, 7), 1e-9);
        EXPECT_FALSE(intersect(polygon.data(), 12, at + slope, at + slope * 2, out));
        EXPECT_FALSE(intersect(polygon.data(), 12, at - normal * 0.4, at + normal * 0.4, out));
        EXPECT_FALSE(intersect(polygon.data(), n % 3, at - slope, at + slope, out));
    }
}

TEST(Intersect, QuadrilateralsWithPolygons) {
    const V3 quad[] = {{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}};
    // In the plane y = h, a bar with two arms that reach down to z = -1 at |x - dx| in [2, 3].
    const std::tuple<double, double, bool> table[] = {
        {0, 0, false},  {0, 1, true},  {0, 0.9, false},   {0, -1.5, true},
        {1, 2.5, true}, {-1, 2, true}, {1.1, 2.5, false}, {0.5, 4.1, false}};
    for (const auto& [h, dx, meet] : table) {
        const V3 arms[] = {{dx - 3, h, -1}, {dx - 2, h, -1}, {dx - 2, h, 1}, {dx + 2, h, 1},
                           {dx + 2, h, -1}, {dx + 3, h, -1}, {dx + 3, h, 2}, {dx - 3, h, 2}};
        EXPECT_EQ(intersect(quad, 4, arms, 8), meet) << h << " " << dx;
        EXPECT_FALSE(intersect(quad, 3, arms, 8));
        EXPECT_FALSE(intersect(quad, 4, arms, 2));
    }
    EXPECT_FALSE(intersect(quad, 4, quad, 4)) << "the same plane";
}

TEST(Intersect, SegmentsWithAPyramid) {
    const math::Pyramid3D pyramid{{0, 6, 0}, {-3, 0, -3}, {-3, 0, 3}, {3, 0, 3}, {3, 0, -3}};
    V3 first(7, 7, 7), second(7, 7, 7);
    EXPECT_EQ(intersect(pyramid, {-9, 9, 0}, {9, 9, 0}, first, second), 0);
    EXPECT_EQ(first, V3(7, 7, 7));
    EXPECT_EQ(intersect(pyramid, {0, 2, 0.5}, {9, 2, 0.5}, first, second), 1);
    EXPECT_EQ(second, V3(7, 7, 7));
    EXPECT_EQ(intersect(pyramid, {9, 2, 0.5}, {-9, 2, 0.5}, first, second), 2);
    expect_near(first, {-2, 2, 0.5}, 1e-12); // the first face, though hit last
    expect_near(second, {2, 2, 0.5}, 1e-12);
    EXPECT_EQ(intersect(pyramid, {0, 9, 0}, {0, -9, 0}, first, second), 1) << "through the apex";
}

TEST(Curves, HermiteMeetsItsEndsAndTangents) {
    const V3 p0(1, 2, 3), p1(-4, 5, 6), t0(7, -8, 9), t1(3, 1, -2);
    const auto at = [&](double s) { return math::HermitSpline(p0, p1, t0, t1, s); };
    expect_near(at(1), p1, 1e-15);
    expect_near((at(1e-5) - at(-1e-5)) / 2e-5, t0, 1e-7);
    expect_near((at(1 + 1e-5) - at(1 - 1e-5)) / 2e-5, t1, 1e-7);
}

TEST(Curves, ZeroinFindsTheRoot) {
    Inputs inputs(8);
    int calls = 0;
    for (int n = 0; n < 2000; ++n) {
        const double root = inputs.number(-3, 3), steep = std::exp(inputs.number(-3, 6));
        const auto f = [&](double x) {
            ++calls;
            const double d = x - root;
            const double values[] = {d * d * d, std::atan(steep * d), std::expm1(d),
                                     d < 0 ? -1.0 : 9};
            return values[n % 4];
        };
        const double a = n % 8 < 4 ? -4 : inputs.number(3, 9), b = n % 8 < 4 ? 5 : -4;
        EXPECT_NEAR(math::Zeroin(a, b, f, 1e-9), root, 2e-9);
    }
    EXPECT_LT(calls, 2000 * 60);
    // It ends even with NaN or no tolerance.
    EXPECT_NO_THROW(math::Zeroin(
        -1, 2, [](double) { return NAN; }, 1e-9));
    EXPECT_NEAR(math::Zeroin(
                    -1, 2, [](double x) { return x < 0 ? -1.0 : 1.0; }, 0),
                0, 1e-100);
}

TEST(Fract, MovesTheHeightWithinItsBounds) {
    for (const double z : {-4.0, -0.5, 0.5, 3.0}) {
        // The mean of equal heights is that height, whatever the weights.
        const double h = z < 0 ? -2 : 2;
        const V3 q = math::Fract({0.2, 0.1, z}, {1, 0, 2}, {0, 1, -2}, {-1, 0, 2}, {0, -2, 2});
        EXPECT_LE(std::fabs(q.z - h), std::fabs(h - z) + 1e-12);
    }
}

} // namespace
