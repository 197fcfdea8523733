// Two colours, and those between them, from one end of a shape to the other.
#pragma once

#include <Foundation/Foundation.h>

@class NSBezierPath, NSColor;

@interface NSGradient : NSObject {
    NSColor* _start;
    NSColor* _end;
}
- (id)initWithStartingColor:(NSColor*)start endingColor:(NSColor*)end;

// Angles in degrees, from the x axis towards the y axis of the current coordinates: 0 starts at the
// smaller x, 90 at the smaller y, which is the top in flipped coordinates and the bottom otherwise.
// The two colours are those of the shape's outermost corners or edges. An empty rectangle draws
// nothing.
- (void)drawInRect:(NSRect)rect angle:(CGFloat)angle;
// Clipped to the path, over its bounds.
- (void)drawInBezierPath:(NSBezierPath*)path angle:(CGFloat)angle;
@end
