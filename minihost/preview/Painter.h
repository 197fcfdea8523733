// Paints a draw list: the backdrop, every layer from far to near with its name, and the caption.

#pragma once

#include "minihost/preview/DrawList.h"

namespace minihost::preview {

void paint(Canvas& canvas, const DrawList& list);

} // namespace minihost::preview
