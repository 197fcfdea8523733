// Where the parts of the window are: the composition view above the layer list on the left, the
// docked panel on the right, the status line below. Points from the upper left corner of what the
// menu bar leaves.

#pragma once

namespace minihost {

struct Box {
    double x = 0, y = 0, width = 0, height = 0;
};

// What is docked: nothing when it has no area.
struct Docked {
    double width = 0, height = 0;
};

struct Layout {
    Box view, list, dock_header, dock, panel, status;
};

inline constexpr double least_window_width = 900, least_window_height = 600; // with the menu bar
inline constexpr double menu_bar_height = 24, header_height = 24, status_height = 24;
inline constexpr double row_height = 20;

// Whole points, even ones where parts meet, so that at one and a half pixels a point they meet at
// whole pixels.
Layout lay_out(double width, double height, const Docked& docked);

} // namespace minihost
