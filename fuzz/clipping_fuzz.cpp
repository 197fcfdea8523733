// Polygons and lines against a rectangle, points in polygons, rays and planes: any doubles, no
// write beyond the arrays, and results that lie where they have to.

#include "fuzz/Bytes.h"
#include "math/geometry.h"

#include <algorithm>
#include <vector>

namespace {

using Point = math::TGeomVector2D<double>;
using Vector = math::TGeomVector3D<double>;

struct Rectangle {
    double a, b, c, d; // top, left, bottom, right
    double x0() const { return std::min(b, d); }
    double x1() const { return std::max(b, d); }
    double y0() const { return std::min(a, c); }
    double y1() const { return std::max(a, c); }
    bool contains(const Point& p, double slack) const {
        return p.x >= x0() - slack && p.x <= x1() + slack && p.y >= y0() - slack &&
               p.y <= y1() + slack;
    }
};

// Coordinates for which rounding is known: a thousandth at most of what is looked at.
bool tame(double value) {
    return std::fabs(value) <= 5000;
}

bool tame(const Rectangle& r, const std::vector<Point>& points) {
    return tame(r.a) && tame(r.b) && tame(r.c) && tame(r.d) &&
           std::all_of(points.begin(), points.end(),
                       [](const Point& p) { return tame(p.x) && tame(p.y); });
}

void clip_polygon(fuzz::Bytes& bytes, const Rectangle& r) {
    const int given = bytes.integer(-1, 24);
    std::vector<Point> points(std::max(given, 0));
    for (Point& p : points) p = {bytes.number(), bytes.number()};

    std::vector<Point> clipped = points;
    clipped.resize(std::max(given, math::max_clipped_vertices)); // and not one more
    int count = given;
    const bool is_left = math::polygon_clip(r.a, r.b, r.c, r.d, clipped.data(), count);
    if (given < 0 || given > math::max_vertices_to_clip) {
        fuzz::require(!is_left && count == given, "refused, nothing is changed");
        return;
    }
    fuzz::require(0 <= count && count <= math::max_clipped_vertices, "as many as can be");
    fuzz::require(is_left == (count > 0), "returns whether something is left");
    if (!tame(r, points)) return;

    const bool all_inside =
        std::all_of(points.begin(), points.end(), [&](const Point& p) { return r.contains(p, 0); });
    if (all_inside) {
        fuzz::require(count == given, "what lies inside stays");
        for (int i = 0; i < count; ++i) {
            const auto same = [&](const Point& p) {
                return p.x == clipped[i].x && p.y == clipped[i].y;
            };
            fuzz::require(std::any_of(points.begin(), points.end(), same), "as it was");
        }
    }
    for (int i = 0; i < count; ++i)
        fuzz::require(std::isfinite(clipped[i].x) && std::isfinite(clipped[i].y),
                      "finite points stay finite");
}

void clip_line(fuzz::Bytes& bytes, const Rectangle& r) {
    const Point p{bytes.number(), bytes.number()}, v{bytes.number(), bytes.number()};
    std::vector<Point> out(9); // and not one more
    int count = 0;
    const bool hits = math::line_clip(r.a, r.b, r.c, r.d, p, v, out.data(), count);
    fuzz::require(0 <= count && count <= 9, "as many as can be");
    if (!hits || !tame(r, {p}) || !tame(v.x) || !tame(v.y)) return;
    if (std::fabs(v.x) < 0.01 || std::fabs(v.y) < 0.01) return; // steep: rounding counts
    for (int i = 0; i < count; ++i)
        fuzz::require(r.contains(out[i], 1e-3), "a clipped line is inside");
}

void point_tests(fuzz::Bytes& bytes) {
    std::vector<Point> corners(bytes.integer(0, 12));
    for (Point& p : corners) p = {bytes.number(), bytes.number()};
    const Point at{bytes.number(), bytes.number()};
    const int count = static_cast<int>(corners.size());
    const bool contained = math::PolygonContainsPoint(corners.data(), count, at);
    if (!contained || corners.empty()) return;
    // Compared in single precision: so much wider is the box around it.
    Rectangle box{corners[0].y, corners[0].x, corners[0].y, corners[0].x};
    double largest = 0;
    for (const Point& p : corners) {
        if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
        box = {std::min(box.a, p.y), std::min(box.b, p.x), std::max(box.c, p.y),
               std::max(box.d, p.x)};
        largest = std::max({largest, std::fabs(p.x), std::fabs(p.y)});
    }
    if (largest < 1e30) fuzz::require(box.contains(at, 1e-6 * largest + 1e-30), "inside its box");
}

Vector vector(fuzz::Bytes& bytes) {
    const double x = bytes.number(), y = bytes.number(), z = bytes.number();
    return {x, y, z};
}

void in_space(fuzz::Bytes& bytes) {
    std::vector<Vector> polygon(bytes.integer(0, 8));
    for (Vector& corner : polygon) corner = vector(bytes);
    const int count = static_cast<int>(polygon.size());
    const Vector a = vector(bytes), b = vector(bytes), c = vector(bytes), d = vector(bytes);
    Vector out{1, 2, 3}, second{1, 2, 3};
    const auto untouched = [](const Vector& v) { return v.x == 1 && v.y == 2 && v.z == 3; };
    double t = 4;
    if (!math::intersect(a, b, c, d, out)) fuzz::require(untouched(out), "untouched");
    out = {1, 2, 3};
    if (!math::intersect(a, b, c, d, out, t))
        fuzz::require(untouched(out) && t == 4, "untouched");
    else
        fuzz::require(t >= 0, "a ray goes ahead");
    out = {1, 2, 3};
    if (!math::intersect(a, b, c, out)) fuzz::require(untouched(out), "untouched");
    out = {1, 2, 3};
    if (!math::intersect(a, b, c, d, out, second))
        fuzz::require(untouched(out) && untouched(second), "untouched");
    out = {1, 2, 3};
    if (!math::intersect(polygon.data(), count, a, b, out))
        fuzz::require(untouched(out), "untouched");
    const Vector quad[4] = {a, b, c, d};
    math::intersect(quad, 4, polygon.data(), count);
    const math::Pyramid3D pyramid{a, b, c, d, vector(bytes)};
    out = second = {1, 2, 3};
    const int hits = math::intersect(pyramid, vector(bytes), vector(bytes), out, second);
    fuzz::require(0 <= hits && hits <= 2, "one way in and one way out");
    if (hits == 0) fuzz::require(untouched(out) && untouched(second), "untouched");
    math::PyramidContainsPoint(pyramid, out);
    math::compute_center(polygon.data(), count);
    const Vector normal = math::compute_normal(polygon.data(), count);
    const double length =
        std::sqrt(normal.x * normal.x + normal.y * normal.y + normal.z * normal.z);
    if (std::isfinite(length))
        fuzz::require(length == 0 || std::fabs(length - 1) < 1e-6, "a unit normal, or none");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    const auto what = bytes.take<std::uint8_t>();
    const Rectangle r{bytes.number(), bytes.number(), bytes.number(), bytes.number()};
    switch (what % 4) {
    case 0:
        clip_polygon(bytes, r);
        break;
    case 1:
        clip_line(bytes, r);
        break;
    case 2:
        point_tests(bytes);
        break;
    default:
        in_space(bytes);
        break;
    }
    return 0;
}
