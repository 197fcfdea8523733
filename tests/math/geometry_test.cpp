#include "math/geometry.h"

#include "math/random.h"
#include "tests/math/support.h"

#include <vector>

using namespace math_test;
using math::intersect;

namespace {

double area(const V2* v, int n) {
    double twice = 0;
    for (int i = 0; i < n; ++i) twice += cross(v[i], v[(i + 1) % n]);
    return twice / 2;
}

// A polygon that is star-shaped around a centre, in the plane of u and v.
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
    for (int n = 0; n < 2000; ++n) {
        std::vector<V2> polygon(math::most_clipped_vertices);
        int count = 0;
        for (const V3& v : star(inputs, inputs.whole(3, 19), {}, V3::Ex(), V3::Ey()))
            polygon[count++] = {v.x, v.y};
        const auto whole = polygon;
        const int whole_count = count;
        const double a = inputs.number(-2, 2), b = inputs.number(-2, 2), c = inputs.number(-2, 2),
                     d = inputs.number(-2, 2);
        const bool any = math::polygon_clip(a, b, c, d, polygon.data(), count);
        EXPECT_EQ(any, count > 0);
        for (int i = 0; i < count; ++i) {
            EXPECT_GE(polygon[i].x, std::min(b, d) - 1e-9);
            EXPECT_LE(polygon[i].x, std::max(b, d) + 1e-9);
            EXPECT_GE(polygon[i].y, std::min(a, c) - 1e-9);
            EXPECT_LE(polygon[i].y, std::max(a, c) + 1e-9);
        }
        // The area, by counting the centres of small cells of the rectangle.
        int inside = 0;
        for (int i = 0; n % 20 == 0 && i < 10000; ++i)
            inside += math::PolygonContainsPoint(
                whole.data(), whole_count,
                {b + (d - b) * (i % 100 + 0.5) / 100, a + (c - a) * (i / 100 + 0.5) / 100});
        const double rectangle = std::fabs((a - c) * (b - d));
        EXPECT_TRUE(n % 20 || std::fabs(area(polygon.data(), count) - rectangle * inside / 1e4) < 0.1);
    }
}

TEST(Clip, EdgeCases) {
    V2 square[9] = {{0, 0}, {4, 0}, {4, 4}, {0, 4}};
    int count = 4;
    EXPECT_TRUE(math::polygon_clip(1, 1, 3, 3, square, count));
    EXPECT_EQ(count, 4);
    EXPECT_EQ(area(square, 4), 4);
    std::vector<V2> many(20, V2(9, 9));
    for (int kept : {20, -1, 1 << 30}) {
        count = kept;
        EXPECT_FALSE(math::polygon_clip(0, 0, 1, 1, many.data(), count));
        EXPECT_EQ(count, kept);
    }
    EXPECT_EQ(many, std::vector<V2>(20, V2(9, 9)));
    count = 19; // a comb, which each pass cuts into more pieces
    for (int i = 0; i < 19; ++i) many[i] = {i * 1.0, i % 2 ? 9.0 : -9.0};
    many.resize(math::most_clipped_vertices);
    EXPECT_TRUE(math::polygon_clip(-1, 2, 1, 16, many.data(), count));
    EXPECT_GT(count, 19);
    for (int few = 0; few < 3; ++few) {
        count = few;
        V2 outside[9] = {{8, 8}, {9, 9}};
        EXPECT_FALSE(math::polygon_clip(0, 0, 1, 1, outside, count));
        EXPECT_EQ(count, 0);
    }
    V2 hair[9] = {{1 - 1e-13, 0}, {1 + 1e-13, 1}, {0, 1}};
    count = 3;
    EXPECT_TRUE(math::polygon_clip(0, 0, 1, 1, hair, count));
    EXPECT_NEAR(area(hair, count), 0.5, 1e-9);
}

TEST(Clip, Lines) {
    V2 out[9];
    int count = 0;
    EXPECT_TRUE(math::line_clip(-1, 0, 1, 4, {2, 7}, {0, 1}, out, count));
    EXPECT_EQ(count, 2);
    EXPECT_EQ(out[0], V2(2, -1));
    EXPECT_EQ(out[1], V2(2, 1));
    EXPECT_TRUE(math::line_clip(-1, 0, 1, 4, {99, 0.5}, {-3, 0}, out, count));
    EXPECT_EQ(out[1], V2(4, 0.5));
    EXPECT_FALSE(math::line_clip(-1, 0, 1, 4, {5, 0}, {0, 1}, out, count));
    EXPECT_FALSE(math::line_clip(-1, 0, 1, 4, {0, 2}, {1, 0}, out, count));
    EXPECT_FALSE(math::line_clip(-1, 0, 1, 4, {0, 9}, {1, 1}, out, count));
    Inputs inputs(2);
    for (int n = 0; n < 1000; ++n) {
        const V2 p(inputs.number(0.1, 3.9), inputs.number(-0.9, 0.9)), v = inputs.point(1);
        ASSERT_TRUE(math::line_clip(1, 4, -1, 0, p, v, out, count));
        ASSERT_TRUE(2 <= count && count <= 9);
        for (int i = 0; i < count; ++i) {
            EXPECT_NEAR(cross(out[i] - p, v) / length(v), 0, 1e-9);
            const double to_side = std::min(2 - std::fabs(out[i].x - 2), 1 - std::fabs(out[i].y));
            EXPECT_NEAR(to_side, 0, 1e-9) << "not on the boundary";
        }
    }
}

TEST(Contains, InsideOutsideAndOnTheBoundary) {
    const V2 notched[] = {{0, 0}, {4, 0}, {4, 4}, {2, 2}, {0, 4}};
    const std::pair<V2, bool> table[] = {
        {{2, 1}, true},    {{2, 3}, false},  {{0.5, 3}, true},    {{0, 0}, true},
        {{4, 4}, true},    {{2, 2}, true},   {{2, 0}, true},      {{4, 2}, true},
        {{3, 3}, true},    {{-1, 0}, false}, {{-1, 2}, false},    {{-1, 4}, false},
        {{5, 0}, false},   {{2, 4}, false},  {{2, -1e-3}, false}, {{4.001, 2}, false},
        {{NAN, 1}, false},
    };
    for (const auto& [point, inside] : table)
        EXPECT_EQ(math::PolygonContainsPoint(notched, 5, point), inside)
            << point.x << " " << point.y;
    EXPECT_FALSE(math::PolygonContainsPoint(nullptr, 0, {0, 0}));
    EXPECT_TRUE(math::PolygonContainsPoint(notched, 1, {0, 0}));
    const math::Pyramid3D pyramid{{0, 3, 0}, {-1, 0, -1}, {-1, 0, 1}, {1, 0, 1}, {1, 0, -1}};
    EXPECT_TRUE(math::PyramidContainsPoint(pyramid, {0.3, 1, -0.3}));
    EXPECT_FALSE(math::PyramidContainsPoint(pyramid, {0.9, 1, 0}));
    EXPECT_FALSE(math::PyramidContainsPoint(pyramid, {0, 1, 0.9}));
}

TEST(Measures, CentresNormalsAndDistances) {
    Inputs inputs(3);
    for (int n = 0; n < 500; ++n) {
        const V3 normal = inputs.unit(), u = cross(normal, inputs.unit()).Normalize();
        const V3 center = inputs.vector(9);
        const double size = n % 2 ? 1 : 1e-5;
        const auto polygon =
            star(inputs, inputs.whole(3, 9), center, u * size, cross(normal, u) * size);
        const int count = static_cast<int>(polygon.size());
        expect_near(math::compute_normal(polygon.data(), count), -normal, n % 2 ? 1e-12 : 1e-8);
        const V3 q = center + u * inputs.number(-9, 9) + normal * 3.0;
        EXPECT_NEAR(math::dist_to_plane(center, normal, q), 3, 1e-12);
        EXPECT_NEAR(math::dist_to_line(center, u, q), 3, 1e-12);
    }
    const V3 corners[] = {{0, 0, 0}, {2, 0, 0}, {1, 3, 6}};
    EXPECT_EQ(math::compute_center(corners, 3), V3(1, 1, 2));
    EXPECT_TRUE(std::isnan(math::compute_center(corners, 0).x));
    EXPECT_EQ(math::compute_normal(corners, 0), V3());
    EXPECT_EQ(math::compute_normal(corners, 2), V3());
    EXPECT_EQ(math::dist_to_line({1e-13, 0, 0}, V3::Ey(), {}), 0);
    EXPECT_FALSE(math::DifVect({1, 2, 3}, {1, 2, 3}, -1));
    EXPECT_TRUE(math::DifVect({0, 0, 3}, {0, 0, 4}, 0.25));
    EXPECT_FALSE(math::DifVect({0, 0, 3}, {0, 0, 4}, 0.26));
}

TEST(Intersect, HitsSatisfyBothEquations) {
    Inputs inputs(4);
    for (int n = 0; n < 2000; ++n) {
        const V3 p = inputs.vector(5), v = inputs.vector(1), q = inputs.vector(5),
                 normal = inputs.unit(), other = inputs.unit();
        V3 out(7, 7, 7), direction, ray = out;
        double t = 7;
        ASSERT_TRUE(intersect(p, v, q, normal, out));
        const double size = 1e-12 * (1 + length(out - p) / length(v));
        EXPECT_NEAR(dot(out - q, normal), 0, 10 * size);
        EXPECT_NEAR(length(cross(out - p, v)) / length(v), 0, 10 * size);
        if (intersect(p, v, q, normal, ray, t)) {
            EXPECT_GE(t, 0);
            EXPECT_EQ(ray, out);
        } else {
            EXPECT_LT(dot(out - p, v), 0);
            EXPECT_EQ(t, 7);
        }
        if (intersect(p, normal, q, other, out, direction)) {
            expect_near(direction, cross(normal, other).Normalize(), 1e-15);
            EXPECT_NEAR(dot(out - p, normal), 0, 1e-9);
            EXPECT_NEAR(dot(out - q, other), 0, 1e-9);
        }
        const V3 r(inputs.number(1, 4), inputs.number(1, 4), inputs.number(1, 4));
        const auto level = [&](const V3& x) { return length(V3(x.x / r.x, x.y / r.y, x.z / r.z)); };
        V3 nearest;
        const bool hit = intersect(p, v, r, nearest);
        if (hit) {
            EXPECT_NEAR(level(nearest), 1, 1e-9);
            EXPECT_NEAR(length(cross(nearest - p, v)), 0, 1e-9);
        }
        // Walking along the ray must not enter the ellipsoid without, or before, the hit.
        for (double s = 0; s < 25 && level(p) > 1; s += 0.05)
            if (level(p + v * s) < 1 - 1e-9) {
                EXPECT_TRUE(hit && dot(nearest - p, v) <= s * dot(v, v));
                break;
            }
        EXPECT_TRUE(level(p) >= 1 || (hit && dot(nearest - p, v) > 0));
    }
    V3 out(7, 7, 7), other = out;
    EXPECT_TRUE(intersect({0, 0, -10}, V3::Ez(), {1, 1, 1}, out));
    EXPECT_EQ(out, V3(0, 0, -1));
    EXPECT_FALSE(intersect({0, 0, 10}, V3::Ez(), {1, 1, 1}, out));
    EXPECT_FALSE(intersect({1, 0, 10}, V3::Ez(), {1, 1, 1}, out)) << "only touches";
    EXPECT_FALSE(intersect(V3(), V3(), {1, 1, 1}, out));
    EXPECT_FALSE(intersect(V3(), V3::Ex(), {0, 0, 5}, V3::Ez(), out));
    EXPECT_FALSE(intersect(V3(), V3::Ez(), {0, 0, 5}, V3::Ez(), out, other));
    EXPECT_EQ(out, V3(0, 0, -1));
}

TEST(Intersect, SegmentsWithPolygonsInAnyPlane) {
    Inputs inputs(5);
    const V3 axes[] = {V3::Ex(), V3::Ey(), V3::Ez()};
    for (int n = 0; n < 2000; ++n) {
        const V3 normal = n % 2 ? inputs.unit() : axes[n / 2 % 3];
        const V3 u = n % 2 ? cross(normal, inputs.unit()).Normalize() : axes[(n / 2 + 1) % 3];
        const V3 v = cross(normal, u), center = inputs.vector(50);
        auto polygon = star(inputs, 12, center, u, v);
        const int count = static_cast<int>(polygon.size());
        // Every star holds the disc of radius cos(15 degrees) and is held by that of radius 3.
        const double angle = inputs.number(0, 6), r = n % 3 ? inputs.number(0, 0.9) : 3.1;
        const V3 at = center + u * (r * std::cos(angle)) + v * (r * std::sin(angle));
        const V3 slope = normal * 4 + inputs.vector(2);
        V3 out(7, 7, 7);
        ASSERT_EQ(intersect(polygon.data(), count, at - slope, at + slope * 0.9, out), n % 3 != 0);
        expect_near(out, n % 3 ? at : V3(7, 7, 7), 1e-9);
        EXPECT_FALSE(intersect(polygon.data(), count, at + slope, at + slope * 2, out));
        EXPECT_FALSE(intersect(polygon.data(), count, at - normal * 0.4, at + normal * 0.4, out));
        EXPECT_FALSE(intersect(polygon.data(), count, at, at, out));
        for (int few = 0; few < 3; ++few)
            EXPECT_FALSE(intersect(polygon.data(), few, at - slope, at + slope, out));
    }
}

TEST(Intersect, QuadrilateralsWithPolygons) {
    const V3 quad[] = {{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}};
    // A notched polygon in the plane y = h, whose arms reach down to z = -1 at |x| in [2, 3] + dx.
    const auto notched = [](double h, double dx) {
        return std::vector<V3>{{dx - 3, h, -1}, {dx - 2, h, -1}, {dx - 2, h, 1}, {dx + 2, h, 1},
                               {dx + 2, h, -1}, {dx + 3, h, -1}, {dx + 3, h, 2}, {dx - 3, h, 2}};
    };
    struct {
        double h, dx;
        bool meet;
    } const table[] = {{0, 0, false},  {0, 1, true},  {0, 0.9, false},   {0, -1.5, true},
                       {1, 2.5, true}, {-1, 2, true}, {1.1, 2.5, false}, {0.5, 4.1, false}};
    for (const auto& [h, dx, meet] : table) {
        auto polygon = notched(h, dx);
        EXPECT_EQ(intersect(quad, 4, polygon.data(), 8), meet) << h << " " << dx;
        EXPECT_FALSE(intersect(quad, 3, polygon.data(), 8));
        EXPECT_FALSE(intersect(quad, 4, polygon.data(), 2));
    }
    EXPECT_FALSE(intersect(quad, 4, quad, 4)) << "the same plane";
    Inputs inputs(6);
    int met = 0;
    for (int n = 0; n < 2000; ++n) {
        const M3 place =
            M3::BuildShift(inputs.vector(3)) * M3::BuildRotate(inputs.unit(), inputs.number(-3, 3));
        V3 triangle[] = {inputs.vector(3), inputs.vector(3), inputs.vector(3)}, moved[4];
        // They meet where an edge of one pierces the other, as long as both are long enough.
        bool pierced = false;
        V3 out;
        for (int i = 0; i < 4; ++i) moved[i] = place * (quad[i] * 10);
        for (V3& corner : triangle) corner *= 10;
        for (int i = 0; i < 4; ++i)
            pierced |= intersect(triangle, 3, moved[i], moved[(i + 1) % 4], out);
        for (int i = 0; i < 3; ++i)
            pierced |= intersect(moved, 4, triangle[i], triangle[(i + 1) % 3], out);
        met += pierced;
        EXPECT_TRUE(!pierced || intersect(moved, 4, triangle, 3)) << n;
    }
    EXPECT_GT(met, 500);
}

TEST(Intersect, SegmentsWithAPyramid) {
    const math::Pyramid3D pyramid{{0, 6, 0}, {-3, 0, -3}, {-3, 0, 3}, {3, 0, 3}, {3, 0, -3}};
    V3 first(7, 7, 7), second(7, 7, 7);
    EXPECT_EQ(intersect(pyramid, {-9, 9, 0}, {9, 9, 0}, first, second), 0);
    EXPECT_EQ(first, V3(7, 7, 7));
    EXPECT_EQ(intersect(pyramid, {0, 2, 0.5}, {9, 2, 0.5}, first, second), 1);
    expect_near(first, {2, 2, 0.5}, 1e-12);
    EXPECT_EQ(second, V3(7, 7, 7));
    EXPECT_EQ(intersect(pyramid, {9, 2, 0.5}, {-9, 2, 0.5}, first, second), 2);
    expect_near(first, {-2, 2, 0.5}, 1e-12); // the first face, though hit last
    expect_near(second, {2, 2, 0.5}, 1e-12);
    EXPECT_EQ(intersect(pyramid, {1, -5, 0.5}, {1, 9, 0.5}, first, second), 2);
    expect_near(second, {1, 0, 0.5}, 1e-12);
    EXPECT_EQ(intersect(pyramid, {0, 9, 0}, {0, -9, 0}, first, second), 1) << "through the apex";
}

TEST(Curves, HermiteMeetsItsEndsAndTangents) {
    Inputs inputs(7);
    for (int n = 0; n < 500; ++n) {
        const V3 p0 = inputs.vector(5), p1 = inputs.vector(5), t0 = inputs.vector(5),
                 t1 = inputs.vector(5);
        const auto at = [&](double s) { return math::HermitSpline(p0, p1, t0, t1, s); };
        expect_near(at(0), p0, 1e-15);
        expect_near(at(1), p1, 1e-15);
        expect_near((at(1e-5) - at(-1e-5)) / 2e-5, t0, 1e-7);
        expect_near((at(1 + 1e-5) - at(1 - 1e-5)) / 2e-5, t1, 1e-7);
        expect_near(at(0.5), (p0 + p1) / 2 + (t0 - t1) / 8, 1e-14);
    }
    EXPECT_EQ(math::LinApprox(V2(1, 2), V2(3, 6), 0.25), V2(1.5, 3));
}

TEST(Curves, ZeroinFindsTheRoot) {
    Inputs inputs(8);
    int calls = 0;
    for (int n = 0; n < 2000; ++n) {
        const double root = inputs.number(-3, 3), steep = std::exp(inputs.number(-3, 6));
        const int kind = n % 4;
        const auto f = [&](double x) {
            ++calls;
            const double d = x - root;
            return kind == 0   ? d * d * d
                   : kind == 1 ? std::atan(steep * d)
                   : kind == 2 ? std::expm1(d) * steep
                               : (d < 0 ? -1 : steep);
        };
        const double a = -4, b = inputs.number(3, 9);
        EXPECT_NEAR(n % 8 < 4 ? math::Zeroin(a, b, f, 1e-9) : math::Zeroin(b, a, f, 1e-9), root,
                    2e-9);
    }
    EXPECT_LT(calls, 2000 * 60);
    // No sign change, no number, no tolerance: it ends all the same.
    EXPECT_NO_THROW(math::Zeroin(
        -1, 2, [](double x) { return x * x + 1; }, 1e-9));
    EXPECT_NO_THROW(math::Zeroin(
        -1, 2, [](double) { return NAN; }, 1e-9));
    EXPECT_NEAR(math::Zeroin(
                    -1, 2, [](double x) { return x < 0 ? -1.0 : 1.0; }, 0),
                0, 1e-100);
}

TEST(Fract, MovesTheHeightWithinItsBounds) {
    math::SetRand(9);
    Inputs inputs(9);
    for (int n = 0; n < 1000; ++n) {
        const double height = inputs.number(1, 5), z = inputs.number(-5, 5);
        const V3 p(0.2, 0.1, z);
        // Four equal heights have themselves as mean, whatever their weights.
        const V3 q =
            math::Fract(p, {1, 0, height}, {0, 1, -height}, {-1, 0, height}, {0, -2, height});
        const double h = z < 0 ? -height : height;
        EXPECT_EQ(q.x, p.x);
        EXPECT_LE(std::fabs(q.z - h), std::fabs(h - z) * (1 + 1e-12) + 1e-12);
    }
    // Far corners hardly count: the near one rules.
    const V3 near_one =
        math::Fract({0, 0, 3}, {1e-4, 0, 3}, {900, 0, 50}, {0, 900, 50}, {0, -900, 9});
    EXPECT_NEAR(near_one.z, 3, 1e-3);
}

} // namespace
