// A Core Graphics context with what AppKit adds: whether its coordinates are flipped, and being the
// current one, into which colours, paths and text are drawn.
#pragma once

#include <CoreGraphics/CGContext.h>
#include <Foundation/Foundation.h>

typedef NSUInteger NSCompositingOperation;
enum { NSCompositeCopy = 1, NSCompositeSourceOver = 2 };

@interface NSGraphicsContext : NSObject {
    CGContextRef _port;
    BOOL _flipped;
}
// The context is retained. `flipped` only says which way up text and images are; the transform is
// the caller's business.
+ (NSGraphicsContext*)graphicsContextWithGraphicsPort:(void*)port flipped:(BOOL)flipped;
// One for each thread; nil outside drawing. It is retained while it is the current one.
+ (NSGraphicsContext*)currentContext;
+ (void)setCurrentContext:(NSGraphicsContext*)context;

// Save the current context and its state; restore both. A restore without a save does nothing.
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;

- (BOOL)isFlipped;
// The Core Graphics context; not retained for the caller.
- (void*)graphicsPort;
- (CGContextRef)CGContext;

// Part of the graphics state; YES at first.
- (void)setShouldAntialias:(BOOL)antialias;
@end

// Rectangles in the current context, in its fill colour. NSRectFill and NSFrameRect replace what is
// there, alpha too.
FOUNDATION_EXPORT void NSRectFill(NSRect rect);
FOUNDATION_EXPORT void NSRectFillUsingOperation(NSRect rect, NSCompositingOperation operation);
// An outline inside the rectangle, 1 wide.
FOUNDATION_EXPORT void NSFrameRect(NSRect rect);
FOUNDATION_EXPORT void NSRectClip(NSRect rect);
