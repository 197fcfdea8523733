// Where the layers go: along a spiral on the cylinder, or anywhere inside it. Positions are in
// pixels from the cylinder's centre, x to the right, y down, z away from the viewer; the axis is y.

#pragma once

#include "common/adobe/LayerInfo.h"
#include "cylinder/CylinderOptions.h"

#include <list>

// Sets each record's position in list order. The first stands on the x axis; every further one
// turns by the angle and climbs by the height from the one before, at its own distance from the
// axis. Heights stay inside the cylinder and distances inside its elliptic cross-section. Draws
// from the global generator, which the caller has seeded: one number for the first record, three
// (angle, height, distance) for each other.
void pos_use_dist(std::list<LayerInfo>& layers, const CylinderOptions& options);

// Sets each record's position at random inside the cylinder: uniform in height, in angle and in
// radius. Three draws a record (height, angle, radius) from the global generator.
void pos_randomly(std::list<LayerInfo>& layers, const CylinderOptions& options);
