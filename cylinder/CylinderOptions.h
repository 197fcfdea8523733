// What the user chose for the cylinder, read once at Apply. Placement, orientation and scaling are
// functions over the records and these options, with no dialog in them.

#pragma once

#include "math/vector.h"

// How the layers are turned.
enum class Orientation {
    unchanged,
    xy,
    xz,
    yz,
    towards_camera,
    random,
    yz_outward,
    yz_inward,
    tangent_xy,
    flat_xz,
};

struct CylinderOptions {
    // A value drawn between `min` and `max`, and what each further layer adds to it.
    struct Range {
        double min = 0, max = 0, increment = 0;
        double span() const { return max - min; }
    };

    math::TGeomVector3D<double> size{1000, 1000, 1000}; // width, height, depth in pixels, above 0
    bool distribute_randomly = false;
    Range angle{50, 50, 0};      // degrees from one layer to the next
    Range distance{360, 360, 0}; // pixels from the axis
    Range height{50, 50, 0};     // pixels from one layer up to the next
    Orientation orientation = Orientation::unchanged;
    bool scale_to_fit = false;
    bool scale_to_size = false;
    float target_size = 100; // pixels, for scale_to_size
};
