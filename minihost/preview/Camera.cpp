#include "minihost/preview/Camera.h"

#include <algorithm>
#include <cmath>

namespace minihost::preview {

namespace {

constexpr double max_coordinate = 100000; // cairo's own limit is about 8 million
constexpr double zoom_per_width = 50.0 / 36.0;

double clamped(double coordinate) {
    return std::isnan(coordinate) ? max_coordinate
                                  : std::clamp(coordinate, -max_coordinate, max_coordinate);
}

} // namespace

double Camera::near_distance() const {
    return zoom / 1000;
}

Vector Camera::to_view(const Vector& world) const {
    const Vector p = world - axes.origin;
    return {dot(p, axes.x), dot(p, axes.y), dot(p, axes.z)};
}

Point Camera::project(const Vector& view) const {
    const double k = zoom / view.z;
    return {clamped((center.x + shift.x + view.x * k) * unit),
            clamped((center.y + shift.y + view.y * k) * unit)};
}

Camera camera_from_transform(const Transform& transform, double width, double height) {
    const Vector position = to_vector(transform.position);
    const Vector z = unit_or(to_vector(transform.anchor_point) - position, {0, 0, 1});
    const Vector x = unit_or(cross({0, 1, 0}, z), {1, 0, 0});
    Camera camera;
    camera.axes = Affine{x, cross(z, x), z, position} * layer_rotation(transform);
    camera.zoom = width * zoom_per_width;
    camera.center = {width / 2, height / 2};
    return camera;
}

Camera default_camera(double width, double height) {
    Transform transform;
    transform.anchor_point = {width / 2, height / 2, 0};
    transform.position = {width / 2, height / 2, -width * zoom_per_width};
    return camera_from_transform(transform, width, height);
}

} // namespace minihost::preview
