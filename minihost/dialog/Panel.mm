#include "minihost/dialog/Panel.h"

#include "minihost/dialog/AutoreleasePool.h"

#include <AppKit/NSDisplayStandIn.h>
#include <Cocoa/Cocoa.h>
#include <set>

namespace minihost {

namespace {

// The windows of the host and its panels: the others are the plug-in's.
std::set<NSWindow*>& own_windows() {
    static std::set<NSWindow*> windows;
    return windows;
}

NSWindow* floating_window() {
    NSArray* windows = [[NSApplication sharedApplication] windows];
    for (NSUInteger i = [windows count]; i-- > 0;) {
        NSWindow* window = [windows objectAtIndex:i];
        if (!own_windows().count(window)) return window;
    }
    return nil;
}

NSString* string(const std::string& utf8) {
    NSString* text = [NSString stringWithUTF8String:utf8.c_str()];
    return text ? text : @"";
}

} // namespace

void empty_container(NSView* container) {
    NSArray* views = [[[container subviews] copy] autorelease];
    for (NSUInteger i = 0; i < [views count]; ++i) [[views objectAtIndex:i] removeFromSuperview];
}

void claim_window(NSWindow* window) {
    own_windows().insert(window);
}

void disclaim_window(NSWindow* window) {
    own_windows().erase(window);
}

Panel::Panel(double width, double height) {
    const AutoreleasePool pool;
    [NSApplication sharedApplication];
    _window = [[NSWindow alloc] initWithContentRect:NSMakeRect(100, 100, width, height)
                                          styleMask:NSTitledWindowMask
                                            backing:NSBackingStoreBuffered
                                              defer:YES];
    [_window setReleasedWhenClosed:NO];
    NSView* container = [[NSView alloc] initWithFrame:NSMakeRect(0, 0, width, height)];
    [_window setContentView:container];
    [container release];
    claim_window(_window);
}

Panel::~Panel() {
    const AutoreleasePool pool;
    disclaim_window(_window);
    empty_container(container());
    [_window close];
    [_window release];
}

NSView* Panel::container() const {
    return [_window contentView];
}

void Panel::resize(double width, double height) {
    const AutoreleasePool pool;
    [_window setContentSize:NSMakeSize(width, height)];
}

void Panel::set_title(const std::string& utf8) {
    const AutoreleasePool pool;
    [_window setTitle:string(utf8)];
}

std::string Panel::title() const {
    const AutoreleasePool pool;
    return [[_window title] UTF8String];
}

void Panel::show(bool visible) {
    const AutoreleasePool pool;
    if (visible)
        [_window makeKeyAndOrderFront:nil];
    else
        [_window orderOut:nil];
}

bool Panel::is_visible() const {
    return [_window isVisible];
}

NSView* floating_dialog() {
    const AutoreleasePool pool;
    return [floating_window() contentView];
}

bool floating_dialog_is_visible() {
    const AutoreleasePool pool;
    return [floating_window() isVisible];
}

std::string floating_dialog_title() {
    const AutoreleasePool pool;
    NSString* title = [floating_window() title];
    return title ? [title UTF8String] : "";
}

Picture render(NSView* view, double scale) {
    const AutoreleasePool pool;
    NSPicture picture = NSRenderView(view, scale);
    return {picture.width, picture.height, std::move(picture.rgba)};
}

} // namespace minihost
