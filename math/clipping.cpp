// Polygons and lines clipped to a rectangle.

#include "math/geometry.h"

#include <algorithm>
#include <array>

namespace math {

namespace {

using Point = TGeomVector2D<double>;
using Buffer = std::array<Point, max_clipped_vertices>;

constexpr double vertical = 1e-12; // a segment narrower than this has no slope

// The x and y ranges of the rectangle. Passed as an argument, so that clipping is re-entrant.
struct ClipRectangle {
    double rxg1, rxg2, ryg1, ryg2;

    ClipRectangle(double a, double b, double c, double d)
        : rxg1(std::min(b, d)), rxg2(std::max(b, d)), ryg1(std::min(a, c)), ryg2(std::max(a, c)) {}
};

enum Edge { x_min, x_max, y_min, y_max };

bool inside(const ClipRectangle& r, const Point& v, Edge edge) {
    switch (edge) {
    case x_min:
        return v.x >= r.rxg1;
    case x_max:
        return v.x <= r.rxg2;
    case y_min:
        return v.y >= r.ryg1;
    default:
        return v.y <= r.ryg2;
    }
}

// Where the segment from (x1, y1) to (x2, y2) crosses the line of an edge.
void intersect(const ClipRectangle& r, double& x, double& y, double x1, double y1, double x2,
               double y2, Edge edge) {
    const bool x_edge = edge == x_min || edge == x_max;
    const double at = edge == x_min   ? r.rxg1
                      : edge == x_max ? r.rxg2
                      : edge == y_min ? r.ryg1
                                      : r.ryg2;
    (x_edge ? x : y) = at;
    if (std::fabs(x2 - x1) < vertical) {
        // Only a segment with an end on either side, however narrow, crosses an x edge.
        if (x_edge)
            y = x1 == x2 ? y1 : y1 + (y2 - y1) * ((at - x1) / (x2 - x1));
        else
            x = x1;
        return;
    }
    const double k = (y2 - y1) / (x2 - x1), m = y2 - k * x2;
    if (x_edge)
        y = k * at + m;
    else
        x = k == 0 ? x1 : (at - m) / k;
}

// One pass: the part of the polygon inside one edge. `out` has room for three vertices from every
// two.
void clip_edge(const ClipRectangle& r, const Buffer& in, Buffer& out, int count, int& out_count,
               Edge edge) {
    out_count = 0;
    for (int i = 0; i < count; ++i) {
        const Point &v = in[i], &p = in[i == 0 ? count - 1 : i - 1];
        const bool v_inside = inside(r, v, edge);
        if (v_inside != inside(r, p, edge)) {
            Point& crossing = out[out_count++];
            intersect(r, crossing.x, crossing.y, p.x, p.y, v.x, v.y, edge);
        }
        if (v_inside) out[out_count++] = v;
    }
}

} // namespace

bool polygon_clip(double a, double b, double c, double d, Point* vertices, int& count) {
    if (count > max_vertices_to_clip || count < 0) return false;
    // A pass may make more vertices than the result has, so it does not use the caller's array.
    const ClipRectangle rectangle(a, b, c, d);
    Buffer here, there;
    std::copy_n(vertices, count, here.begin());
    for (const Edge edge : {y_min, y_max, x_min, x_max}) {
        int clipped = 0;
        clip_edge(rectangle, here, there, count, clipped, edge);
        std::swap(here, there);
        count = clipped;
    }
    std::copy_n(here.begin(), count, vertices);
    return count > 0;
}

bool line_clip(double a, double b, double c, double d, const Point& p, const Point& v, Point* out,
               int& count) {
    const ClipRectangle r(a, b, c, d);
    const Point at = p; // p may lie in `out`
    if (std::fabs(v.x) < vertical) {
        if (!(r.rxg1 <= at.x && at.x <= r.rxg2)) return false;
        out[0] = {at.x, r.ryg1};
        out[1] = {at.x, r.ryg2};
        count = 2;
        return true;
    }
    if (std::fabs(v.y) < vertical) {
        if (!(r.ryg1 <= at.y && at.y <= r.ryg2)) return false;
        out[0] = {r.rxg1, at.y};
        out[1] = {r.rxg2, at.y};
        count = 2;
        return true;
    }
    out[0] = {r.rxg1, at.y + (r.rxg1 - at.x) / v.x * v.y};
    out[1] = {r.rxg2, at.y + (r.rxg2 - at.x) / v.x * v.y};
    count = 2;
    return polygon_clip(a, b, c, d, out, count);
}

} // namespace math
