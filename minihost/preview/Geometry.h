// Vectors, points and affine transforms, and where a layer's transform puts it. World space is the
// composition's: x right, y down, z away from the viewer, in its pixels; angles in degrees; column
// vectors.

#pragma once

#include "minihost/model/Layer.h"

namespace minihost::preview {

struct Vector {
    double x = 0, y = 0, z = 0;
};

Vector operator+(const Vector& a, const Vector& b);
Vector operator-(const Vector& a, const Vector& b);
Vector operator*(const Vector& a, double k);
double dot(const Vector& a, const Vector& b);
Vector cross(const Vector& a, const Vector& b);
double length(const Vector& a);
bool is_finite(const Vector& a);
Vector to_vector(const Vec3& v);
// `a` at length 1, or `otherwise` if it has no direction.
Vector unit_or(const Vector& a, const Vector& otherwise);

// A point of the picture in its pixels, x right, y down.
struct Point {
    double x = 0, y = 0;
};

// Three axes as columns and an origin: p goes to origin + x·p.x + y·p.y + z·p.z.
struct Affine {
    Vector x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1}, origin;

    Vector direction(const Vector& p) const;
    Vector point(const Vector& p) const;
};

// `a` after `b`.
Affine operator*(const Affine& a, const Affine& b);

// Rx(degrees.x) · Ry(degrees.y) · Rz(degrees.z). Angles beyond 360 are allowed.
Affine rotation(const Vector& degrees);

// orientation · rotation.
Affine layer_rotation(const Transform& transform);

// translate(position) · orientation · rotation · scale · translate(-anchor point).
Affine layer_to_world(const Transform& transform);

// The same for a layer that is not 3D: only x, y and the Z rotation count.
Affine flat_layer_to_world(const Transform& transform);

} // namespace minihost::preview
