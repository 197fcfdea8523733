// Points, sizes and rectangles under their Cocoa names. A rectangle is empty when its width or
// height is not above 0.
#pragma once

#include <CoreGraphics/CGGeometry.h>
#include <Foundation/NSObjCRuntime.h>

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

static const NSPoint NSZeroPoint __attribute__((unused)) = {0, 0};
static const NSRect NSZeroRect __attribute__((unused)) = {{0, 0}, {0, 0}};

NS_INLINE NSPoint NSMakePoint(CGFloat x, CGFloat y) {
    NSPoint point = {x, y};
    return point;
}
NS_INLINE NSSize NSMakeSize(CGFloat width, CGFloat height) {
    NSSize size = {width, height};
    return size;
}
NS_INLINE NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return CGRectMake(x, y, width, height);
}
NS_INLINE CGFloat NSMinX(NSRect r) {
    return r.origin.x;
}
NS_INLINE CGFloat NSMinY(NSRect r) {
    return r.origin.y;
}
NS_INLINE CGFloat NSMaxX(NSRect r) {
    return r.origin.x + r.size.width;
}
NS_INLINE CGFloat NSMaxY(NSRect r) {
    return r.origin.y + r.size.height;
}
NS_INLINE CGFloat NSMidX(NSRect r) {
    return r.origin.x + r.size.width * 0.5;
}
NS_INLINE CGFloat NSMidY(NSRect r) {
    return r.origin.y + r.size.height * 0.5;
}
NS_INLINE CGFloat NSWidth(NSRect r) {
    return r.size.width;
}
NS_INLINE CGFloat NSHeight(NSRect r) {
    return r.size.height;
}
NS_INLINE CGRect NSRectToCGRect(NSRect r) {
    return r;
}

FOUNDATION_EXPORT BOOL NSEqualPoints(NSPoint a, NSPoint b);
FOUNDATION_EXPORT BOOL NSEqualSizes(NSSize a, NSSize b);
FOUNDATION_EXPORT BOOL NSIsEmptyRect(NSRect rect);

// Smaller by dx on the left and right and dy below and above; the size may become negative.
FOUNDATION_EXPORT NSRect NSInsetRect(NSRect rect, CGFloat dx, CGFloat dy);
FOUNDATION_EXPORT NSRect NSOffsetRect(NSRect rect, CGFloat dx, CGFloat dy);
// An empty rectangle adds nothing; zero when both are empty.
FOUNDATION_EXPORT NSRect NSUnionRect(NSRect a, NSRect b);
// Zero when they have no area in common.
FOUNDATION_EXPORT NSRect NSIntersectionRect(NSRect a, NSRect b);

// Half-open: the edges of smaller x and smaller y belong to the rectangle, the others do not.
FOUNDATION_EXPORT BOOL NSPointInRect(NSPoint point, NSRect rect);
// The same in flipped coordinates; unflipped, the edge of greater y belongs to it instead.
FOUNDATION_EXPORT BOOL NSMouseInRect(NSPoint point, NSRect rect, BOOL flipped);
