#include "BorderView.h"

#include "Internal.h"
#include "Theme.h"

#include <AppKit/AppKit.h>

#include <algorithm>

using namespace cocoa;

static const CGFloat grip_size = 12;

@implementation NSWindowBorderView
- (BOOL)hasStyle:(NSUInteger)bit {
    return ([[self window] styleMask] & bit) != 0;
}

- (NSRect)titleBarRect {
    NSRect bar = [self bounds];
    bar.origin.y = NSMaxY(bar) - NSWindowTitleBarHeight;
    bar.size.height = NSWindowTitleBarHeight;
    return bar;
}

- (NSRect)closeButtonRect {
    if (![self hasStyle:NSClosableWindowMask] || ![self hasStyle:NSTitledWindowMask])
        return NSZeroRect;
    const NSRect bar = [self titleBarRect];
    return NSMakeRect(NSMinX(bar) + 6, NSMinY(bar) + 5, 12, 12);
}

- (NSRect)gripRect {
    if (![self hasStyle:NSResizableWindowMask] || [[self window] isZoomed]) return NSZeroRect;
    return NSMakeRect(NSMaxX([self bounds]) - grip_size, 0, grip_size, grip_size);
}

// The grip lies above whatever the content has in its corner.
- (NSView*)hitTest:(NSPoint)point {
    if (NSMouseInRect(point, [self gripRect], NO)) return self;
    return [super hitTest:point];
}

- (void)drawTitleBar {
    const NSRect bar = [self titleBarRect];
    const BOOL key = [[self window] isKeyWindow];
    [theme::title_bar(key) setFill];
    NSRectFill(bar);
    [theme::outline() setFill];
    NSRectFill(NSMakeRect(NSMinX(bar), NSMinY(bar), NSWidth(bar), 1));
    theme::draw_line([[self window] title], NSInsetRect(bar, 24, 0), theme::font(),
                     key ? theme::text() : theme::dim_text(), 2);
    const NSRect close = [self closeButtonRect];
    if (NSIsEmptyRect(close)) return;
    [(_closePressed ? theme::accent() : theme::separator()) setFill];
    [[NSBezierPath bezierPathWithOvalInRect:close] fill];
    NSBezierPath* cross = [NSBezierPath bezierPath];
    const NSRect inner = NSInsetRect(close, 4, 4);
    [cross moveToPoint:inner.origin];
    [cross lineToPoint:NSMakePoint(NSMaxX(inner), NSMaxY(inner))];
    [cross moveToPoint:NSMakePoint(NSMinX(inner), NSMaxY(inner))];
    [cross lineToPoint:NSMakePoint(NSMaxX(inner), NSMinY(inner))];
    [theme::text() setStroke];
    [cross stroke];
}

- (void)drawRect:(NSRect)dirty {
    [theme::window() setFill];
    NSRectFill(dirty);
    if ([self hasStyle:NSTitledWindowMask] && NSMaxY(dirty) > NSMinY([self titleBarRect]))
        [self drawTitleBar];
}

// Mouse: moving and resizing follow the pointer on the screen, since the window moves under it.

- (NSPoint)screenPoint:(NSEvent*)event {
    return [[self window] convertBaseToScreen:[event locationInWindow]];
}

- (NSEvent*)nextDrag {
    NSEvent* event = [NSApp nextEventMatchingMask:NSLeftMouseDraggedMask | NSLeftMouseUpMask
                                        untilDate:[NSDate distantFuture]
                                           inMode:NSEventTrackingRunLoopMode
                                          dequeue:YES];
    return [event type] == NSLeftMouseDragged ? event : nil;
}

- (void)dragWindow:(NSEvent*)event {
    NSWindow* window = [self window];
    const NSPoint start = [self screenPoint:event];
    const NSPoint origin = [window frame].origin;
    const NSRect screen = [[NSScreen mainScreen] visibleFrame];
    while ((event = [self nextDrag])) {
        const NSPoint at = [self screenPoint:event];
        NSPoint to = NSMakePoint(origin.x + at.x - start.x, origin.y + at.y - start.y);
        // The title bar stays in reach, below the menu bar.
        to.y = std::min(to.y, NSMaxY(screen) - [window frame].size.height);
        to.y = std::max(to.y, NSMinY(screen) + 10 - [window frame].size.height);
        [window setFrameOrigin:to];
    }
}

- (void)resizeWindow:(NSEvent*)event {
    NSWindow* window = [self window];
    const NSPoint start = [self screenPoint:event];
    const NSRect old = [window frame];
    while ((event = [self nextDrag])) {
        const NSPoint at = [self screenPoint:event];
        NSRect frame = old;
        frame.size.width = std::max([window minSize].width, old.size.width + at.x - start.x);
        frame.size.height = std::max([window minSize].height, old.size.height - at.y + start.y);
        frame.origin.y = NSMaxY(old) - frame.size.height;
        [window setFrame:frame display:YES];
    }
}

- (void)trackCloseButton:(NSEvent*)event {
    BOOL inside = YES;
    while (event) {
        inside = NSMouseInRect([event locationInWindow], [self closeButtonRect], NO);
        if (inside != _closePressed) [self setNeedsDisplayInRect:[self titleBarRect]];
        _closePressed = inside;
        if ([event type] == NSLeftMouseUp) break;
        event = [NSApp nextEventMatchingMask:NSLeftMouseDraggedMask | NSLeftMouseUpMask
                                   untilDate:[NSDate distantFuture]
                                      inMode:NSEventTrackingRunLoopMode
                                     dequeue:YES];
    }
    _closePressed = NO;
    [self setNeedsDisplayInRect:[self titleBarRect]];
    if (event && inside) [[self window] performClose:self];
}

- (void)mouseDown:(NSEvent*)event {
    const NSPoint point = [event locationInWindow];
    if (NSMouseInRect(point, [self gripRect], NO))
        [self resizeWindow:event];
    else if (![self hasStyle:NSTitledWindowMask] || !NSMouseInRect(point, [self titleBarRect], NO))
        [super mouseDown:event];
    else if (NSMouseInRect(point, [self closeButtonRect], NO))
        [self trackCloseButton:event];
    else if ([event clickCount] == 2 && [self hasStyle:NSResizableWindowMask])
        [[self window] zoom:self];
    else if (![[self window] isZoomed])
        [self dragWindow:event];
}
@end
