#include "minihost/window/Viewpoint.h"

#include <algorithm>
#include <cmath>

namespace minihost {

namespace {

using preview::Lens;
using preview::Placement;
using preview::Point;
using preview::Vector;

constexpr double least_zoom = 0.05, greatest_zoom = 50, farthest_pan = 20000, steepest = 89;
// How much of the view the composition takes at first: the camera sees no more of it, the other
// views show what is around it too.
constexpr double camera_share = 0.94, side_share = 0.62;
// From so many widths away things look as large behind as in front.
constexpr double far_away = 400;

Placement side(ViewKind kind) {
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

void ViewPoint::zoom(double factor, Point about) {
    Pose& pose = now();
    const double zoom = std::clamp(pose.zoom * factor, least_zoom, greatest_zoom);
    const double real = zoom / pose.zoom;
    pose.zoom = zoom;
    pose.x = about.x - (about.x - pose.x) * real;
    pose.y = about.y - (about.y - pose.y) * real;
    pan(0, 0);
}

void ViewPoint::pan(double dx, double dy) {
    Pose& pose = now();
    pose.x = std::clamp(pose.x + dx, -farthest_pan, farthest_pan);
    pose.y = std::clamp(pose.y + dy, -farthest_pan, farthest_pan);
}

void ViewPoint::orbit(double right, double down) {
    if (_kind != ViewKind::Custom) return;
    Pose& pose = now();
    pose.yaw = std::remainder(pose.yaw + right, 360.0);
    pose.pitch = std::clamp(pose.pitch + down, -steepest, steepest);
}

Lens ViewPoint::lens(const Scene& scene) const {
    const double w = scene.composition.width, h = scene.composition.height;
    if (_kind == ViewKind::Camera) return preview::camera_lens(scene);
    Lens lens = preview::default_lens(w, h);
    if (_kind == ViewKind::Custom) {
        const Pose& pose = now();
        lens.body = preview::turn({0, pose.yaw, 0}) * preview::turn({-pose.pitch, 0, 0});
    } else {
        lens.body = side(_kind);
        lens.zoom = far_away * std::max(w, h);
    }
    lens.body.origin = Vector{w / 2, h / 2, 0} - lens.body.z * lens.zoom;
    return lens;
}

double ViewPoint::magnification(const Scene& scene, double width, double height) const {
    const double fit = std::min(width / scene.composition.width, height / scene.composition.height);
    return std::max(1e-4,
                    fit * now().zoom * (_kind == ViewKind::Camera ? camera_share : side_share));
}

preview::Framing ViewPoint::framing(const Scene& scene, double width, double height,
                                    double scale) const {
    preview::Framing framing;
    framing.width = std::max(1, static_cast<int>(std::lround(width * scale)));
    framing.height = std::max(1, static_cast<int>(std::lround(height * scale)));
    framing.point = scale;
    framing.lens = lens(scene);
    framing.through_camera = _kind == ViewKind::Camera;
    Lens& lens = framing.lens;
    lens.unit = magnification(scene, width, height) * scale;
    const double half_width = framing.width / (2 * lens.unit);
    const double half_height = framing.height / (2 * lens.unit);
    lens.shift = {half_width + now().x * scale / lens.unit - lens.centre.x,
                  half_height + now().y * scale / lens.unit - lens.centre.y};
    lens.beyond = 2 * (half_width + half_height + std::abs(lens.shift.x) + std::abs(lens.shift.y));
    return framing;
}

std::string ViewPoint::title(const Scene& scene) const {
    switch (_kind) {
    case ViewKind::Camera:
        return preview::camera_name(scene);
    case ViewKind::Front:
        return "Front";
    case ViewKind::Top:
        return "Top";
    case ViewKind::Left:
        return "Left";
    case ViewKind::Custom:
        break;
    }
    return "Custom";
}

} // namespace minihost
