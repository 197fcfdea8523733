// Where things of a composition stand and where they are seen: layer transforms, the camera, and
// the flat rectangle of a layer as the camera sees it. Host space: x right, y down, z away from
// the viewer, in pixels of the composition; angles in degrees; column vectors.

#pragma once

#include <array>
#include <vector>

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

// A point of the picture in its pixels, x right, y down.
struct Point {
    double x = 0, y = 0;
};

// Three axes as columns and where they start: p goes to origin + x·p.x + y·p.y + z·p.z.
struct Placement {
    Vector x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1}, origin;

    Vector direction(const Vector& p) const;
    Vector point(const Vector& p) const;
};

// `a` after `b`: the placement that takes a point through b and then through a.
Placement operator*(const Placement& a, const Placement& b);

// Rx(degrees.x) · Ry(degrees.y) · Rz(degrees.z). Angles beyond a turn are allowed.
Placement turn(const Vector& degrees);

// The values of a layer's transform at one time; scale in per cent.
struct Pose {
    Vector anchor_point, position, scale{100, 100, 100}, orientation, rotation;
};

// translate(position) · orientation · rotation · scale · translate(-anchor point).
Placement place(const Pose& pose);

// The same for a layer that is not 3D: only x, y and the Z rotation count.
Placement place_flat(const Pose& pose);

// What a picture is seen through. `zoom` is the distance, in pixels of the composition, at which
// one of its pixels is seen one pixel wide; `centre` the middle of the composition; `unit` the
// pixels of the picture for one of the composition.
struct Lens {
    Placement body; // its z axis looks into the scene
    double zoom = 1;
    Point centre;
    double unit = 1;
    // For a picture that is no frame of the composition: how far the composition is moved in it,
    // and how far the picture reaches beyond the composition, both in pixels of the composition.
    Point shift;
    double beyond = 0;

    // Nothing nearer than this is seen.
    double near() const;
    Vector view(const Vector& world) const;  // in the axes of the lens
    Point project(const Vector& view) const; // view.z at least near()
};

// A lens at `position` that looks at `point_of_interest` with the y axis of the world downward
// (along its own z axis if both are one point), then turned by orientation and rotation.
// The zoom is 50/36 of the width.
Lens look(const Pose& pose, const Vector& point_of_interest, double width, double height);

// The lens of a composition without a camera: before its centre, at the distance of its zoom.
Lens default_lens(double width, double height);

// A rectangle of a layer (left, top, width, height in its own pixels) as a lens sees it.
class Facet {
  public:
    Facet() = default;
    Facet(const Lens& lens, const Placement& layer, const std::array<double, 4>& rectangle);
    // Of a layer that is not 3D: it lies on the composition itself.
    static Facet flat(const Lens& lens, const Placement& layer, const std::array<double, 4>& rect);

    // Whether it can be drawn at all: every corner finite, some of it before the lens.
    bool visible() const { return _visible; }
    // Whether all of it is before the lens, so that `at` may be asked.
    bool whole() const { return _whole; }
    // Distance of the middle along the view axis.
    double depth() const { return _middle.z; }
    // The point of the picture at (u, v) of the rectangle, each 0 to 1; clamped to ±100000.
    Point at(double u, double v) const;
    Vector view_at(double u, double v) const;
    // The corners in order, cut at the near plane and well outside of the picture.
    std::vector<Point> polygon() const;
    // Unit vector that leaves its front, in the axes of the lens; zero where it has no area.
    Vector normal() const;
    // Whether the lens sees its front.
    bool faces_lens() const;
    double width() const { return _width; }
    double height() const { return _height; }
    // The smaller and the larger stretch, in pixels of the picture for one of the layer, at (u, v).
    std::array<double, 2> stretch(double u, double v) const;

  private:
    void judge();

    Lens _lens;
    Vector _corner, _across, _down, _middle;
    double _width = 0, _height = 0;
    bool _visible = false, _whole = false;
};

} // namespace minihost::preview
