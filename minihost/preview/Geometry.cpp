#include "minihost/preview/Geometry.h"

#include <cmath>
#include <numbers>

namespace minihost::preview {

namespace {

// Rotates two perpendicular axes in their plane, `from` toward `to`.
void rotate(Vector& from, Vector& to, double degrees) {
    const double radians = std::remainder(degrees, 360.0) * (std::numbers::pi / 180.0);
    const double c = std::cos(radians), s = std::sin(radians);
    const Vector old = from;
    from = from * c + to * s;
    to = to * c - old * s;
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
Vector to_vector(const Vec3& v) {
    return {v[0], v[1], v[2]};
}
Vector unit_or(const Vector& a, const Vector& otherwise) {
    const double n = length(a);
    return n > 1e-9 && std::isfinite(n) ? a * (1 / n) : otherwise;
}

Vector Affine::direction(const Vector& p) const {
    return x * p.x + y * p.y + z * p.z;
}
Vector Affine::point(const Vector& p) const {
    return origin + direction(p);
}

Affine operator*(const Affine& a, const Affine& b) {
    return {a.direction(b.x), a.direction(b.y), a.direction(b.z), a.point(b.origin)};
}

Affine rotation(const Vector& degrees) {
    Affine a;
    rotate(a.y, a.z, degrees.x);
    rotate(a.z, a.x, degrees.y);
    rotate(a.x, a.y, degrees.z);
    return a;
}

Affine layer_rotation(const Transform& transform) {
    return rotation(to_vector(transform.orientation)) * rotation(to_vector(transform.rotation));
}

Affine layer_to_world(const Transform& transform) {
    Affine a = layer_rotation(transform);
    a.x = a.x * (transform.scale[0] / 100);
    a.y = a.y * (transform.scale[1] / 100);
    a.z = a.z * (transform.scale[2] / 100);
    a.origin = to_vector(transform.position) - a.direction(to_vector(transform.anchor_point));
    return a;
}

Affine flat_layer_to_world(const Transform& transform) {
    Transform flat = transform;
    flat.anchor_point[2] = flat.position[2] = 0;
    flat.scale[2] = 100;
    flat.orientation = {};
    flat.rotation = {0, 0, transform.rotation[2]};
    return layer_to_world(flat);
}

} // namespace minihost::preview
