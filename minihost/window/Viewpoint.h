// From where the window looks at the composition: through its camera, straight at it from one of
// three sides, or from wherever the user has turned; nearer or farther, and moved aside.

#pragma once

#include "minihost/model/Scene.h"
#include "minihost/preview/DrawList.h"

#include <array>
#include <string>

namespace minihost {

enum class ViewKind { Camera, Front, Top, Left, Custom };
inline constexpr int view_kinds = 5;

class ViewPoint {
  public:
    ViewKind kind() const { return _kind; }
    // Each view is found as it was left.
    void choose(ViewKind kind) { _kind = kind; }
    // As the program first shows this view.
    void reset() { now() = Pose{}; }

    // Magnifies by a factor; the point of the picture that is `about` (in points from its middle)
    // stays where it is.
    void zoom(double factor, preview::Point about = {});
    void pan(double dx, double dy); // points
    // Turns the custom view (degrees); the others are passed over.
    void orbit(double right, double down);

    // How large the composition is: 1 is pixel for point, in the plane of the composition.
    double magnification(const Scene& scene, double width, double height) const;
    // A picture of this size in points, with `scale` pixels for each.
    preview::Framing framing(const Scene& scene, double width, double height, double scale) const;
    // "Front", or the camera's name.
    std::string title(const Scene& scene) const;

    bool operator==(const ViewPoint&) const = default;

  private:
    struct Pose {
        double zoom = 1, x = 0, y = 0, yaw = 34, pitch = 22;
        bool operator==(const Pose&) const = default;
    };
    Pose& now() { return _poses[static_cast<std::size_t>(_kind)]; }
    const Pose& now() const { return _poses[static_cast<std::size_t>(_kind)]; }
    preview::Lens lens(const Scene& scene) const;

    ViewKind _kind = ViewKind::Camera;
    std::array<Pose, view_kinds> _poses{};
};

} // namespace minihost
