// The host's panel in a window of its own, as it is without a main window to dock it in.

#pragma once

#include "minihost/suites/Panels.h"

namespace minihost {

// Points; until the plug-in says which size it prefers.
inline constexpr double default_panel_width = 320, default_panel_height = 480;

// An empty, hidden panel. Its destructor takes the plug-in's views out before the window closes.
std::unique_ptr<PanelView> make_panel_window();

// Takes all views out of a container that is about to be released: the plug-in may still hold them.
void remove_subviews(NSView* container);

} // namespace minihost
