// Points, sizes and rectangles under their Cocoa names. A rectangle is empty when its width or
// height is not above 0.
#pragma once

#include <CoreGraphics/CGGeometry.h>
#include <Foundation/NSObjCRuntime.h>

typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;
typedef NSPoint* NSPointPointer;
typedef NSPoint* NSPointArray;
typedef NSRect* NSRectPointer;
typedef NSRect* NSRectArray;

typedef NSUInteger NSRectEdge;
enum { NSMinXEdge, NSMinYEdge, NSMaxXEdge, NSMaxYEdge };

static const NSPoint NSZeroPoint __attribute__((unused)) = {0, 0};
static const NSSize NSZeroSize __attribute__((unused)) = {0, 0};
static const NSRect NSZeroRect __attribute__((unused)) = {{0, 0}, {0, 0}};

NS_INLINE NSPoint NSMakePoint(CGFloat x, CGFloat y) {
    return CGPointMake(x, y);
}
NS_INLINE NSSize NSMakeSize(CGFloat width, CGFloat height) {
    return CGSizeMake(width, height);
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
NS_INLINE NSRect NSRectFromCGRect(CGRect r) {
    return r;
}
NS_INLINE CGRect NSRectToCGRect(NSRect r) {
    return r;
}
NS_INLINE NSPoint NSPointFromCGPoint(CGPoint p) {
    return p;
}
NS_INLINE CGPoint NSPointToCGPoint(NSPoint p) {
    return p;
}

FOUNDATION_EXPORT BOOL NSEqualPoints(NSPoint a, NSPoint b);
FOUNDATION_EXPORT BOOL NSEqualSizes(NSSize a, NSSize b);
FOUNDATION_EXPORT BOOL NSEqualRects(NSRect a, NSRect b);
FOUNDATION_EXPORT BOOL NSIsEmptyRect(NSRect rect);

// Smaller by dx on the left and right and dy below and above; the size may become negative.
FOUNDATION_EXPORT NSRect NSInsetRect(NSRect rect, CGFloat dx, CGFloat dy);
FOUNDATION_EXPORT NSRect NSOffsetRect(NSRect rect, CGFloat dx, CGFloat dy);
// The smallest rectangle of whole numbers around it; zero for an empty one.
FOUNDATION_EXPORT NSRect NSIntegralRect(NSRect rect);
// An empty rectangle adds nothing; zero when both are empty.
FOUNDATION_EXPORT NSRect NSUnionRect(NSRect a, NSRect b);
// Zero when they have no area in common.
FOUNDATION_EXPORT NSRect NSIntersectionRect(NSRect a, NSRect b);
// Cuts `amount` off at the edge, at most all of it.
FOUNDATION_EXPORT void NSDivideRect(NSRect rect, NSRect* slice, NSRect* remainder, CGFloat amount,
                                    NSRectEdge edge);

// Half-open: the edges of smaller x and smaller y belong to the rectangle, the others do not.
FOUNDATION_EXPORT BOOL NSPointInRect(NSPoint point, NSRect rect);
// The same in flipped coordinates; unflipped, the edge of greater y belongs to it instead.
FOUNDATION_EXPORT BOOL NSMouseInRect(NSPoint point, NSRect rect, BOOL flipped);
// Whether `inner`, not empty, lies in `outer`.
FOUNDATION_EXPORT BOOL NSContainsRect(NSRect outer, NSRect inner);
FOUNDATION_EXPORT BOOL NSIntersectsRect(NSRect a, NSRect b);
