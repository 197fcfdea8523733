#include "NSWindowBorderView.h"

#include "NSApplicationPrivate.h"
#include "NSEventPrivate.h"
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

- (NSRect)gripRect {
    if (![self hasStyle:NSResizableWindowMask] || [[self window] isZoomed]) return NSZeroRect;
    return NSMakeRect(NSMaxX([self bounds]) - grip_size, 0, grip_size, grip_size);
}

// The grip is in front of the content.
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
                     key ? theme::text() : theme::dim_text(), NSCenterTextAlignment);
}

- (void)drawRect:(NSRect)dirty {
    [theme::window() setFill];
    NSRectFill(dirty);
    if ([self hasStyle:NSTitledWindowMask] && NSMaxY(dirty) > NSMinY([self titleBarRect]))
        [self drawTitleBar];
}

// Moving and resizing follow the pointer on the screen, since the window moves under it.

- (NSEvent*)nextDrag {
    NSEvent* event = [NSApp nextDragOrMouseUp];
    return [event type] == NSLeftMouseDragged ? event : nil;
}

- (void)dragWindow:(NSEvent*)event {
    NSWindow* window = [self window];
    const NSPoint start = [event locationOnScreen];
    const NSPoint origin = [window frame].origin;
    const NSRect screen = [[NSScreen mainScreen] visibleFrame];
    while ((event = [self nextDrag])) {
        const NSPoint at = [event locationOnScreen];
        NSPoint to = NSMakePoint(origin.x + at.x - start.x, origin.y + at.y - start.y);
        // The title bar stays in reach, below the menu bar.
        to.y = std::min(to.y, NSMaxY(screen) - [window frame].size.height);
        to.y = std::max(to.y, NSMinY(screen) + 10 - [window frame].size.height);
        [window setFrameOrigin:to];
    }
}

- (void)resizeWindow:(NSEvent*)event {
    NSWindow* window = [self window];
    const NSPoint start = [event locationOnScreen];
    const NSRect old = [window frame];
    const NSSize least = NSMakeSize(80, NSWindowTitleBarHeight + 20);
    while ((event = [self nextDrag])) {
        const NSPoint at = [event locationOnScreen];
        NSRect frame = old;
        frame.size.width = std::max(least.width, old.size.width + at.x - start.x);
        frame.size.height = std::max(least.height, old.size.height - at.y + start.y);
        frame.origin.y = NSMaxY(old) - frame.size.height;
        [window setFrame:frame display:YES];
    }
}

- (void)mouseDown:(NSEvent*)event {
    const NSPoint point = [event locationInWindow];
    if (NSMouseInRect(point, [self gripRect], NO))
        [self resizeWindow:event];
    else if (![self hasStyle:NSTitledWindowMask] || !NSMouseInRect(point, [self titleBarRect], NO))
        [super mouseDown:event];
    else if ([event clickCount] == 2 && [self hasStyle:NSResizableWindowMask])
        [[self window] zoom:self];
    else if (![[self window] isZoomed])
        [self dragWindow:event];
}
@end
