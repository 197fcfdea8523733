// What light and distance do to a layer's colours.

#pragma once

#include "minihost/preview/DrawList.h"

namespace minihost::preview {

class Shading {
  public:
    Shading(const DrawList& list, const DrawItem& item);
    Rgba operator()(const Rgba& color) const;
    // How much of the colour the haze has taken, 0 to 1.
    double haze_share() const { return _haze_share; }

  private:
    double _light = 1, _haze_share = 0;
};

} // namespace minihost::preview
