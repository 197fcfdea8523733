// A dialog's content view: origin at the top left, filled with the host's panel background.

#pragma once

#include <Cocoa/Cocoa.h>

@interface FlippedView : NSView
- (id)initWithFrame:(NSRect)frame; // follows the size of its superview
- (BOOL)isFlipped;
- (void)drawRect:(NSRect)dirty;
@end
