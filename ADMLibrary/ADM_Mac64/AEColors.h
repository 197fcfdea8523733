// The host's look: its colours, queried at each call, and the small font.

#pragma once

#include "sdk/Host.h"

#include <Cocoa/Cocoa.h>

// Selectors of the host's colours that have a name here; the numbers are the host's.
constexpr short kAEText = 2;
constexpr short kAEButtonOutline = 7;
constexpr short kAEButtonFace = 8;
constexpr short kAEButtonText = 9;
constexpr short kAEDisabledText = 23;
constexpr short kAEDisabledButtonOutline = 28;
constexpr short kAEDisabledButtonFace = 29;
constexpr short kAEDisabledButtonText = 30;
constexpr short kAEPanelBackground = 1000;

namespace adm {

// The host's colour of a selector; black if the host has none.
PF_App_Color host_color(short selector);

} // namespace adm

// The same as an opaque colour. Autoreleased, like the results of the next two.
NSColor* GetAEColor(short selector);
// The host's text colour.
NSColor* GetAETextColor();
// The system font at the size of mini controls, for labels, buttons and pop-ups.
NSFont* GetMiniSystemFont();
