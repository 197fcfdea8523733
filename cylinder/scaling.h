// How large the layers are: shrunk until they fit into the cylinder, or brought to a given size.

#pragma once

#include "common/adobe/LayerInfo.h"
#include "cylinder/CylinderOptions.h"

#include <list>

// Shrinks every layer, keeping its aspect ratio, until none of its corners sticks out of the
// cylinder; no layer gets less than one pixel along its longer side. A layer whose centre is
// outside stays as it is, and so does one of size 0. Uses the records' positions and orientations.
void scale_layers_to_fit(std::list<LayerInfo>& layers, const CylinderOptions& options);

// Brings every layer to the target size in pixels, each axis on its own. An axis of size 0 keeps
// its scale.
void scale_layers_conform(std::list<LayerInfo>& layers, const CylinderOptions& options);

// The fraction of the way from `p1` to `p2` at which it leaves the cylinder of this size (width,
// height, depth, centred at the origin, elliptic across y); 1 if it does not leave it, or enters
// and leaves it.
double downscale(const math::TGeomVector3D<double>& p1, const math::TGeomVector3D<double>& p2,
                 const math::TGeomVector3D<double>& size);
