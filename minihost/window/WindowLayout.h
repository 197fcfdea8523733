// Where the parts of the window are: the composition view above the layer list on the left, the
// docked panel on the right, the status line below. Points from the upper left corner below the
// menu bar.

#pragma once

namespace minihost {

struct Box {
    double x = 0, y = 0, width = 0, height = 0;
};

// Of the docked panel; none if it has no area.
struct DockedSize {
    double width = 0, height = 0;
};

struct WindowLayout {
    Box view, list, dock_header, dock, panel, status;
};

inline constexpr double least_window_width = 900, least_window_height = 600; // with the menu bar
inline constexpr double menu_bar_height = 24, header_height = 24, status_height = 24;
inline constexpr double row_height = 20;

// Whole points, even ones between the parts, which are whole pixels at one and a half pixels per
// point too.
WindowLayout window_layout(double width, double height, const DockedSize& docked);

} // namespace minihost
