// Lines, rays, planes, ellipsoids, plane polygons and pyramids: where they meet.

#include "math/geometry.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace math {

namespace {

using Vector = TGeomVector3D<double>;
using Point = TGeomVector2D<double>;

constexpr double parallel = 1e-12;

// The t where the line p + t * v meets the plane; false when they are parallel.
bool reach_plane(const Vector& p, const Vector& v, const Vector& q, const Vector& n, double& t) {
    const double along = dot(v, n);
    if (!(std::fabs(along) >= parallel)) return false;
    t = dot(q - p, n) / along;
    return true;
}

// The first edge with a length, as a unit vector.
Vector first_direction(const Vector* polygon, int count) {
    Vector direction;
    for (int i = 1; i < count && direction == Vector(); ++i)
        direction = (polygon[i] - polygon[0]).Normalize();
    return direction;
}

// The plane coordinates of p in a frame from BuildHMatrix, whose columns are at right angles.
Point in_frame(const TMatrix3D<double>& frame, const Vector& p) {
    const Vector from_origin = p - Vector(frame(0, 3), frame(1, 3), frame(2, 3));
    return {dot(Vector(frame(0, 0), frame(1, 0), frame(2, 0)), from_origin),
            dot(Vector(frame(0, 1), frame(1, 1), frame(2, 1)), from_origin)};
}

struct Span {
    double low, high;
};

// The parts of a line in the plane of a polygon that lie inside it, or on its boundary, as ranges
// of t: by the even-odd rule with the line moved a little to one side, then to the other. Together
// these include edges along the line and corners that it touches.
std::vector<Span> spans_inside(const Vector* polygon, int count, const Vector& normal,
                               const Vector& point, const Vector& direction) {
    const Vector sideways = cross(normal, direction);
    const auto side = [&](const Vector& v) {
        const double distance = dot(v - point, sideways);
        return std::fabs(distance) <= smallest_length ? 0 : distance;
    };
    std::vector<Span> spans;
    std::vector<double> crossings;
    for (const bool zero_is_above : {false, true}) {
        const auto above = [&](double s) { return zero_is_above ? s >= 0 : s > 0; };
        crossings.clear();
        for (int i = 0; i < count; ++i) {
            const Vector &u = polygon[i == 0 ? count - 1 : i - 1], &v = polygon[i];
            const double su = side(u), sv = side(v);
            if (above(su) == above(sv)) continue;
            const double tu = dot(u - point, direction), tv = dot(v - point, direction);
            crossings.push_back(tu + (tv - tu) * (su / (su - sv)));
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
            spans.push_back({crossings[i], crossings[i + 1]});
    }
    return spans;
}

bool all_finite(const Vector* points, int count) {
    return std::all_of(points, points + count, [](const Vector& p) {
        return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
    });
}

} // namespace

bool intersect(const Vector& p, const Vector& v, const Vector& q, const Vector& n, Vector& out) {
    double t;
    if (!reach_plane(p, v, q, n, t)) return false;
    out = p + t * v;
    return true;
}

bool intersect(const Vector& p, const Vector& v, const Vector& q, const Vector& n, Vector& out,
               double& t) {
    double reached;
    if (!reach_plane(p, v, q, n, reached) || !(reached >= 0)) return false;
    out = p + reached * v;
    t = reached;
    return true;
}

bool intersect(const Vector& p, const Vector& v, const Vector& r, Vector& out) {
    const Vector squared(r.x * r.x, r.y * r.y, r.z * r.z);
    const auto product = [&](const Vector& a, const Vector& b) {
        return a.x * b.x / squared.x + a.y * b.y / squared.y + a.z * b.z / squared.z;
    };
    // t^2 + 2 B t + C = 0
    const double A = product(v, v), B = product(v, p) / A, C = (product(p, p) - 1) / A;
    const double discriminant = B * B - C;
    if (!(discriminant >= 1e-12)) return false;
    const double s = std::sqrt(discriminant);
    const double t = -B - s > 0 ? -B - s : s - B;
    if (!(t >= 0)) return false;
    out = p + t * v;
    return true;
}

bool intersect(const Vector& pA, const Vector& nA, const Vector& pB, const Vector& nB,
               Vector& point, Vector& direction) {
    const double a = dot(nA, nA), b = dot(nA, nB), c = dot(nB, nB);
    const double D = a * c - b * b;
    if (!(std::fabs(D) >= parallel)) return false;
    const double hA = dot(nA, pA), hB = dot(nB, pB);
    const Vector along = cross(nA, nB).Normalize();
    point = ((c * hA - b * hB) / D) * nA + ((a * hB - b * hA) / D) * nB;
    direction = along;
    return true;
}

bool intersect(const Vector* polygon, int count, const Vector& a, const Vector& b, Vector& out) {
    if (count < 3 || !all_finite(polygon, count)) return false;
    const Vector normal = compute_normal(polygon, count), center = compute_center(polygon, count);
    Vector hit;
    if (!intersect(a, (b - a).Normalize(), center, normal, hit)) return false;
    const auto frame =
        TMatrix3D<double>::BuildHMatrix(first_direction(polygon, count), normal, center);
    std::vector<Point> outline;
    outline.reserve(static_cast<std::size_t>(count));
    std::transform(polygon, polygon + count, std::back_inserter(outline),
                   [&](const Vector& v) { return in_frame(frame, v); });
    if (!PolygonContainsPoint(outline.data(), count, in_frame(frame, hit))) return false;
    const double reach = std::trunc(counted_length(b - a));
    if (!(reach >= counted_length(hit - a) && reach >= counted_length(hit - b))) return false;
    out = hit;
    return true;
}

bool intersect(const Vector* quad, int quad_count, const Vector* polygon, int count) {
    if (quad_count != 4 || count < 3) return false;
    if (!all_finite(quad, 4) || !all_finite(polygon, count)) return false;
    const Vector quad_normal = compute_normal(quad, 4), normal = compute_normal(polygon, count);
    Vector point, direction;
    if (!intersect(compute_center(quad, 4), quad_normal, compute_center(polygon, count), normal,
                   point, direction))
        return false;
    const auto quad_spans = spans_inside(quad, 4, quad_normal, point, direction);
    const auto spans = spans_inside(polygon, count, normal, point, direction);
    return std::any_of(quad_spans.begin(), quad_spans.end(), [&](const Span& q) {
        return std::any_of(spans.begin(), spans.end(), [&](const Span& s) {
            return q.low <= s.high + smallest_length && s.low <= q.high + smallest_length;
        });
    });
}

int intersect(const Pyramid3D& pyramid, const Vector& a, const Vector& b, Vector& out1,
              Vector& out2) {
    const auto& [V0, V1, V2, V3, V4] = pyramid;
    const std::array<std::array<Vector, 4>, 5> faces{
        {{V1, V2, V0}, {V2, V3, V0}, {V3, V4, V0}, {V1, V4, V0}, {V1, V2, V3, V4}}};
    Vector hits[5];
    int count = 0;
    for (std::size_t i = 0; i < faces.size(); ++i)
        if (intersect(faces[i].data(), i < 4 ? 3 : 4, a, b, hits[count])) ++count;
    if (count == 0) return 0;
    out1 = hits[0];
    const Vector apart = hits[1] - hits[0];
    if (count != 2 ||
        std::max({std::fabs(apart.x), std::fabs(apart.y), std::fabs(apart.z)}) < smallest_length)
        return 1;
    out2 = hits[1];
    return 2;
}

} // namespace math
