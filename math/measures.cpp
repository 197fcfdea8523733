// Points in polygons, centres, normals and distances.

#include "math/geometry.h"
#include "math/random.h"

#include <algorithm>

namespace math {

namespace {

using Vector = TGeomVector3D<double>;
using Point = TGeomVector2D<double>;

struct FloatPoint {
    float x, y;
    explicit FloatPoint(const Point& p) : x(static_cast<float>(p.x)), y(static_cast<float>(p.y)) {}
};

enum class Hit { none, crossing, boundary };

// How a ray from p toward +x meets an edge. For crossings an edge includes its upper end but not
// its lower one, so that a ray through a vertex crosses one of two edges that go on.
Hit ray_meets(const FloatPoint& p, FloatPoint low, FloatPoint high) {
    if (low.y > high.y) std::swap(low, high);
    if (low.y == high.y) {
        const bool on =
            p.y == low.y && std::min(low.x, high.x) <= p.x && p.x <= std::max(low.x, high.x);
        return on ? Hit::boundary : Hit::none;
    }
    if (p.y == high.y)
        return p.x == high.x ? Hit::boundary : p.x < high.x ? Hit::crossing : Hit::none;
    if (p.y == low.y) return p.x == low.x ? Hit::boundary : Hit::none;
    if (!(low.y < p.y && p.y < high.y)) return Hit::none;
    const float cross = (p.y - low.y) * (high.x - low.x) - (p.x - low.x) * (high.y - low.y);
    return cross == 0 ? Hit::boundary : cross > 0 ? Hit::crossing : Hit::none;
}

} // namespace

bool PolygonContainsPoint(const Point* vertices, int count, const Point& point) {
    const FloatPoint p(point);
    bool inside = false;
    for (int i = count - 1; i >= 0; --i) {
        const int previous = i == 0 ? count - 1 : i - 1;
        const Hit hit = ray_meets(p, FloatPoint(vertices[i]), FloatPoint(vertices[previous]));
        if (hit == Hit::boundary) return true;
        if (hit == Hit::crossing) inside = !inside;
    }
    return inside;
}

bool PyramidContainsPoint(const Pyramid3D& pyramid, const Vector& point) {
    const auto& [V0, V1, V2, V3, V4] = pyramid;
    const Point along_x[] = {{V1.z, V1.y}, {V2.z, V2.y}, {V0.z, V0.y}};
    const Point along_z[] = {{V2.x, V2.y}, {V3.x, V3.y}, {V0.x, V0.y}};
    return PolygonContainsPoint(along_x, 3, {point.z, point.y}) &&
           PolygonContainsPoint(along_z, 3, {point.x, point.y});
}

Vector compute_center(const Vector* points, int n) {
    Vector sum;
    for (int i = 0; i < n; ++i) sum += points[i];
    return sum / static_cast<double>(n);
}

Vector compute_normal(const Vector* points, int n) {
    Vector normal;
    for (int i = 0; i < n; ++i) {
        const Vector &here = points[i], &before = points[i == 0 ? n - 1 : i - 1];
        normal.x += (before.z + here.z) * (here.y - before.y);
        normal.y += (before.x + here.x) * (here.z - before.z);
        normal.z += (before.y + here.y) * (here.x - before.x);
    }
    // Normalize would take the sum of a small polygon for zero.
    if (dot(normal, normal) < 1e-12) normal *= 1e12;
    return normal.Normalize();
}

double dist_to_plane(const Vector& a, const Vector& n, const Vector& b) {
    return std::fabs(dot(b - a, n));
}

double dist_to_line(const Vector& p, const Vector& v, const Vector& q) {
    const Vector w = p - q;
    return counted_length(w - v * dot(w, v));
}

bool DifVect(const Vector& a, const Vector& b, double threshold) {
    const double apart = length(a - b);
    if (apart <= smallest_length) return false;
    return apart / std::max(counted_length(a), counted_length(b)) >= threshold;
}

Vector Fract(const Vector& p, const Vector& a, const Vector& b, const Vector& c, const Vector& d) {
    double weights = 0, squares = 0;
    for (const Vector* k : {&a, &b, &c, &d}) {
        const Vector away = p - *k;
        const double weight = 1 / dot(away, away);
        weights += weight;
        squares += weight * (k->z * k->z);
    }
    const double mean = std::sqrt(squares / weights), h = p.z < 0 ? -mean : mean;
    return {p.x, p.y, h + Rand(h - p.z)};
}

} // namespace math
