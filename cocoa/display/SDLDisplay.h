// A display in one window of the desktop: the window is the whole screen, and resizing it resizes
// the screen.
#pragma once

#include "Display.h"

#include <memory>

namespace cocoa {

// nullptr, with the reason on standard error, when there is no desktop. Sizes are in points,
// `least` is the smallest that the user can make it; a scale of 0 stands for the desktop's own, a
// width of 0 for 1280 x 800 or what the desktop has room for.
std::unique_ptr<Display> make_sdl_display(const std::string& title, ScreenSize size, double scale,
                                          ScreenSize least);

} // namespace cocoa
