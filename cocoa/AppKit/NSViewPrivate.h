// What the rest of AppKit needs of views.
#pragma once

#include <AppKit/NSView.h>
#include <CoreGraphics/CGContext.h>

@interface NSResponder (Private)
// Whether a click gives it the focus, not only Tab.
- (BOOL)takesFocusOnClick;
@end

@interface NSView (Private)
- (void)moveToWindow:(NSWindow*)window; // with its subviews
- (void)setSuperviewPointer:(NSView*)view;
- (void)resizeWithOldSuperviewSize:(NSSize)size;
// From the view's coordinates to base coordinates; without a window, to those around the topmost
// superview.
- (NSPoint)basePoint:(NSPoint)point;
- (NSPoint)pointFromBase:(NSPoint)point;
- (NSRect)baseRect:(NSRect)rect;
- (NSRect)rectFromBase:(NSRect)rect;
// Draws the view and its subviews where `dirty` (in its superview's coordinates) touches them.
- (void)drawTreeInContext:(CGContextRef)context flipped:(BOOL)superviewFlipped dirty:(NSRect)dirty;
// The rectangle that gets the focus ring while the view is first responder; empty for none.
- (NSRect)focusRingRect;
- (NSView*)nextValidKeyView;
- (NSView*)previousValidKeyView;
@end

namespace cocoa {

// Draws a view and its subviews into RGBA pixels of the given size, `scale` pixels a point; `dirty`
// is in the coordinates around the root.
void draw_tree(NSView* root, unsigned char* pixels, int width, int height, double scale,
               NSRect dirty);

} // namespace cocoa
