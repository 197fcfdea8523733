// Where views are: frames, coordinates, what follows a resize, which view a point hits.
#include "Internal.h"

#include <algorithm>
#include <cmath>

@implementation NSView (NSViewGeometry)
- (NSRect)frame {
    return _frame;
}
- (NSRect)bounds {
    return NSMakeRect(_boundsOrigin.x, _boundsOrigin.y, _frame.size.width, _frame.size.height);
}
- (BOOL)isFlipped {
    return NO;
}

- (void)setFrame:(NSRect)frame {
    [self setFrameOrigin:frame.origin];
    [self setFrameSize:frame.size];
}

- (void)setFrameOrigin:(NSPoint)origin {
    if (NSEqualPoints(origin, _frame.origin)) return;
    [_superview setNeedsDisplayInRect:_frame];
    _frame.origin = origin;
    [_superview setNeedsDisplayInRect:_frame];
}

- (void)setFrameSize:(NSSize)size {
    const NSSize old = _frame.size;
    if (NSEqualSizes(size, old)) return;
    [_superview setNeedsDisplayInRect:_frame];
    _frame.size = size;
    if (_autoresizesSubviews) [self resizeSubviewsWithOldSize:old];
    [self setNeedsDisplay:YES];
}

- (void)setBoundsOrigin:(NSPoint)origin {
    if (NSEqualPoints(origin, _boundsOrigin)) return;
    _boundsOrigin = origin;
    [self setNeedsDisplay:YES];
}

- (NSUInteger)autoresizingMask {
    return _autoresizingMask;
}
- (void)setAutoresizingMask:(NSUInteger)mask {
    _autoresizingMask = mask;
}
- (BOOL)autoresizesSubviews {
    return _autoresizesSubviews;
}
- (void)setAutoresizesSubviews:(BOOL)flag {
    _autoresizesSubviews = !!flag;
}

- (void)resizeSubviewsWithOldSize:(NSSize)size {
    NSArray* subviews = [[NSArray alloc] initWithArray:_subviews];
    for (NSUInteger i = 0; i < [subviews count]; ++i)
        [[subviews objectAtIndex:i] resizeWithOldSuperviewSize:size];
    [subviews release];
}

// One axis: the margin before, the length and the margin after share the change among those that
// are flexible, by their sizes, or evenly when those add up to nothing.
static void resize_axis(double old_room, double room, bool before, bool length, bool after,
                        double& origin, double& extent) {
    const double change = room - old_room;
    const int count = before + length + after;
    if (count == 0 || change == 0) return;
    const double sizes[3] = {before ? std::max(origin, 0.0) : 0, length ? std::max(extent, 0.0) : 0,
                             after ? std::max(old_room - origin - extent, 0.0) : 0};
    const double sum = sizes[0] + sizes[1] + sizes[2];
    auto share = [&](bool flexible, double size) {
        if (!flexible) return 0.0;
        return sum > 0 ? change * size / sum : change / count;
    };
    origin += share(before, sizes[0]);
    extent = std::max(0.0, extent + share(length, sizes[1]));
}

- (void)resizeWithOldSuperviewSize:(NSSize)size {
    if (!_superview || _autoresizingMask == NSViewNotSizable) return;
    const NSSize room = [_superview bounds].size;
    NSRect frame = _frame;
    const NSUInteger mask = _autoresizingMask;
    resize_axis(size.width, room.width, mask & NSViewMinXMargin, mask & NSViewWidthSizable,
                mask & NSViewMaxXMargin, frame.origin.x, frame.size.width);
    resize_axis(size.height, room.height, mask & NSViewMinYMargin, mask & NSViewHeightSizable,
                mask & NSViewMaxYMargin, frame.origin.y, frame.size.height);
    [self setFrame:frame];
}

- (NSPoint)framePointOfPoint:(NSPoint)p {
    const double x = p.x - _boundsOrigin.x, y = p.y - _boundsOrigin.y;
    const BOOL turned = _superview && [self isFlipped] != [_superview isFlipped];
    // A view on its own is seen by the world outside, where y goes up.
    const BOOL flip = _superview ? turned : [self isFlipped];
    return NSMakePoint(_frame.origin.x + x, _frame.origin.y + (flip ? _frame.size.height - y : y));
}

- (NSPoint)pointOfFramePoint:(NSPoint)p {
    const BOOL turned = _superview && [self isFlipped] != [_superview isFlipped];
    const BOOL flip = _superview ? turned : [self isFlipped];
    const double x = p.x - _frame.origin.x, y = p.y - _frame.origin.y;
    return NSMakePoint(_boundsOrigin.x + x, _boundsOrigin.y + (flip ? _frame.size.height - y : y));
}

- (NSPoint)basePoint:(NSPoint)point {
    for (NSView* view = self; view; view = view->_superview) point = [view framePointOfPoint:point];
    return point;
}

- (NSPoint)pointFromBase:(NSPoint)point {
    if (_superview) point = [_superview pointFromBase:point];
    return [self pointOfFramePoint:point];
}

static NSRect rect_of(NSPoint a, NSPoint b) {
    return NSMakeRect(std::min(a.x, b.x), std::min(a.y, b.y), std::abs(b.x - a.x),
                      std::abs(b.y - a.y));
}

- (NSRect)baseRect:(NSRect)r {
    return rect_of([self basePoint:r.origin], [self basePoint:NSMakePoint(NSMaxX(r), NSMaxY(r))]);
}
- (NSRect)rectFromBase:(NSRect)r {
    return rect_of([self pointFromBase:r.origin],
                   [self pointFromBase:NSMakePoint(NSMaxX(r), NSMaxY(r))]);
}
- (NSRect)frameRectOfRect:(NSRect)r {
    return rect_of([self framePointOfPoint:r.origin],
                   [self framePointOfPoint:NSMakePoint(NSMaxX(r), NSMaxY(r))]);
}

- (NSPoint)convertPoint:(NSPoint)point fromView:(NSView*)view {
    if (view == self) return point;
    return [self pointFromBase:view ? [view basePoint:point] : point];
}
- (NSPoint)convertPoint:(NSPoint)point toView:(NSView*)view {
    if (view == self) return point;
    point = [self basePoint:point];
    return view ? [view pointFromBase:point] : point;
}
- (NSRect)convertRect:(NSRect)rect fromView:(NSView*)view {
    if (view == self) return rect;
    return [self rectFromBase:view ? [view baseRect:rect] : rect];
}
- (NSRect)convertRect:(NSRect)rect toView:(NSView*)view {
    if (view == self) return rect;
    rect = [self baseRect:rect];
    return view ? [view rectFromBase:rect] : rect;
}

- (NSRect)visibleRect {
    if ([self isHiddenOrHasHiddenAncestor]) return NSZeroRect;
    NSRect visible = [self bounds];
    if (_superview) {
        const NSRect outer = [self convertRect:[_superview visibleRect] fromView:_superview];
        visible = NSIntersectionRect(visible, outer);
    }
    return visible;
}

- (BOOL)mouse:(NSPoint)point inRect:(NSRect)rect {
    return NSMouseInRect(point, rect, [self isFlipped]);
}

- (NSView*)hitTest:(NSPoint)point {
    if (_hidden || !NSMouseInRect(point, _frame, [_superview isFlipped])) return nil;
    const NSPoint inside = [self pointOfFramePoint:point];
    for (NSUInteger i = [_subviews count]; i-- > 0;) {
        NSView* hit = [[_subviews objectAtIndex:i] hitTest:inside];
        if (hit) return hit;
    }
    return self;
}

- (BOOL)acceptsFirstMouse:(NSEvent*)__attribute__((unused))event {
    return NO;
}
@end
