#include "MenuTracker.h"

#include "NSEventPrivate.h"
#include "NSMenuListView.h"
#include "NSWindowPrivate.h"
#include "WindowServer.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>

namespace cocoa {

namespace {

NSWindow* make_list_window(NSMenu* menu, NSPoint top_left, double width, NSMenuListView*& view) {
    const double height = menu_list_height(menu);
    NSWindow* window = [[NSMenuWindow alloc]
        initWithContentRect:NSMakeRect(top_left.x, top_left.y - height, width, height)
                  styleMask:NSBorderlessWindowMask
                    backing:NSBackingStoreBuffered
                      defer:YES];
    [window setReleasedWhenClosed:NO];
    [window setLevel:NSPopUpMenuWindowLevel];
    view = [[NSMenuListView alloc] initWithMenu:menu frame:NSMakeRect(0, 0, width, height)];
    [window setContentView:view];
    [view release];
    return window;
}

// Mouse movements are reported while it lives.
struct FollowMoves {
    FollowMoves() { WindowServer::shared().follow_moves(true); }
    ~FollowMoves() { WindowServer::shared().follow_moves(false); }
};

// Where a list of that width and height is shown for a requested corner.
NSPoint on_screen(NSPoint top_left, double width, double height) {
    const NSRect screen = [[NSScreen mainScreen] visibleFrame];
    top_left.x = std::max(NSMinX(screen), std::min(top_left.x, NSMaxX(screen) - width));
    // Of a list that is too high, the upper part is visible.
    top_left.y = std::min(NSMaxY(screen), std::max(top_left.y, NSMinY(screen) + height));
    return NSMakePoint(std::floor(top_left.x), std::floor(top_left.y));
}

bool can_choose(NSMenuItem* item) {
    return item && [item isEnabled];
}

} // namespace

void MenuTracker::open(NSMenu* menu, NSPoint top_left, double width, NSInteger highlighted) {
    [menu update];
    width = std::max(std::ceil(width), menu_list_width(menu));
    top_left = on_screen(top_left, width, menu_list_height(menu));
    NSMenuListView* view = nil;
    NSWindow* window = make_list_window(menu, top_left, width, view);
    [view setHighlightedItem:highlighted];
    [window orderFront:nil];
    _levels.push_back({[menu retain], window, view});
}

void MenuTracker::close_to(size_t count) {
    while (_levels.size() > count) {
        const Level level = _levels.back();
        _levels.pop_back();
        [level.window orderOut:nil];
        // Events in the queue may still refer to it.
        [level.window autorelease];
        [level.menu autorelease];
    }
}

int MenuTracker::level_at(NSPoint screen) const {
    for (size_t i = _levels.size(); i-- > 0;)
        if (NSMouseInRect(screen, [_levels[i].window frame], NO)) return static_cast<int>(i);
    return -1;
}

void MenuTracker::open_submenu() {
    const Level& level = _levels.back();
    NSMenuItem* item = [level.menu itemAtIndex:[level.view highlightedItem]];
    if (!can_choose(item) || ![item hasSubmenu] || _levels.size() > 8) return;
    const NSRect row = [level.view convertRect:[level.view rectOfItem:[level.view highlightedItem]]
                                        toView:nil];
    const NSPoint corner =
        [level.window convertBaseToScreen:NSMakePoint(NSMaxX(row) - 3, NSMaxY(row) + 4)];
    open([item submenu], corner, 0, -1);
}

void MenuTracker::highlight_at(NSPoint screen) {
    const int at = level_at(screen);
    if (at < 0) {
        [_levels.back().view setHighlightedItem:-1];
        return;
    }
    const Level level = _levels[static_cast<size_t>(at)];
    const NSPoint base = [level.window convertScreenToBase:screen];
    const NSInteger item = [level.view itemAtPoint:[level.view convertPoint:base fromView:nil]];
    if (item == [level.view highlightedItem] && _levels.size() > static_cast<size_t>(at) + 1)
        return;
    close_to(static_cast<size_t>(at) + 1);
    [level.view setHighlightedItem:item];
    open_submenu();
}

MenuTracker::Verdict MenuTracker::choose() {
    const Level& level = _levels.back();
    NSMenuItem* item = [level.menu itemAtIndex:[level.view highlightedItem]];
    if (!can_choose(item)) return Verdict::Continue;
    if ([item hasSubmenu]) {
        open_submenu();
        return Verdict::Continue;
    }
    return Verdict::Chosen;
}

MenuTracker::Verdict MenuTracker::on_mouse(NSEvent* event) {
    const NSPoint at = [event locationOnScreen];
    const NSEventType type = [event type];
    if (std::hypot(at.x - _start.x, at.y - _start.y) > 3) _moved = true;
    if (type == NSScrollWheel) return Verdict::Continue;
    const bool up = type == NSLeftMouseUp || type == NSRightMouseUp;
    const bool down = type == NSLeftMouseDown || type == NSRightMouseDown;
    if (down) {
        _pressed = _moved = true;
        if (NSMouseInRect(at, _bar, NO)) {
            _left_for_bar = true;
            return Verdict::Cancelled;
        }
        if (level_at(at) < 0) return Verdict::Cancelled;
    }
    if (!up && NSMouseInRect(at, _bar, NO) && !NSMouseInRect(at, _title, NO)) {
        _left_for_bar = true;
        return Verdict::Cancelled;
    }
    if (up && !_moved) {
        // The release of the click that opened the list.
        _pressed = false;
        _moved = true;
        return Verdict::Continue;
    }
    highlight_at(at);
    if (!up) return Verdict::Continue;
    _pressed = false;
    if (level_at(at) < 0)
        return NSMouseInRect(at, _bar, NO) ? Verdict::Continue : Verdict::Cancelled;
    return choose();
}

void MenuTracker::step(int direction) {
    const Level& level = _levels.back();
    const NSInteger count = [level.menu numberOfItems];
    NSInteger item = [level.view highlightedItem];
    if (item < 0 && direction < 0) item = count;
    for (NSInteger tries = 0; tries < count; ++tries) {
        item += direction;
        if (item < 0 || item >= count) return;
        if (can_choose([level.menu itemAtIndex:item])) {
            [level.view setHighlightedItem:item];
            return;
        }
    }
}

MenuTracker::Verdict MenuTracker::on_key(NSEvent* event) {
    NSString* characters = [event characters];
    switch ([characters length] ? [characters characterAtIndex:0] : 0) {
    case NSUpArrowFunctionKey:
        step(-1);
        break;
    case NSDownArrowFunctionKey:
        step(1);
        break;
    case NSHomeFunctionKey:
        [_levels.back().view setHighlightedItem:-1];
        step(1);
        break;
    case NSEndFunctionKey:
        [_levels.back().view setHighlightedItem:-1];
        step(-1);
        break;
    case NSRightArrowFunctionKey: {
        const size_t before = _levels.size();
        open_submenu();
        if (_levels.size() > before)
            step(1);
        else if (!NSIsEmptyRect(_bar)) {
            _side_step = 1;
            return Verdict::Cancelled;
        }
        break;
    }
    case NSLeftArrowFunctionKey:
        if (_levels.size() > 1) {
            close_to(_levels.size() - 1);
        } else if (!NSIsEmptyRect(_bar)) {
            _side_step = -1;
            return Verdict::Cancelled;
        }
        break;
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
    case ' ':
        return choose();
    case NSEscapeCharacter:
        if (_levels.size() == 1) return Verdict::Cancelled;
        close_to(_levels.size() - 1);
        break;
    }
    return Verdict::Continue;
}

NSMenuItem* MenuTracker::run(NSPoint start, bool pressed) {
    const FollowMoves follow;
    _start = start;
    _pressed = pressed;
    _moved = !pressed;
    const NSUInteger mask = NSLeftMouseDownMask | NSLeftMouseUpMask | NSLeftMouseDraggedMask |
                            NSRightMouseDownMask | NSRightMouseUpMask | NSRightMouseDraggedMask |
                            NSMouseMovedMask | NSScrollWheelMask | NSKeyDownMask | NSKeyUpMask |
                            NSApplicationDefinedMask;
    while (!_levels.empty()) {
        NSEvent* event = [NSApp nextEventMatchingMask:mask
                                            untilDate:[NSDate distantFuture]
                                               inMode:NSEventTrackingRunLoopMode
                                              dequeue:YES];
        if (!event) return nil;
        if ([event type] == NSApplicationDefined && [event subtype] == quit_subtype) {
            [NSApp postEvent:event atStart:YES];
            return nil;
        }
        if ([event type] == NSKeyUp || [event type] == NSApplicationDefined) continue;
        const Verdict verdict = [event type] == NSKeyDown ? on_key(event) : on_mouse(event);
        if (verdict == Verdict::Cancelled) return nil;
        if (verdict == Verdict::Continue) continue;
        const Level& level = _levels.back();
        return [[[level.menu itemAtIndex:[level.view highlightedItem]] retain] autorelease];
    }
    return nil;
}

} // namespace cocoa
