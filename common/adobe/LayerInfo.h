// One selected layer as the placement works on it: a plain copy of what the host says about it,
// changed in memory and written back by the apply pipeline.

#pragma once

#include "math/matrix.h"
#include "sdk/Host.h"

struct LayerInfo {
    A_long index = 0;                           // in its composition; the default sort key
    A_long sel_index = 0;                       // among the items of the selection it came from
    A_long width = 0, height = 0;               // pixels
    A_long scaled_width = 0, scaled_height = 0; // pixels at `scale`, truncated
    AEGP_StreamValue scale{};                   // percent
    AEGP_StreamValue pos{};                     // composition pixels, y down
    AEGP_StreamValue orient{};                  // degrees, with X, Y and Z Rotation added in
    math::TMatrix3D<double> mat;                // see refresh_mat
    AEGP_LayerH layer = nullptr;
    A_Time offset{};      // the layer's start in the composition
    A_Time time{};        // its current time; keys are inserted here
    bool is_copy = false; // the layer is duplicated before values are written

    // The pixel size as a point, x the width.
    A_LPoint scaled_size() const { return {scaled_width, scaled_height}; }
    void set_scaled_size(A_LPoint size) { scaled_width = size.x, scaled_height = size.y; }

    // Recomputes `mat` from `pos` and `orient`: the shift by `pos` times the rotations about x, y
    // and z, so that it takes a point of the layer, in pixels from its centre, to where it stands.
    void refresh_mat();
};

// The order of the composition: the top layer first.
inline bool operator<(const LayerInfo& a, const LayerInfo& b) {
    return a.index < b.index;
}
