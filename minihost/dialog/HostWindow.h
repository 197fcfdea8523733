// The class of the host's own windows; all others are the plug-in's.

#pragma once

#include <Cocoa/Cocoa.h>

// Not released when closed.
@interface HostWindow : NSWindow
- (id)initWithContentRect:(NSRect)rect styleMask:(NSUInteger)mask;
@end

namespace minihost {

// The window that the plug-in created last, shown or not; nil if there is none.
NSWindow* floating_dialog();

} // namespace minihost
