#include <Foundation/NSGeometry.h>

#include <algorithm>
#include <cmath>

BOOL NSEqualPoints(NSPoint a, NSPoint b) {
    return CGPointEqualToPoint(a, b);
}
BOOL NSEqualSizes(NSSize a, NSSize b) {
    return CGSizeEqualToSize(a, b);
}
BOOL NSEqualRects(NSRect a, NSRect b) {
    return CGPointEqualToPoint(a.origin, b.origin) && CGSizeEqualToSize(a.size, b.size);
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

NSRect NSIntegralRect(NSRect r) {
    return NSIsEmptyRect(r) ? NSZeroRect : CGRectIntegral(r);
}

NSRect NSUnionRect(NSRect a, NSRect b) {
    if (NSIsEmptyRect(a)) return NSIsEmptyRect(b) ? NSZeroRect : b;
    return NSIsEmptyRect(b) ? a : CGRectUnion(a, b);
}

NSRect NSIntersectionRect(NSRect a, NSRect b) {
    if (NSIsEmptyRect(a) || NSIsEmptyRect(b)) return NSZeroRect;
    const NSRect common = CGRectIntersection(a, b);
    return CGRectIsNull(common) ? NSZeroRect : common;
}

void NSDivideRect(NSRect rect, NSRect* slice, NSRect* remainder, CGFloat amount, NSRectEdge edge) {
    const bool horizontal = edge == NSMinXEdge || edge == NSMaxXEdge;
    const CGFloat whole = horizontal ? rect.size.width : rect.size.height;
    const CGFloat cut = std::clamp(amount, 0.0, std::max(whole, 0.0));
    NSRect first = rect, second = rect; // first is at the smaller coordinate
    const CGFloat at = edge == NSMinXEdge || edge == NSMinYEdge ? cut : whole - cut;
    if (horizontal) {
        first.size.width = at;
        second.origin.x += at;
        second.size.width = whole - at;
    } else {
        first.size.height = at;
        second.origin.y += at;
        second.size.height = whole - at;
    }
    const bool from_start = edge == NSMinXEdge || edge == NSMinYEdge;
    *slice = from_start ? first : second;
    *remainder = from_start ? second : first;
}

BOOL NSMouseInRect(NSPoint p, NSRect r, BOOL flipped) {
    if (!(p.x >= NSMinX(r) && p.x < NSMaxX(r))) return NO;
    return flipped ? p.y >= NSMinY(r) && p.y < NSMaxY(r) : p.y > NSMinY(r) && p.y <= NSMaxY(r);
}

BOOL NSPointInRect(NSPoint point, NSRect rect) {
    return NSMouseInRect(point, rect, YES);
}

BOOL NSContainsRect(NSRect outer, NSRect inner) {
    return !NSIsEmptyRect(inner) && NSMinX(outer) <= NSMinX(inner) &&
           NSMinY(outer) <= NSMinY(inner) && NSMaxX(outer) >= NSMaxX(inner) &&
           NSMaxY(outer) >= NSMaxY(inner);
}

BOOL NSIntersectsRect(NSRect a, NSRect b) {
    return !NSIsEmptyRect(NSIntersectionRect(a, b));
}
