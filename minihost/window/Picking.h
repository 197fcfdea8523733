// Which layers are where in a picture that was planned: under the mouse, or touched by a rubber
// band. Coordinates are pixels of the picture.

#pragma once

#include "minihost/preview/DrawList.h"

#include <vector>

namespace minihost {

// The layer that is seen there; 0 for none.
LayerId layer_at(const preview::Plan& plan, const preview::Point& point);

// Every layer of which the band touches a part, hidden or not, top layer first.
std::vector<LayerId> layers_touched(const preview::Plan& plan, const preview::Point& corner,
                                    const preview::Point& opposite);

} // namespace minihost
