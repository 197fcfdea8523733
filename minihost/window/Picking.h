// Finds layers in a picture: under the mouse, or touched by a rubber band. Coordinates are pixels
// of the picture.

#pragma once

#include "minihost/preview/DrawList.h"

#include <vector>

namespace minihost {

// The layer that is seen at a point; 0 for none.
LayerId layer_at(const preview::DrawList& list, const preview::Point& point);

// The layers that a rectangle touches, hidden or not, top layer first.
std::vector<LayerId> layers_touched(const preview::DrawList& list, const preview::Point& corner,
                                    const preview::Point& opposite);

} // namespace minihost
