// A picture of a view, and its PNG file.

#pragma once

#include "sdk/HostTypes.h"

#include <string>
#include <vector>

namespace minihost {

// RGBA, 8 bits each, premultiplied, rows from the top.
struct Picture {
    int width = 0, height = 0; // pixels
    std::vector<unsigned char> rgba;
};

// Draws a view at `scale` pixels per point; empty if the view has no area.
Picture render_view(NSView* view, double scale);

// The bytes of a PNG file. The picture must not be empty. Throws std::runtime_error if memory runs
// out.
std::string encode_png(const Picture& picture);

} // namespace minihost
