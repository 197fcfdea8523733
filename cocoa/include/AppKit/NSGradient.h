// Colours from one end of a shape to the other.
#pragma once

#include <CoreGraphics/CGGradient.h>
#include <Foundation/Foundation.h>

@class NSBezierPath, NSColor;

typedef NSUInteger NSGradientDrawingOptions;
enum {
    NSGradientDrawsBeforeStartingLocation = 1 << 0,
    NSGradientDrawsAfterEndingLocation = 1 << 1
};

@interface NSGradient : NSObject {
    CGGradientRef _gradient;
    NSInteger _count;
}
- (id)initWithStartingColor:(NSColor*)start endingColor:(NSColor*)end;
// Two or more colours, evenly spaced; nil for fewer.
- (id)initWithColors:(NSArray*)colors;
- (NSInteger)numberOfColorStops;

// Angles in degrees, from the x axis towards the y axis of the current coordinates: 0 starts at the
// smaller x, 90 at the smaller y, which is at the top in flipped coordinates and at the bottom
// otherwise. The first and the last colour touch the shape's corners or edges. An empty rectangle
// draws nothing.
- (void)drawInRect:(NSRect)rect angle:(CGFloat)angle;
// Clipped to the path; the angle is laid through its bounds.
- (void)drawInBezierPath:(NSBezierPath*)path angle:(CGFloat)angle;
// Within the context's clip.
- (void)drawFromPoint:(NSPoint)start toPoint:(NSPoint)end options:(NSGradientDrawingOptions)options;
@end
