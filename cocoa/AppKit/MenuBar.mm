#include "MenuBar.h"

#include "MenuTracker.h"
#include "NSEventPrivate.h"
#include "NSWindowPrivate.h"
#include "Theme.h"
#include "WindowServer.h"

#include <AppKit/AppKit.h>
#include <cmath>

using namespace cocoa;

@interface NSMenuBarView : NSView {
  @private
    NSInteger _open;
}
- (void)openMenu:(NSInteger)index from:(NSPoint)start pressed:(bool)pressed;
@end

@interface NSMenuBarWindow : NSMenuWindow
@end

namespace {

NSWindow* bar_window = nil;

NSRect bar_rect() {
    const NSSize screen = WindowServer::shared().screen_size();
    return NSMakeRect(0, screen.height - theme::menu_bar_height, screen.width,
                      theme::menu_bar_height);
}

} // namespace

@implementation NSMenuBarWindow
- (BOOL)isTransparent {
    return NO;
}
- (void)screenDidChange {
    [super screenDidChange];
    [self setFrame:bar_rect() display:NO];
}
@end

@implementation NSMenuBarView
- (id)initWithFrame:(NSRect)frame {
    self = [super initWithFrame:frame];
    if (self) _open = -1;
    return self;
}
- (BOOL)isFlipped {
    return YES;
}

- (NSString*)titleOf:(NSInteger)index {
    return [[[NSApp mainMenu] itemAtIndex:index] title];
}

- (NSRect)rectOf:(NSInteger)index {
    double x = 8, width = 0;
    for (NSInteger i = 0; i <= index; ++i) {
        x += width;
        width = std::ceil(theme::measure([self titleOf:i], theme::menu_font()).width) + 18;
    }
    return NSMakeRect(x, 0, width, theme::menu_bar_height);
}

- (NSInteger)titleAt:(NSPoint)point {
    for (NSInteger i = 0; i < [[NSApp mainMenu] numberOfItems]; ++i)
        if (NSPointInRect(point, [self rectOf:i])) return i;
    return -1;
}

- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    [theme::menu() setFill];
    NSRectFill([self bounds]);
    [theme::outline() setFill];
    NSRectFill(NSMakeRect(0, theme::menu_bar_height - 1, [self bounds].size.width, 1));
    for (NSInteger i = 0; i < [[NSApp mainMenu] numberOfItems]; ++i) {
        const NSRect rect = [self rectOf:i];
        if (i == _open) {
            [theme::accent() setFill];
            NSRectFill(NSMakeRect(NSMinX(rect), 0, NSWidth(rect), NSHeight(rect) - 1));
        }
        theme::draw_line([self titleOf:i], rect, theme::menu_font(),
                         i == _open ? theme::accent_text() : theme::text(), NSCenterTextAlignment);
    }
}

- (void)mouseDown:(NSEvent*)event {
    [self openMenu:[self titleAt:[self convertPoint:[event locationInWindow] fromView:nil]]
              from:[event locationOnScreen]
           pressed:true];
}

// Opens the menu of a title and, as the mouse or the arrows move along the bar, those beside it.
- (void)openMenu:(NSInteger)index from:(NSPoint)start pressed:(bool)pressed {
    [[self retain] autorelease];
    NSMenuItem* chosen = nil;
    const NSInteger count = [[NSApp mainMenu] numberOfItems];
    while (index >= 0 && index < count && [self window]) {
        NSMenu* menu = [[[NSApp mainMenu] itemAtIndex:index] submenu];
        if (!menu) break;
        _open = index;
        [self setNeedsDisplay:YES];
        const NSRect title = [self rectOf:index];
        const NSRect bar = bar_rect();
        MenuTracker tracker;
        tracker.set_bar(bar, NSOffsetRect(title, NSMinX(bar), NSMinY(bar)));
        tracker.open(menu, NSMakePoint(NSMinX(title), NSMinY(bar)), 0, -1);
        if (!pressed && start.x < 0) tracker.step(1);
        chosen = tracker.run(start, pressed);
        if (tracker.side_step()) {
            index = (index + tracker.side_step() + count) % count;
            start = NSMakePoint(-100, -100);
            pressed = false;
            continue;
        }
        if (chosen || !tracker.left_for_bar()) break;
        const NSPoint at = [[NSApp currentEvent] locationOnScreen];
        const NSInteger other =
            [self titleAt:[self convertPoint:[[self window] convertScreenToBase:at] fromView:nil]];
        const bool again = other == index && [[NSApp currentEvent] type] == NSLeftMouseDown;
        if (other < 0 || again) break;
        index = other;
        start = at;
        pressed = tracker.still_pressed();
    }
    _open = -1;
    [self setNeedsDisplay:YES];
    // Only now that the list is closed.
    [[chosen menu] performActionForItemAtIndex:[[chosen menu] indexOfItem:chosen]];
}
@end

namespace cocoa {

void show_menu_bar(NSMenu* menu) {
    if (!menu) {
        [bar_window orderOut:nil];
        [bar_window release];
        bar_window = nil;
        return;
    }
    if (!bar_window) {
        bar_window = [[NSMenuBarWindow alloc] initWithContentRect:bar_rect()
                                                        styleMask:NSBorderlessWindowMask
                                                          backing:NSBackingStoreBuffered
                                                            defer:YES];
        [bar_window setReleasedWhenClosed:NO];
        [bar_window setLevel:NSPopUpMenuWindowLevel - 1];
        NSView* view = [[NSMenuBarView alloc] initWithFrame:NSZeroRect];
        [bar_window setContentView:view];
        [view release];
        [bar_window orderFront:nil];
    }
    redraw_menu_bar();
}

bool open_menu_bar() {
    if (!bar_window) return false;
    [(NSMenuBarView*)[bar_window contentView] openMenu:0
                                                  from:NSMakePoint(-100, -100)
                                               pressed:false];
    return true;
}

void redraw_menu_bar() {
    [[bar_window contentView] setNeedsDisplay:YES];
}

} // namespace cocoa
