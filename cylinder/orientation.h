// How the layers are turned, from where they stand on the cylinder.

#pragma once

#include "common/adobe/LayerInfo.h"
#include "cylinder/CylinderOptions.h"

#include <list>

// Sets each record's orientation (degrees) by the options' mode from its position, in list order.
// `camera_orient` is what every layer gets under Orientation::towards_camera. Only
// Orientation::random draws from the global generator: x, y, z for each record.
void orient_layers(std::list<LayerInfo>& layers, const CylinderOptions& options,
                   const AEGP_StreamValue& camera_orient);
