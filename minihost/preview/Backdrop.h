// What stands around the layers: sky and ground, the grid on the floor, the shadows on it.

#pragma once

#include "minihost/preview/DrawList.h"

namespace minihost::preview {

void paint_stage(Canvas& canvas, const Plan& plan);

} // namespace minihost::preview
