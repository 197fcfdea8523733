// Paints a plan: the stage, every layer from far to near with its name, and the caption.

#pragma once

#include "minihost/preview/DrawList.h"

namespace minihost::preview {

void paint(Canvas& canvas, const Plan& plan);

} // namespace minihost::preview
