// A colour's components, for what draws with cairo.
#pragma once

#include "CoreGraphics/CairoContext.h"

#include <AppKit/NSColor.h>

@interface NSColor (Private)
- (graphics::Color)components;
@end
