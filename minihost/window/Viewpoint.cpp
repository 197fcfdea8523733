#include "minihost/window/Viewpoint.h"

#include <algorithm>
#include <cmath>

namespace minihost {

namespace {

using preview::Affine;
using preview::Camera;
using preview::Point;
using preview::Vector;

constexpr double min_zoom = 0.05, max_zoom = 50, max_pan = 20000, max_pitch = 89;
// How much of the window the composition fills at first: less in the views that also show what is
// around it.
constexpr double camera_share = 0.94, side_share = 0.62;
// Of the composition's width: from so far away, perspective cannot be seen.
constexpr double side_view_distance = 400;

// The axes of the camera of a side view.
Affine side_axes(ViewKind kind) {
    switch (kind) {
    case ViewKind::Top: // z upwards on the picture
        return {{1, 0, 0}, {0, 0, -1}, {0, 1, 0}, {}};
    case ViewKind::Left: // z to the left
        return {{0, 0, -1}, {0, 1, 0}, {1, 0, 0}, {}};
    default:
        return {};
    }
}

} // namespace

void Viewpoint::zoom(double factor, Point fixed) {
    View& view = current();
    const double zoom = std::clamp(view.zoom * factor, min_zoom, max_zoom);
    const double applied = zoom / view.zoom;
    view.zoom = zoom;
    view.x = fixed.x - (fixed.x - view.x) * applied;
    view.y = fixed.y - (fixed.y - view.y) * applied;
    pan(0, 0);
}

void Viewpoint::pan(double dx, double dy) {
    View& view = current();
    view.x = std::clamp(view.x + dx, -max_pan, max_pan);
    view.y = std::clamp(view.y + dy, -max_pan, max_pan);
}

void Viewpoint::orbit(double right, double down) {
    if (_kind != ViewKind::Custom) return;
    View& view = current();
    view.yaw = std::remainder(view.yaw + right, 360.0);
    view.pitch = std::clamp(view.pitch + down, -max_pitch, max_pitch);
}

Camera Viewpoint::camera(const Scene& scene) const {
    const double w = scene.composition.width, h = scene.composition.height;
    if (_kind == ViewKind::Camera) return preview::scene_camera(scene);
    Camera camera = preview::default_camera(w, h);
    if (_kind == ViewKind::Custom) {
        const View& view = current();
        camera.axes = preview::rotation({0, view.yaw, 0}) * preview::rotation({-view.pitch, 0, 0});
    } else {
        camera.axes = side_axes(_kind);
        camera.zoom = side_view_distance * std::max(w, h);
    }
    camera.axes.origin = Vector{w / 2, h / 2, 0} - camera.axes.z * camera.zoom;
    return camera;
}

double Viewpoint::magnification(const Scene& scene, double width, double height) const {
    const double fit = std::min(width / scene.composition.width, height / scene.composition.height);
    return std::max(1e-4,
                    fit * current().zoom * (_kind == ViewKind::Camera ? camera_share : side_share));
}

preview::Framing Viewpoint::framing(const Scene& scene, double width, double height,
                                    double scale) const {
    preview::Framing framing;
    framing.width = std::max(1, static_cast<int>(std::lround(width * scale)));
    framing.height = std::max(1, static_cast<int>(std::lround(height * scale)));
    framing.point = scale;
    framing.camera = camera(scene);
    framing.through_scene_camera = _kind == ViewKind::Camera;
    Camera& camera = framing.camera;
    camera.unit = magnification(scene, width, height) * scale;
    const double half_width = framing.width / (2 * camera.unit);
    const double half_height = framing.height / (2 * camera.unit);
    camera.shift = {half_width + current().x * scale / camera.unit - camera.center.x,
                    half_height + current().y * scale / camera.unit - camera.center.y};
    camera.margin =
        2 * (half_width + half_height + std::abs(camera.shift.x) + std::abs(camera.shift.y));
    return framing;
}

std::string Viewpoint::title(const Scene& scene) const {
    constexpr const char* names[view_kinds] = {"Camera", "Front", "Top", "Left", "Custom"};
    return _kind == ViewKind::Camera ? preview::scene_camera_name(scene)
                                     : names[static_cast<int>(_kind)];
}

} // namespace minihost
