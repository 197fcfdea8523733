#include "minihost/preview/LayerQuad.h"

#include <algorithm>
#include <cmath>

namespace minihost::preview {

namespace {

// The part of a convex polygon where distance(point) is not negative.
template <typename Distance>
std::vector<Vector> clipped(const std::vector<Vector>& polygon, Distance distance) {
    std::vector<Vector> kept;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Vector& a = polygon[i];
        const Vector& b = polygon[(i + 1) % polygon.size()];
        const double da = distance(a), db = distance(b);
        if (da >= 0) kept.push_back(a);
        if ((da >= 0) != (db >= 0)) kept.push_back(a + (b - a) * (da / (da - db)));
    }
    return kept;
}

} // namespace

LayerQuad::LayerQuad(const Camera& camera, const Affine& to_world, const Rectangle& rectangle)
    : _camera(camera), _width(rectangle.width), _height(rectangle.height) {
    const auto direction = [&](const Vector& a) {
        return Vector{dot(a, camera.axes.x), dot(a, camera.axes.y), dot(a, camera.axes.z)};
    };
    _corner = camera.to_view(to_world.point({rectangle.left, rectangle.top, 0}));
    _across = direction(to_world.x) * _width;
    _down = direction(to_world.y) * _height;
    _center = view_at(0.5, 0.5);
    bool all_finite = true, any_in_front = false, all_in_front = true;
    for (const Point& uv : {Point{0, 0}, Point{1, 0}, Point{1, 1}, Point{0, 1}}) {
        const Vector p = view_at(uv.x, uv.y);
        // Its square must be finite too.
        all_finite = all_finite && is_finite(p) && std::isfinite(dot(p, p));
        const bool in_front = p.z > camera.near_distance();
        any_in_front = any_in_front || in_front;
        all_in_front = all_in_front && in_front;
    }
    _is_visible = all_finite && any_in_front;
    _is_in_front = all_finite && all_in_front;
}

LayerQuad LayerQuad::flat(const Camera& camera, const Affine& to_world,
                          const Rectangle& rectangle) {
    Camera straight = camera;
    straight.axes = Affine{};
    straight.axes.origin = {camera.center.x, camera.center.y, -camera.zoom};
    return LayerQuad(straight, to_world, rectangle);
}

Vector LayerQuad::view_at(double u, double v) const {
    return _corner + _across * u + _down * v;
}

Point LayerQuad::at(double u, double v) const {
    Vector p = view_at(u, v);
    p.z = std::max(p.z, _camera.near_distance());
    return _camera.project(p);
}

std::vector<Point> LayerQuad::polygon() const {
    std::vector<Vector> p{view_at(0, 0), view_at(1, 0), view_at(1, 1), view_at(0, 1)};
    const double near = _camera.near_distance();
    p = clipped(p, [&](const Vector& a) { return a.z - near; });
    // Twice the half picture and a little more on each side, so that no clipped edge is in it.
    const double side = (2 * _camera.center.x + 100 + _camera.margin) / _camera.zoom;
    const double rise = (2 * _camera.center.y + 100 + _camera.margin) / _camera.zoom;
    p = clipped(p, [&](const Vector& a) { return side * a.z + a.x; });
    p = clipped(p, [&](const Vector& a) { return side * a.z - a.x; });
    p = clipped(p, [&](const Vector& a) { return rise * a.z + a.y; });
    p = clipped(p, [&](const Vector& a) { return rise * a.z - a.y; });
    std::vector<Point> points;
    for (const Vector& a : p) {
        if (is_finite(a) && a.z > 0) points.push_back(_camera.project(a));
    }
    return points.size() < 3 ? std::vector<Point>{} : points;
}

Vector LayerQuad::normal() const {
    return unit_or(cross(_down, _across), {});
}

bool LayerQuad::faces_camera() const {
    return dot(cross(_across, _down), _center) > 0;
}

Stretch LayerQuad::stretch(double u, double v) const {
    if (!_is_in_front || _width <= 0 || _height <= 0) return {};
    // The half axes of the ellipse that a circle of one pixel becomes.
    const double e = 1e-3;
    const Point o = at(u, v), a = at(u + e, v), b = at(u, v + e);
    const double ax = (a.x - o.x) / (e * _width), ay = (a.y - o.y) / (e * _width);
    const double bx = (b.x - o.x) / (e * _height), by = (b.y - o.y) / (e * _height);
    const double sum = ax * ax + ay * ay + bx * bx + by * by;
    const double area = std::abs(ax * by - ay * bx);
    const double root = std::sqrt(std::max(0.0, sum * sum / 4 - area * area));
    const double largest = std::sqrt(sum / 2 + root);
    return {largest > 0 ? area / largest : 0, largest};
}

} // namespace minihost::preview
