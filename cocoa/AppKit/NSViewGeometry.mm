// Where views are: frames, coordinates, resizing, which view a point hits.
#include "NSViewPrivate.h"

#include <algorithm>
#include <cmath>

@implementation NSView (NSViewGeometry)
- (NSRect)frame {
    return _frame;
}
- (NSRect)bounds {
    return NSMakeRect(0, 0, _frame.size.width, _frame.size.height);
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
    NSArray* subviews = [[NSArray alloc] initWithArray:_subviews];
    for (NSUInteger i = 0; i < [subviews count]; ++i)
        [[subviews objectAtIndex:i] resizeWithOldSuperviewSize:old];
    [subviews release];
    [self setNeedsDisplay:YES];
}

- (void)setAutoresizingMask:(NSUInteger)mask {
    _autoresizingMask = mask;
}

- (void)resizeWithOldSuperviewSize:(NSSize)old {
    if (!_superview || _autoresizingMask == NSViewNotSizable) return;
    const NSSize room = [_superview bounds].size;
    NSSize size = _frame.size;
    if (_autoresizingMask & NSViewWidthSizable)
        size.width = std::max(0.0, size.width + (room.width - old.width));
    if (_autoresizingMask & NSViewHeightSizable)
        size.height = std::max(0.0, size.height + (room.height - old.height));
    [self setFrameSize:size];
}

// Whether its y axis is opposite to its superview's. Around a view without superview y goes up.
- (BOOL)isTurned {
    return [self isFlipped] != [_superview isFlipped];
}

- (NSPoint)framePointOfPoint:(NSPoint)p {
    return NSMakePoint(_frame.origin.x + p.x,
                       _frame.origin.y + ([self isTurned] ? _frame.size.height - p.y : p.y));
}

- (NSPoint)pointOfFramePoint:(NSPoint)p {
    const double y = p.y - _frame.origin.y;
    return NSMakePoint(p.x - _frame.origin.x, [self isTurned] ? _frame.size.height - y : y);
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

- (NSView*)hitTest:(NSPoint)point {
    if (_hidden || !NSMouseInRect(point, _frame, [_superview isFlipped])) return nil;
    const NSPoint inside = [self pointOfFramePoint:point];
    for (NSUInteger i = [_subviews count]; i-- > 0;) {
        NSView* hit = [[_subviews objectAtIndex:i] hitTest:inside];
        if (hit) return hit;
    }
    return self;
}

@end
