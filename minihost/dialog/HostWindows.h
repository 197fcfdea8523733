// Which windows of the application are the host's own; all others are the plug-in's.

#pragma once

#include <Cocoa/Cocoa.h>

namespace minihost {

// Marks a window as the host's own, from its creation to its release.
void claim_window(NSWindow* window);
void disclaim_window(NSWindow* window);

// The dialog window that the plug-in created last, shown or not; nil if there is none.
NSWindow* floating_dialog();

} // namespace minihost
