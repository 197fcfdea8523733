// A Core Graphics context with what AppKit adds: whether its coordinates are flipped, and being the
// current one, into which colours, paths and text go.
#pragma once

#include <CoreGraphics/CGContext.h>
#include <Foundation/Foundation.h>

typedef NSUInteger NSCompositingOperation;
enum { NSCompositeClear = 0, NSCompositeCopy = 1, NSCompositeSourceOver = 2 };

struct NSSavedStates;

@interface NSGraphicsContext : NSObject {
    CGContextRef _port;
    BOOL _flipped;
    struct NSSavedStates* _states;
}
// The context is retained. `flipped` only tells text and images which way up they are; whoever
// makes the context sees to the transform.
+ (NSGraphicsContext*)graphicsContextWithGraphicsPort:(void*)port flipped:(BOOL)flipped;
// One for each thread; nil outside drawing. It is retained while it is the current one.
+ (NSGraphicsContext*)currentContext;
+ (void)setCurrentContext:(NSGraphicsContext*)context;

// Saves the current context's state and remembers it as the current one; brings both back. A
// restore without a save does nothing.
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
- (void)saveGraphicsState;
- (void)restoreGraphicsState;

- (BOOL)isFlipped;
// The Core Graphics context; not retained for the caller.
- (void*)graphicsPort;
- (CGContextRef)CGContext;

// Part of the graphics state; YES at the start.
- (BOOL)shouldAntialias;
- (void)setShouldAntialias:(BOOL)antialias;
- (NSCompositingOperation)compositingOperation;
- (void)setCompositingOperation:(NSCompositingOperation)operation;
@end

// Rectangles in the current context, in its fill colour. These replace what is there (alpha too)
// rather than mixing with it; NSRectFillUsingOperation does as it is told.
FOUNDATION_EXPORT void NSRectFill(NSRect rect);
FOUNDATION_EXPORT void NSRectFillUsingOperation(NSRect rect, NSCompositingOperation operation);
// An outline inside the rectangle, 1 or `width` wide.
FOUNDATION_EXPORT void NSFrameRect(NSRect rect);
FOUNDATION_EXPORT void NSFrameRectWithWidth(NSRect rect, CGFloat width);
FOUNDATION_EXPORT void NSRectClip(NSRect rect);
// Fills with white; the context's colours stay.
FOUNDATION_EXPORT void NSEraseRect(NSRect rect);
