// From where the window looks at the composition: through its camera, straight at it from one of
// three sides, or from wherever the user has turned; zoomed and panned.

#pragma once

#include "minihost/model/Scene.h"
#include "minihost/preview/DrawList.h"

#include <array>
#include <string>

namespace minihost {

enum class ViewKind { Camera, Front, Top, Left, Custom };
inline constexpr int view_kinds = 5;

// Each kind of view keeps its own zoom, pan and rotation.
class Viewpoint {
  public:
    ViewKind kind() const { return _kind; }
    void choose(ViewKind kind) { _kind = kind; }
    // Back to how this view is shown at first.
    void reset() { current() = View{}; }

    // Magnifies by a factor around a fixed point of the picture, in points from its center.
    void zoom(double factor, preview::Point fixed = {});
    void pan(double dx, double dy); // points
    // Rotates the custom view (degrees); does nothing in the others.
    void orbit(double right, double down);

    // Points of the window for one pixel of the composition, in its plane. The window's size is in
    // points.
    double magnification(const Scene& scene, double width, double height) const;
    // For a picture of this size in points, with `scale` pixels for each.
    preview::Framing framing(const Scene& scene, double width, double height, double scale) const;
    // "Front", or the camera's name.
    std::string title(const Scene& scene) const;

    bool operator==(const Viewpoint&) const = default;

  private:
    struct View {
        double zoom = 1, x = 0, y = 0, yaw = 34, pitch = 22;
        bool operator==(const View&) const = default;
    };
    View& current() { return _views[static_cast<std::size_t>(_kind)]; }
    const View& current() const { return _views[static_cast<std::size_t>(_kind)]; }
    preview::Camera camera(const Scene& scene) const;

    ViewKind _kind = ViewKind::Camera;
    std::array<View, view_kinds> _views{};
};

} // namespace minihost
