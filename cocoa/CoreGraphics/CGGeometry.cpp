#include <CoreGraphics/CGGeometry.h>

#include <algorithm>
#include <cmath>
#include <limits>

const CGPoint CGPointZero = {0, 0};
const CGSize CGSizeZero = {0, 0};
const CGRect CGRectZero = {{0, 0}, {0, 0}};
const CGRect CGRectNull = {
    {std::numeric_limits<CGFloat>::infinity(), std::numeric_limits<CGFloat>::infinity()}, {0, 0}};

bool CGPointEqualToPoint(CGPoint a, CGPoint b) {
    return a.x == b.x && a.y == b.y;
}
bool CGSizeEqualToSize(CGSize a, CGSize b) {
    return a.width == b.width && a.height == b.height;
}

bool CGRectEqualToRect(CGRect a, CGRect b) {
    a = CGRectStandardize(a);
    b = CGRectStandardize(b);
    return CGPointEqualToPoint(a.origin, b.origin) && CGSizeEqualToSize(a.size, b.size);
}

CGRect CGRectStandardize(CGRect rect) {
    if (rect.size.width < 0) {
        rect.origin.x += rect.size.width;
        rect.size.width = -rect.size.width;
    }
    if (rect.size.height < 0) {
        rect.origin.y += rect.size.height;
        rect.size.height = -rect.size.height;
    }
    return rect;
}

CGFloat CGRectGetMinX(CGRect r) {
    return CGRectStandardize(r).origin.x;
}
CGFloat CGRectGetMidX(CGRect r) {
    return r.origin.x + r.size.width * 0.5;
}
CGFloat CGRectGetMaxX(CGRect r) {
    return r.origin.x + std::max(r.size.width, 0.0);
}
CGFloat CGRectGetMinY(CGRect r) {
    return CGRectStandardize(r).origin.y;
}
CGFloat CGRectGetMidY(CGRect r) {
    return r.origin.y + r.size.height * 0.5;
}
CGFloat CGRectGetMaxY(CGRect r) {
    return r.origin.y + std::max(r.size.height, 0.0);
}
CGFloat CGRectGetWidth(CGRect r) {
    return std::abs(r.size.width);
}
CGFloat CGRectGetHeight(CGRect r) {
    return std::abs(r.size.height);
}

bool CGRectIsNull(CGRect r) {
    return r.origin.x == CGRectNull.origin.x || r.origin.y == CGRectNull.origin.y;
}
bool CGRectIsEmpty(CGRect r) {
    return CGRectIsNull(r) || r.size.width == 0 || r.size.height == 0;
}

CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy) {
    if (CGRectIsNull(rect)) return rect;
    rect = CGRectStandardize(rect);
    CGRect inset = CGRectMake(rect.origin.x + dx, rect.origin.y + dy, rect.size.width - 2 * dx,
                              rect.size.height - 2 * dy);
    return inset.size.width < 0 || inset.size.height < 0 ? CGRectNull : inset;
}

CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy) {
    rect = CGRectStandardize(rect);
    rect.origin.x += dx;
    rect.origin.y += dy;
    return rect;
}

CGRect CGRectIntegral(CGRect rect) {
    if (CGRectIsNull(rect)) return rect;
    const CGFloat left = std::floor(CGRectGetMinX(rect)), bottom = std::floor(CGRectGetMinY(rect));
    return CGRectMake(left, bottom, std::ceil(CGRectGetMaxX(rect)) - left,
                      std::ceil(CGRectGetMaxY(rect)) - bottom);
}

CGRect CGRectUnion(CGRect a, CGRect b) {
    if (CGRectIsNull(a)) return b;
    if (CGRectIsNull(b)) return a;
    const CGFloat left = std::min(CGRectGetMinX(a), CGRectGetMinX(b));
    const CGFloat bottom = std::min(CGRectGetMinY(a), CGRectGetMinY(b));
    return CGRectMake(left, bottom, std::max(CGRectGetMaxX(a), CGRectGetMaxX(b)) - left,
                      std::max(CGRectGetMaxY(a), CGRectGetMaxY(b)) - bottom);
}

CGRect CGRectIntersection(CGRect a, CGRect b) {
    const CGFloat left = std::max(CGRectGetMinX(a), CGRectGetMinX(b));
    const CGFloat bottom = std::max(CGRectGetMinY(a), CGRectGetMinY(b));
    const CGFloat right = std::min(CGRectGetMaxX(a), CGRectGetMaxX(b));
    const CGFloat top = std::min(CGRectGetMaxY(a), CGRectGetMaxY(b));
    if (!(left < right) || !(bottom < top)) return CGRectNull;
    return CGRectMake(left, bottom, right - left, top - bottom);
}

bool CGRectIntersectsRect(CGRect a, CGRect b) {
    return !CGRectIsNull(CGRectIntersection(a, b));
}

bool CGRectContainsPoint(CGRect rect, CGPoint point) {
    return point.x >= CGRectGetMinX(rect) && point.x < CGRectGetMaxX(rect) &&
           point.y >= CGRectGetMinY(rect) && point.y < CGRectGetMaxY(rect);
}

bool CGRectContainsRect(CGRect outer, CGRect inner) {
    return CGRectEqualToRect(CGRectUnion(outer, inner), outer);
}
