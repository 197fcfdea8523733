// The rectangle of a layer as a camera sees it.

#pragma once

#include "minihost/preview/Camera.h"

#include <vector>

namespace minihost::preview {

struct Rectangle {
    double left = 0, top = 0, width = 0, height = 0;
};

// Pixels of the picture for one of the layer, across the direction in which it is seen smallest and
// largest.
struct Stretch {
    double smallest = 0, largest = 0;
};

class LayerQuad {
  public:
    LayerQuad() = default;
    // The rectangle is in the layer's own pixels.
    LayerQuad(const Camera& camera, const Affine& to_world, const Rectangle& rectangle);
    // Of a layer that is not 3D: it lies on the composition, wherever the camera is.
    static LayerQuad flat(const Camera& camera, const Affine& to_world, const Rectangle& rectangle);

    // Every corner is finite, and some of it lies in front of the camera.
    bool is_visible() const { return _is_visible; }
    // All of it lies in front of the camera, so that `at` gives true points.
    bool is_in_front() const { return _is_in_front; }
    // Distance of its center along the view axis.
    double depth() const { return _center.z; }
    // The point of the picture at (u, v) of the rectangle, each 0 to 1.
    Point at(double u, double v) const;
    // The corners in order, clipped at the near distance and well outside the picture; empty if
    // nothing is left.
    std::vector<Point> polygon() const;
    // Unit vector out of its front, in the axes of the camera; zero if it has no area.
    Vector normal() const;
    bool faces_camera() const;
    double width() const { return _width; }
    double height() const { return _height; }
    // At (u, v); zeros unless it is in front and has an area.
    Stretch stretch(double u, double v) const;

  private:
    Vector view_at(double u, double v) const;

    Camera _camera;
    Vector _corner, _across, _down, _center; // in the axes of the camera
    double _width = 0, _height = 0;
    bool _is_visible = false, _is_in_front = false;
};

} // namespace minihost::preview
