#include <Foundation/NSGeometry.h>

#include <algorithm>

// Between a lower left and an upper right corner.
static NSRect spanning(CGFloat left, CGFloat bottom, CGFloat right, CGFloat top) {
    return NSMakeRect(left, bottom, right - left, top - bottom);
}

BOOL NSEqualPoints(NSPoint a, NSPoint b) {
    return a.x == b.x && a.y == b.y;
}
BOOL NSEqualSizes(NSSize a, NSSize b) {
    return a.width == b.width && a.height == b.height;
}
BOOL NSIsEmptyRect(NSRect r) {
    return !(r.size.width > 0 && r.size.height > 0);
}

NSRect NSInsetRect(NSRect r, CGFloat dx, CGFloat dy) {
    return NSMakeRect(r.origin.x + dx, r.origin.y + dy, r.size.width - 2 * dx,
                      r.size.height - 2 * dy);
}

NSRect NSOffsetRect(NSRect r, CGFloat dx, CGFloat dy) {
    return NSMakeRect(r.origin.x + dx, r.origin.y + dy, r.size.width, r.size.height);
}

NSRect NSUnionRect(NSRect a, NSRect b) {
    if (NSIsEmptyRect(a)) return NSIsEmptyRect(b) ? NSZeroRect : b;
    if (NSIsEmptyRect(b)) return a;
    return spanning(std::min(NSMinX(a), NSMinX(b)), std::min(NSMinY(a), NSMinY(b)),
                    std::max(NSMaxX(a), NSMaxX(b)), std::max(NSMaxY(a), NSMaxY(b)));
}

NSRect NSIntersectionRect(NSRect a, NSRect b) {
    if (NSIsEmptyRect(a) || NSIsEmptyRect(b)) return NSZeroRect;
    const NSRect common = spanning(std::max(NSMinX(a), NSMinX(b)), std::max(NSMinY(a), NSMinY(b)),
                                   std::min(NSMaxX(a), NSMaxX(b)), std::min(NSMaxY(a), NSMaxY(b)));
    return NSIsEmptyRect(common) ? NSZeroRect : common;
}

BOOL NSMouseInRect(NSPoint p, NSRect r, BOOL flipped) {
    if (!(p.x >= NSMinX(r) && p.x < NSMaxX(r))) return NO;
    return flipped ? p.y >= NSMinY(r) && p.y < NSMaxY(r) : p.y > NSMinY(r) && p.y <= NSMaxY(r);
}

BOOL NSPointInRect(NSPoint point, NSRect rect) {
    return NSMouseInRect(point, rect, YES);
}
