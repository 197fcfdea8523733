// How a cell is drawn and how it takes the mouse.
#include "Internal.h"
#include "Theme.h"

#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

@implementation NSCell (NSCellDrawing)
- (NSSize)cellSize {
    const NSSize size = theme::measure([self title], [self font]);
    const double border = [self isBezeled] || [self isBordered] ? 2 : 0;
    return NSMakeSize(std::ceil(size.width) + 4 + 2 * border, std::ceil(size.height) + 2 * border);
}

- (NSRect)drawingRectForBounds:(NSRect)bounds {
    if ([self isBezeled]) return NSInsetRect(bounds, 2, 2);
    return [self isBordered] ? NSInsetRect(bounds, 1, 1) : bounds;
}

- (void)drawWithFrame:(NSRect)frame inView:(NSView*)view {
    [self setControlView:view];
    if ([self isBezeled] || [self isBordered])
        theme::draw_round(frame, [self isBezeled] ? 2 : 0, nil, theme::field_outline());
    [self drawInteriorWithFrame:[self drawingRectForBounds:frame] inView:view];
}

- (void)drawInteriorWithFrame:(NSRect)frame inView:(NSView*)__attribute__((unused))view {
    theme::draw_line([self title], NSInsetRect(frame, 2, 0), [self font],
                     _enabled ? theme::text() : theme::dim_text(),
                     static_cast<unsigned>([self alignment]));
}

- (void)highlight:(BOOL)flag withFrame:(NSRect)frame inView:(NSView*)view {
    if (_highlighted == !!flag) return;
    _highlighted = !!flag;
    [self drawWithFrame:frame inView:view];
}

@end

@implementation NSCell (NSCellTracking)
+ (BOOL)prefersTrackingUntilMouseUp {
    return NO;
}

- (BOOL)startTrackingAt:(NSPoint)__attribute__((unused))start
                 inView:(NSView*)__attribute__((unused))view {
    return YES;
}
- (BOOL)continueTracking:(NSPoint)__attribute__((unused))last
                      at:(NSPoint)__attribute__((unused))current
                  inView:(NSView*)__attribute__((unused))view {
    return YES;
}
- (void)stopTracking:(NSPoint)__attribute__((unused))last
                  at:(NSPoint)__attribute__((unused))stop
              inView:(NSView*)__attribute__((unused))view
           mouseIsUp:(BOOL)__attribute__((unused))up {
}

static void send_action(NSCell* cell, NSView* view) {
    if ([view isKindOfClass:[NSControl class]])
        [(NSControl*)view sendAction:[cell action] to:[cell target]];
}

- (BOOL)trackMouse:(NSEvent*)event
            inRect:(NSRect)rect
            ofView:(NSView*)view
      untilMouseUp:(BOOL)untilUp {
    NSPoint last = [view convertPoint:[event locationInWindow] fromView:nil];
    if (![self startTrackingAt:last inView:view]) return NO;
    BOOL tracking = YES;
    for (;;) {
        event = [NSApp nextEventMatchingMask:NSLeftMouseDraggedMask | NSLeftMouseUpMask
                                   untilDate:[NSDate distantFuture]
                                      inMode:NSEventTrackingRunLoopMode
                                     dequeue:YES];
        if (!event) {
            [self stopTracking:last at:last inView:view mouseIsUp:YES];
            return NO;
        }
        const NSPoint point = [view convertPoint:[event locationInWindow] fromView:nil];
        const BOOL inside = NSMouseInRect(point, rect, [view isFlipped]);
        if ([event type] == NSLeftMouseUp) {
            [self stopTracking:last at:point inView:view mouseIsUp:YES];
            if (!inside && !untilUp) return NO;
            [self setNextState];
            send_action(self, view);
            return YES;
        }
        if (!untilUp && !inside) {
            [self stopTracking:last at:point inView:view mouseIsUp:NO];
            return NO;
        }
        if (tracking) tracking = [self continueTracking:last at:point inView:view];
        if (tracking && [self isContinuous]) send_action(self, view);
        last = point;
    }
}
@end
