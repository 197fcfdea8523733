#include <AppKit/NSDisplayStandIn.h>

#include "Alerts.h"
#include "display/HeadlessDisplay.h"
#include "display/SDLDisplay.h"
#include "Internal.h"
#include "MenuTracker.h"
#include "Theme.h"
#include "WindowServer.h"

#include <algorithm>
#include <AppKit/AppKit.h>
#include <cmath>

using cocoa::WindowServer;

void NSUseHeadlessDisplay(NSSize size, CGFloat scale) {
    WindowServer::shared().set_display(std::make_unique<cocoa::HeadlessDisplay>(
        cocoa::ScreenSize{size.width, size.height}, scale > 0 ? scale : 1));
}

BOOL NSUseWindowDisplay(NSString* title, NSSize size, CGFloat scale, NSSize least) {
    auto display = cocoa::make_sdl_display([title UTF8String], { size.width, size.height }, scale,
                                           {least.width, least.height});
    if (!display) return NO;
    WindowServer::shared().set_display(std::move(display));
    return YES;
}

void NSUseLightAppearance(BOOL flag) {
    cocoa::theme::use_light(flag);
    for (NSWindow* window : WindowServer::shared().all()) [window setViewsNeedDisplay:YES];
}

NSUInteger NSFramesDrawn() {
    return WindowServer::shared().frames();
}

void NSPostMouse(NSWindow* window, NSEventType type, NSPoint location, NSInteger clicks,
                 NSUInteger modifiers) {
    static NSInteger number = 0;
    [[NSApplication sharedApplication]
        postEvent:[NSEvent mouseEventWithType:type
                                     location:location
                                modifierFlags:modifiers
                                    timestamp:[NSDate timeIntervalSinceReferenceDate]
                                 windowNumber:[window windowNumber]
                                      context:nil
                                  eventNumber:++number
                                   clickCount:clicks
                                     pressure:1]
          atStart:NO];
}

void NSPostClick(NSView* view, NSPoint point, NSInteger clicks, NSUInteger modifiers) {
    const NSPoint at = [view convertPoint:point toView:nil];
    NSPostMouse([view window], NSLeftMouseDown, at, clicks, modifiers);
    NSPostMouse([view window], NSLeftMouseUp, at, clicks, modifiers);
}

void NSPostDrag(NSView* view, NSPoint from, NSPoint to) {
    const NSPoint start = [view convertPoint:from toView:nil];
    const NSPoint end = [view convertPoint:to toView:nil];
    NSPostMouse([view window], NSLeftMouseDown, start, 1, 0);
    for (int i = 1; i <= 3; ++i) {
        const NSPoint at =
            NSMakePoint(start.x + (end.x - start.x) * i / 3, start.y + (end.y - start.y) * i / 3);
        NSPostMouse([view window], NSLeftMouseDragged, at, 1, 0);
    }
    NSPostMouse([view window], NSLeftMouseUp, end, 1, 0);
}

void NSPostScroll(NSView* view, NSPoint point, CGFloat deltaX, CGFloat deltaY) {
    [[NSApplication sharedApplication] postEvent:[NSEvent scrollEventAt:[view convertPoint:point
                                                                                    toView:nil]
                                                          modifierFlags:0
                                                           windowNumber:[[view window] windowNumber]
                                                                 deltaX:deltaX
                                                                 deltaY:deltaY]
                                         atStart:NO];
}

static BOOL post_to_display(cocoa::DisplayEvent event, NSPoint screen) {
    auto* display = dynamic_cast<cocoa::HeadlessDisplay*>(&WindowServer::shared().display());
    if (!display) return NO;
    event.x = screen.x;
    event.y = display->size().height - screen.y;
    display->post(event);
    return YES;
}

BOOL NSPostScreenMouse(NSEventType type, NSPoint screen, NSInteger clicks) {
    using Kind = cocoa::DisplayEvent::Kind;
    cocoa::DisplayEvent event;
    event.kind = type == NSLeftMouseDown ? Kind::mouse_down
                 : type == NSLeftMouseUp ? Kind::mouse_up
                                         : Kind::mouse_move;
    event.clicks = static_cast<int>(clicks);
    return post_to_display(event, screen);
}

BOOL NSPostScreenScroll(NSPoint screen, CGFloat deltaX, CGFloat deltaY) {
    cocoa::DisplayEvent event;
    event.kind = cocoa::DisplayEvent::Kind::wheel;
    event.dx = deltaX;
    event.dy = deltaY;
    return post_to_display(event, screen);
}

static void post_key(NSString* characters, NSUInteger modifiers) {
    NSApplication* application = [NSApplication sharedApplication];
    for (const NSEventType type : {NSKeyDown, NSKeyUp})
        [application
            postEvent:[NSEvent keyEventWithType:type
                                             location:NSZeroPoint
                                        modifierFlags:modifiers
                                            timestamp:[NSDate timeIntervalSinceReferenceDate]
                                         windowNumber:[[application keyWindow] windowNumber]
                                              context:nil
                                           characters:characters
                          charactersIgnoringModifiers:characters
                                            isARepeat:NO
                                              keyCode:0]
              atStart:NO];
}

void NSPostKey(unichar character, NSUInteger modifiers) {
    post_key([NSString stringWithCharacters:&character length:1], modifiers);
}

void NSPostText(NSString* text) {
    for (NSUInteger i = 0; i < [text length];) {
        const bool pair = ([text characterAtIndex:i] & 0xfc00) == 0xd800 && i + 1 < [text length];
        post_key([text substringWithRange:NSMakeRange(i, pair ? 2 : 1)], 0);
        i += pair ? 2 : 1;
    }
}

NSUInteger NSDispatchEvents() {
    NSUInteger count = 0;
    for (;; ++count) {
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        NSEvent* event =
            [[NSApplication sharedApplication] nextEventMatchingMask:NSAnyEventMask
                                                           untilDate:[NSDate distantPast]
                                                              inMode:NSDefaultRunLoopMode
                                                             dequeue:YES];
        const bool any = event != nil;
        if (any) [NSApp sendEvent:event];
        [pool drain];
        if (!any) return count;
    }
}

NSPicture NSRenderView(NSView* view, CGFloat scale) {
    NSPicture picture;
    if (!view || !(scale > 0)) return picture;
    const double width = std::ceil([view frame].size.width * scale - 1e-9);
    const double height = std::ceil([view frame].size.height * scale - 1e-9);
    if (!(width >= 1 && height >= 1 && width * height <= 268435456.0)) return picture;
    picture.width = static_cast<int>(width);
    picture.height = static_cast<int>(height);
    picture.rgba.resize(static_cast<size_t>(picture.width) * picture.height * 4);
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    cocoa::draw_tree(view, picture.rgba.data(), picture.width, picture.height, scale, [view frame]);
    [pool drain];
    return picture;
}

NSPicture NSRenderWindow(NSWindow* window, CGFloat scale) {
    return NSRenderView([window borderView], scale);
}

NSPicture NSRenderScreen() {
    WindowServer& server = WindowServer::shared();
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    const std::vector<NSWindow*> windows = server.ordered();
    for (NSWindow* window : windows) [window displayIfNeeded];
    NSPicture picture;
    picture.rgba = server.compose(picture.width, picture.height);
    [pool drain];
    return picture;
}

NSPicture NSWindowPixels(NSWindow* window) {
    const NSWindowState* state = [window state];
    if (!state) return {};
    return {state->width, state->height, state->pixels};
}

void NSSetNextAlertAnswer(NSUInteger button) {
    cocoa::alert_record().next_answer = button;
}
void NSSetAlertsInteractive(BOOL flag) {
    cocoa::alert_record().interactive = flag;
}

std::vector<NSShownAlert> NSShownAlerts() {
    std::vector<NSShownAlert> alerts;
    for (const cocoa::ShownAlert& alert : cocoa::alert_record().shown)
        alerts.push_back({alert.title, alert.message, alert.buttons});
    return alerts;
}
void NSForgetShownAlerts() {
    cocoa::alert_record().shown.clear();
}

void NSLeaveNextAlertOut() {
    cocoa::alert_record().skip_next = true;
}

NSButtonType NSTypeOfButton(NSButton* button) {
    return [(NSButtonCell*)[button cell] buttonType];
}
BOOL NSTextFieldIsLabel(NSTextField* field) {
    return ![field isEditable];
}

NSRect NSRectOfPopUpItem(NSPopUpButton* button, NSInteger index) {
    NSMenu* menu = [button menu];
    if (![menu itemAtIndex:index] || ![button window]) return NSZeroRect;
    NSPopUpButtonCell* cell = [button cell];
    const NSRect bounds = [button bounds];
    const NSRect list = [cell listRectForFrame:bounds inView:button];
    const double top = NSMaxY(list) - cocoa::menu_item_top(menu, index);
    const double height = [[menu itemAtIndex:index] isSeparatorItem]
                              ? cocoa::theme::menu_separator_height
                              : cocoa::theme::menu_row_height;
    const NSPoint corner =
        [[button window] convertScreenToBase:NSMakePoint(NSMinX(list), top - height)];
    return [button convertRect:NSMakeRect(corner.x, corner.y, NSWidth(list), height) fromView:nil];
}
