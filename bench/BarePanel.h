// The panel drawn with cairo and pango and nothing between: the same shapes and texts, from a list
// of its controls.

#pragma once

#include "minihost/dialog/Controls.h"
#include "minihost/dialog/Picture.h"

#include <vector>

namespace bench {

// At `scale` pixels per point. The size is in points.
minihost::Picture draw_bare_panel(const std::vector<minihost::Control>& controls, double width,
                                  double height, double scale);

} // namespace bench
