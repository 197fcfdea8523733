// Paths of lines and curves, drawn into the current graphics context in its colours.
#pragma once

#include <CoreGraphics/CGContext.h>
#include <Foundation/Foundation.h>

struct NSPathElements;

@interface NSBezierPath : NSObject {
    struct NSPathElements* _elements;
    CGFloat _lineWidth;
}
+ (NSBezierPath*)bezierPath;
+ (NSBezierPath*)bezierPathWithRect:(NSRect)rect;
+ (NSBezierPath*)bezierPathWithOvalInRect:(NSRect)rect;
// The radii are at most half of the sides.
+ (NSBezierPath*)bezierPathWithRoundedRect:(NSRect)rect
                                   xRadius:(CGFloat)xRadius
                                   yRadius:(CGFloat)yRadius;

+ (void)strokeRect:(NSRect)rect;

- (void)moveToPoint:(NSPoint)point;
// Raises NSGenericException when there is no current point.
- (void)lineToPoint:(NSPoint)point;
// Back to the start of the subpath, which is the current point then; nothing in an empty path.
- (void)closePath;

- (BOOL)isEmpty;
// Around all points, control points included; zero for an empty path.
- (NSRect)controlPointBounds;

- (void)setLineWidth:(CGFloat)width; // above 0; 1 at first

- (void)stroke;
- (void)fill;
// Intersects the current context's clip with the path.
- (void)addClip;
@end
