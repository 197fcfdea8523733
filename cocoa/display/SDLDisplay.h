// A display in one window of the desktop, which is the whole screen: its size is the screen's, a
// resize of the one resizes the other.
#pragma once

#include "Display.h"

#include <memory>

namespace cocoa {

// nullptr, with the reason on standard error, when there is no desktop to open a window on. The
// sizes are in points, `least` being the smallest that the user can give it; a scale of 0 stands
// for the desktop's own, a width of 0 for 1280 x 800 or what the desktop has room for.
std::unique_ptr<Display> make_sdl_display(const std::string& title, ScreenSize size, double scale,
                                          ScreenSize least);

} // namespace cocoa
