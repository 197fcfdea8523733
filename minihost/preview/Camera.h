// What a picture is seen through.

#pragma once

#include "minihost/preview/Geometry.h"

namespace minihost::preview {

struct Camera {
    Affine axes;     // its origin is the eye, its z axis looks into the scene
    double zoom = 1; // the distance, in pixels of the composition, at which one is seen one wide
    Point center;    // of the composition
    double unit = 1; // pixels of the picture for one of the composition
    // For a picture that is not a frame of the composition: how far the composition is moved in it,
    // and how far the picture reaches beyond the composition, both in pixels of the composition.
    Point shift;
    double margin = 0;

    // Nothing nearer than this is seen.
    double near_distance() const;
    Vector to_view(const Vector& world) const; // in the axes of the camera
    // The point of the picture, clamped to ±100000; view.z must be at least near_distance().
    Point project(const Vector& view) const;
};

// The camera of a camera layer: at its position, looking at its point of interest (the anchor
// point) with the world's y axis downward, or along the z axis if both are one point; then rotated
// by orientation and rotation. Its zoom is 50/36 of the composition's width.
Camera camera_from_transform(const Transform& transform, double width, double height);

// The camera of a composition without one: in front of its center, at the distance of its zoom.
Camera default_camera(double width, double height);

} // namespace minihost::preview
