#include <AppKit/NSDisplayStandIn.h>

#include "AlertRecord.h"
#include "display/HeadlessDisplay.h"
#include "display/SDLDisplay.h"
#include "NSButtonPrivate.h"
#include "NSEventPrivate.h"
#include "NSViewPrivate.h"
#include "NSWindowPrivate.h"
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

static void post(NSEvent* event) {
    [[NSApplication sharedApplication] postEvent:event atStart:NO];
}

void NSPostMouse(NSWindow* window, NSEventType type, NSPoint location, NSInteger clicks,
                 NSUInteger modifiers) {
    post([NSEvent mouseEvent:type
                          at:location
               modifierFlags:modifiers
                windowNumber:[window windowNumber]
                  clickCount:clicks]);
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

void NSPostScroll(NSView* view, NSPoint point, CGFloat, CGFloat deltaY) {
    post([NSEvent scrollEventAt:[view convertPoint:point toView:nil]
                  modifierFlags:0
                   windowNumber:[[view window] windowNumber]
                         deltaY:deltaY]);
}

BOOL NSPostScreenMouse(NSEventType type, NSPoint screen, NSInteger clicks) {
    using Kind = cocoa::DisplayEvent::Kind;
    auto* display = dynamic_cast<cocoa::HeadlessDisplay*>(&WindowServer::shared().display());
    if (!display) return NO;
    cocoa::DisplayEvent event;
    event.kind = type == NSLeftMouseDown ? Kind::MouseDown
                 : type == NSLeftMouseUp ? Kind::MouseUp
                                         : Kind::MouseMove;
    event.clicks = static_cast<int>(clicks);
    event.x = screen.x;
    event.y = display->size().height - screen.y;
    display->post(event);
    return YES;
}

static void post_key(NSString* characters, NSUInteger modifiers) {
    NSWindow* key = [[NSApplication sharedApplication] keyWindow];
    for (const NSEventType type : {NSKeyDown, NSKeyUp})
        post([NSEvent keyEvent:type
                    characters:characters
                 modifierFlags:modifiers
                  windowNumber:[key windowNumber]]);
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

void NSSetNextAlertAnswer(NSUInteger button) {
    cocoa::alert_record().next_answer = button;
}

std::vector<NSShownAlert> NSShownAlerts() {
    return cocoa::alert_record().shown;
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
