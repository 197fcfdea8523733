// Transforms, the lens and facets.

#include "minihost/preview/Camera.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace minihost::preview {

namespace {

constexpr double furthest = 100000; // of a coordinate handed on; cairo ends at about 8 million
constexpr double zoom_per_width = 50.0 / 36.0;

double radians(double degrees) {
    return std::remainder(degrees, 360.0) * (std::numbers::pi / 180.0);
}

// One axis of `columns` turned toward another by an angle.
void rotate(Vector& from, Vector& to, double degrees) {
    const double c = std::cos(radians(degrees)), s = std::sin(radians(degrees));
    const Vector old = from;
    from = from * c + to * s;
    to = to * c - old * s;
}

Vector unit_or(const Vector& a, const Vector& otherwise) {
    const double n = length(a);
    return n > 1e-9 && std::isfinite(n) ? a * (1 / n) : otherwise;
}

// The part of a polygon where distance(point) is not negative.
template <typename Distance>
std::vector<Vector> cut(const std::vector<Vector>& polygon, Distance distance) {
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

Vector operator+(const Vector& a, const Vector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
Vector operator-(const Vector& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
Vector operator*(const Vector& a, double k) {
    return {a.x * k, a.y * k, a.z * k};
}
double dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vector cross(const Vector& a, const Vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double length(const Vector& a) {
    return std::sqrt(dot(a, a));
}
bool is_finite(const Vector& a) {
    return std::isfinite(a.x) && std::isfinite(a.y) && std::isfinite(a.z);
}

Vector Placement::direction(const Vector& p) const {
    return x * p.x + y * p.y + z * p.z;
}
Vector Placement::point(const Vector& p) const {
    return origin + direction(p);
}

Placement operator*(const Placement& a, const Placement& b) {
    return {a.direction(b.x), a.direction(b.y), a.direction(b.z), a.point(b.origin)};
}

Placement turn(const Vector& degrees) {
    Placement p;
    rotate(p.y, p.z, degrees.x);
    rotate(p.z, p.x, degrees.y);
    rotate(p.x, p.y, degrees.z);
    return p;
}

Placement place(const Pose& t) {
    Placement p = turn(t.orientation) * turn(t.rotation);
    p.x = p.x * (t.scale.x / 100);
    p.y = p.y * (t.scale.y / 100);
    p.z = p.z * (t.scale.z / 100);
    p.origin = t.position - p.direction(t.anchor_point);
    return p;
}

Placement place_flat(const Pose& t) {
    Pose flat;
    flat.anchor_point = {t.anchor_point.x, t.anchor_point.y, 0};
    flat.position = {t.position.x, t.position.y, 0};
    flat.scale = {t.scale.x, t.scale.y, 100};
    flat.rotation = {0, 0, t.rotation.z};
    return place(flat);
}

double Lens::near() const {
    return zoom / 1000;
}

Vector Lens::view(const Vector& world) const {
    const Vector p = world - body.origin;
    return {dot(p, body.x), dot(p, body.y), dot(p, body.z)};
}

Point Lens::project(const Vector& view) const {
    const double k = zoom / view.z;
    const auto bounded = [](double a) {
        return std::isnan(a) ? furthest : std::clamp(a, -furthest, furthest);
    };
    return {bounded((centre.x + shift.x + view.x * k) * unit),
            bounded((centre.y + shift.y + view.y * k) * unit)};
}

Lens look(const Pose& t, const Vector& point_of_interest, double width, double height) {
    const Vector z = unit_or(point_of_interest - t.position, {0, 0, 1});
    const Vector x = unit_or(cross({0, 1, 0}, z), {1, 0, 0});
    Placement body{x, cross(z, x), z, t.position};
    body = body * (turn(t.orientation) * turn(t.rotation));
    return {body, width * zoom_per_width, {width / 2, height / 2}, 1, {}, 0};
}

Lens default_lens(double width, double height) {
    Pose t;
    const Vector middle{width / 2, height / 2, 0};
    t.position = middle - Vector{0, 0, width * zoom_per_width};
    return look(t, middle, width, height);
}

Facet::Facet(const Lens& lens, const Placement& layer, const std::array<double, 4>& rectangle)
    : _lens(lens), _width(rectangle[2]), _height(rectangle[3]) {
    const auto in_view = [&](const Vector& a) {
        return Vector{dot(a, lens.body.x), dot(a, lens.body.y), dot(a, lens.body.z)};
    };
    _corner = lens.view(layer.point({rectangle[0], rectangle[1], 0}));
    _across = in_view(layer.x) * _width;
    _down = in_view(layer.y) * _height;
    judge();
}

Facet Facet::flat(const Lens& lens, const Placement& layer, const std::array<double, 4>& rect) {
    Lens plain = lens;
    plain.body = Placement{};
    plain.body.origin = {lens.centre.x, lens.centre.y, -lens.zoom};
    return Facet(plain, layer, rect);
}

void Facet::judge() {
    _middle = view_at(0.5, 0.5);
    _visible = _whole = true;
    bool before = false;
    for (const Point& uv : {Point{0, 0}, Point{1, 0}, Point{1, 1}, Point{0, 1}}) {
        const Vector p = view_at(uv.x, uv.y);
        // Squares of it must be finite too.
        _visible = _visible && is_finite(p) && std::isfinite(dot(p, p));
        before = before || p.z > _lens.near();
        _whole = _whole && p.z > _lens.near();
    }
    _visible = _visible && before;
    _whole = _whole && _visible;
}

Vector Facet::view_at(double u, double v) const {
    return _corner + _across * u + _down * v;
}

Point Facet::at(double u, double v) const {
    Vector p = view_at(u, v);
    p.z = std::max(p.z, _lens.near());
    return _lens.project(p);
}

std::vector<Point> Facet::polygon() const {
    std::vector<Vector> p{view_at(0, 0), view_at(1, 0), view_at(1, 1), view_at(0, 1)};
    const double near = _lens.near();
    p = cut(p, [&](const Vector& a) { return a.z - near; });
    // Twice the half picture and a little more on each side: no cut edge is ever in it.
    const double side = (2 * _lens.centre.x + 100 + _lens.beyond) / _lens.zoom;
    const double rise = (2 * _lens.centre.y + 100 + _lens.beyond) / _lens.zoom;
    p = cut(p, [&](const Vector& a) { return side * a.z + a.x; });
    p = cut(p, [&](const Vector& a) { return side * a.z - a.x; });
    p = cut(p, [&](const Vector& a) { return rise * a.z + a.y; });
    p = cut(p, [&](const Vector& a) { return rise * a.z - a.y; });
    std::vector<Point> points;
    for (const Vector& a : p) {
        if (is_finite(a) && a.z > 0) points.push_back(_lens.project(a));
    }
    return points.size() < 3 ? std::vector<Point>{} : points;
}

Vector Facet::normal() const {
    return unit_or(cross(_down, _across), {});
}

bool Facet::faces_lens() const {
    return dot(cross(_across, _down), _middle) > 0;
}

std::array<double, 2> Facet::stretch(double u, double v) const {
    if (!_whole || _width <= 0 || _height <= 0) return {0, 0};
    // The larger and the smaller half axis of the ellipse that a circle of one pixel becomes.
    const double e = 1e-3;
    const Point o = at(u, v), a = at(u + e, v), b = at(u, v + e);
    const double ax = (a.x - o.x) / (e * _width), ay = (a.y - o.y) / (e * _width);
    const double bx = (b.x - o.x) / (e * _height), by = (b.y - o.y) / (e * _height);
    const double sum = ax * ax + ay * ay + bx * bx + by * by;
    const double area = std::abs(ax * by - ay * bx);
    const double root = std::sqrt(std::max(0.0, sum * sum / 4 - area * area));
    const double large = std::sqrt(sum / 2 + root);
    return {large > 0 ? area / large : 0, large};
}

} // namespace minihost::preview
