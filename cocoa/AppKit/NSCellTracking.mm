#include "NSApplicationPrivate.h"

#include <AppKit/AppKit.h>

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
        event = [NSApp nextDragOrMouseUp];
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
