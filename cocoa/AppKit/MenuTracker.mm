#include "MenuTracker.h"

#include "Internal.h"
#include "MenuList.h"
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

NSPoint screen_point(NSEvent* event) {
    NSWindow* window = [event window];
    return window ? [window convertBaseToScreen:[event locationInWindow]]
                  : [event locationInWindow];
}

// Follows the movements of the mouse for as long as it lives.
struct FollowMoves {
    FollowMoves() { WindowServer::shared().follow_moves(true); }
    ~FollowMoves() { WindowServer::shared().follow_moves(false); }
};

bool can_choose(NSMenuItem* item) {
    return item && [item isEnabled] && ![item isHidden];
}

} // namespace

NSPoint MenuTracker::on_screen(NSPoint top_left, double width, double height) {
    const NSRect screen = [[NSScreen mainScreen] visibleFrame];
    top_left.x = std::max(NSMinX(screen), std::min(top_left.x, NSMaxX(screen) - width));
    // A list that is too high shows its upper part.
    top_left.y = std::min(NSMaxY(screen), std::max(top_left.y, NSMinY(screen) + height));
    return NSMakePoint(std::floor(top_left.x), std::floor(top_left.y));
}

void MenuTracker::open(NSMenu* menu, NSPoint top_left, double width, NSInteger highlighted) {
    [menu update];
    width = std::max(std::ceil(width), menu_list_width(menu));
    top_left = on_screen(top_left, width, menu_list_height(menu));
    NSMenuListView* view = nil;
    NSWindow* window = make_list_window(menu, top_left, width, view);
    [view setHighlightedItem:highlighted];
    [window orderFront:nil];
    levels_.push_back({[menu retain], window, view});
}

void MenuTracker::close_to(size_t count) {
    while (levels_.size() > count) {
        const Level level = levels_.back();
        levels_.pop_back();
        [level.window orderOut:nil];
        // Events of the queue may still name it.
        [level.window autorelease];
        [level.menu autorelease];
    }
}

int MenuTracker::level_at(NSPoint screen) const {
    for (size_t i = levels_.size(); i-- > 0;)
        if (NSMouseInRect(screen, [levels_[i].window frame], NO)) return static_cast<int>(i);
    return -1;
}

void MenuTracker::open_submenu() {
    const Level& level = levels_.back();
    NSMenuItem* item = [level.menu itemAtIndex:[level.view highlightedItem]];
    if (!can_choose(item) || ![item hasSubmenu] || levels_.size() > 8) return;
    const NSRect row = [level.view convertRect:[level.view rectOfItem:[level.view highlightedItem]]
                                        toView:nil];
    const NSPoint corner =
        [level.window convertBaseToScreen:NSMakePoint(NSMaxX(row) - 3, NSMaxY(row) + 4)];
    open([item submenu], corner, 0, -1);
}

void MenuTracker::highlight_at(NSPoint screen) {
    const int at = level_at(screen);
    if (at < 0) {
        [levels_.back().view setHighlightedItem:-1];
        return;
    }
    const Level level = levels_[static_cast<size_t>(at)];
    const NSPoint base = [level.window convertScreenToBase:screen];
    const NSInteger item = [level.view itemAtPoint:[level.view convertPoint:base fromView:nil]];
    if (item == [level.view highlightedItem] && levels_.size() > static_cast<size_t>(at) + 1)
        return;
    close_to(static_cast<size_t>(at) + 1);
    [level.view setHighlightedItem:item];
    open_submenu();
}

MenuTracker::Verdict MenuTracker::choose() {
    const Level& level = levels_.back();
    NSMenuItem* item = [level.menu itemAtIndex:[level.view highlightedItem]];
    if (!can_choose(item)) return Verdict::go_on;
    if ([item hasSubmenu]) {
        open_submenu();
        return Verdict::go_on;
    }
    return Verdict::chosen;
}

MenuTracker::Verdict MenuTracker::on_mouse(NSEvent* event) {
    const NSPoint at = screen_point(event);
    const NSEventType type = [event type];
    if (std::hypot(at.x - start_.x, at.y - start_.y) > 3) moved_ = true;
    if (type == NSScrollWheel) return Verdict::go_on;
    const bool up = type == NSLeftMouseUp || type == NSRightMouseUp;
    const bool down = type == NSLeftMouseDown || type == NSRightMouseDown;
    if (down) {
        pressed_ = moved_ = true;
        if (NSMouseInRect(at, bar_, NO)) {
            left_for_bar_ = true;
            return Verdict::cancelled;
        }
        if (level_at(at) < 0) return Verdict::cancelled;
    }
    if (!up && NSMouseInRect(at, bar_, NO) && !NSMouseInRect(at, title_, NO)) {
        left_for_bar_ = true;
        return Verdict::cancelled;
    }
    if (up && !moved_) {
        // The click that opened the list.
        pressed_ = false;
        moved_ = true;
        return Verdict::go_on;
    }
    highlight_at(at);
    if (!up) return Verdict::go_on;
    pressed_ = false;
    if (level_at(at) < 0) return NSMouseInRect(at, bar_, NO) ? Verdict::go_on : Verdict::cancelled;
    return choose();
}

void MenuTracker::step(int direction) {
    const Level& level = levels_.back();
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
        [levels_.back().view setHighlightedItem:-1];
        step(1);
        break;
    case NSEndFunctionKey:
        [levels_.back().view setHighlightedItem:-1];
        step(-1);
        break;
    case NSRightArrowFunctionKey: {
        const size_t before = levels_.size();
        open_submenu();
        if (levels_.size() > before)
            step(1);
        else if (!NSIsEmptyRect(bar_)) {
            side_step_ = 1;
            return Verdict::cancelled;
        }
        break;
    }
    case NSLeftArrowFunctionKey:
        if (levels_.size() > 1) {
            close_to(levels_.size() - 1);
        } else if (!NSIsEmptyRect(bar_)) {
            side_step_ = -1;
            return Verdict::cancelled;
        }
        break;
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
    case ' ':
        return choose();
    case NSEscapeCharacter:
        if (levels_.size() == 1) return Verdict::cancelled;
        close_to(levels_.size() - 1);
        break;
    }
    return Verdict::go_on;
}

NSMenuItem* MenuTracker::run(NSPoint start, bool pressed) {
    const FollowMoves follow;
    start_ = start;
    pressed_ = pressed;
    moved_ = !pressed;
    const NSUInteger mask = NSLeftMouseDownMask | NSLeftMouseUpMask | NSLeftMouseDraggedMask |
                            NSRightMouseDownMask | NSRightMouseUpMask | NSRightMouseDraggedMask |
                            NSMouseMovedMask | NSScrollWheelMask | NSKeyDownMask | NSKeyUpMask |
                            NSApplicationDefinedMask;
    while (!levels_.empty()) {
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
        if (verdict == Verdict::cancelled) return nil;
        if (verdict == Verdict::go_on) continue;
        const Level& level = levels_.back();
        return [[[level.menu itemAtIndex:[level.view highlightedItem]] retain] autorelease];
    }
    return nil;
}

} // namespace cocoa
