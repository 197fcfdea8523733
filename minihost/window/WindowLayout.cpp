#include "minihost/window/WindowLayout.h"

#include <algorithm>
#include <cmath>

namespace minihost {

namespace {

constexpr double gap = 2; // between parts
constexpr double min_list = 120, max_list = 320, list_share = 0.34;

double even(double length) {
    return std::ceil(length / 2) * 2;
}

} // namespace

WindowLayout window_layout(double width, double height, const DockedSize& docked) {
    WindowLayout layout;
    const double room = std::max(0.0, height - status_height);
    layout.status = {0, room, width, std::min(height, status_height)};
    const bool any = docked.width > 0 && docked.height > 0;
    const double dock_width = any ? even(docked.width) : 0;
    // The docked panel is shown whole; the parts on the left get the rest.
    const double left = any ? std::max(0.0, std::floor((width - dock_width - gap) / 2) * 2) : width;
    const double wanted = std::clamp(room * list_share, min_list, max_list);
    // Shows whole rows only.
    const double rows = std::floor((wanted - header_height) / row_height);
    const double list = std::min(room, header_height + rows * row_height);
    layout.view = {0, 0, left, std::max(0.0, room - list - gap)};
    layout.list = {0, room - list, left, list};
    if (!any) return layout;
    const double x = left + gap;
    layout.dock_header = {x, 0, width - x, header_height};
    layout.dock = {x, header_height, width - x, std::max(0.0, room - header_height)};
    layout.panel = {x, header_height, docked.width, docked.height};
    return layout;
}

} // namespace minihost
