// What surrounds the layers: sky and ground, the grid on the floor, the layers' shadows on it.

#pragma once

#include "minihost/preview/DrawList.h"

namespace minihost::preview {

void paint_backdrop(Canvas& canvas, const DrawList& list);

} // namespace minihost::preview
