#include "WindowServer.h"

#include "display/HeadlessDisplay.h"
#include "NSEventPrivate.h"
#include "NSWindowPrivate.h"

#include <algorithm>
#include <AppKit/NSApplication.h>

namespace cocoa {

WindowServer& WindowServer::shared() {
    // Never destroyed: windows may be freed at the very end of the process.
    static WindowServer* server = new WindowServer();
    return *server;
}

WindowServer::WindowServer()
    : _display(std::make_unique<HeadlessDisplay>(ScreenSize{1440, 900}, 1)) {}

void WindowServer::set_display(std::unique_ptr<Display> display) {
    _display = std::move(display);
    _pressed = _right_pressed = false;
    screen_changed();
}

NSSize WindowServer::screen_size() const {
    const ScreenSize size = _display->size();
    return NSMakeSize(size.width, size.height);
}

NSInteger WindowServer::add(NSWindow* window) {
    _all.push_back(window);
    return _next_number++;
}

void WindowServer::remove(NSWindow* window) {
    order_out(window);
    std::erase(_all, window);
}

NSWindow* WindowServer::window_with_number(NSInteger number) const {
    for (NSWindow* window : _all)
        if ([window windowNumber] == number) return window;
    return nil;
}

NSWindow* WindowServer::window_at(NSPoint screen) const {
    for (NSWindow* window : _ordered)
        if (NSMouseInRect(screen, [window frame], NO)) return window;
    return nil;
}

void WindowServer::order_front(NSWindow* window) {
    std::erase(_ordered, window);
    auto place = _ordered.begin();
    while (place != _ordered.end() && [*place level] > [window level]) ++place;
    _ordered.insert(place, window);
    _stale = true;
}

void WindowServer::order_back(NSWindow* window) {
    std::erase(_ordered, window);
    auto place = _ordered.begin();
    while (place != _ordered.end() && [*place level] >= [window level]) ++place;
    _ordered.insert(place, window);
    _stale = true;
}

void WindowServer::order_out(NSWindow* window) {
    std::erase(_ordered, window);
    _stale = true;
}

void WindowServer::screen_changed() {
    _stale = true;
    _shown.clear();
    const std::vector<NSWindow*> windows = _all;
    for (NSWindow* window : windows)
        if (std::find(_all.begin(), _all.end(), window) != _all.end()) [window screenDidChange];
}

static NSUInteger modifier_flags(unsigned modifiers) {
    NSUInteger flags = 0;
    if (modifiers & Shift) flags |= NSShiftKeyMask;
    if (modifiers & Control) flags |= NSControlKeyMask;
    if (modifiers & Option) flags |= NSAlternateKeyMask;
    if (modifiers & Command) flags |= NSCommandKeyMask;
    return flags;
}

NSEvent* WindowServer::translate(const DisplayEvent& event) {
    using Kind = DisplayEvent::Kind;
    switch (event.kind) {
    case Kind::KeyDown:
    case Kind::KeyUp:
        return translate_key(event);
    case Kind::Resized:
        screen_changed();
        return nil;
    case Kind::Quit:
        return [NSEvent applicationEvent:quit_subtype];
    default:
        return translate_mouse(event);
    }
}

NSEvent* WindowServer::translate_key(const DisplayEvent& event) {
    NSString* characters = [NSString stringWithUTF8String:event.characters.c_str()];
    if (![characters length]) return nil;
    return [NSEvent keyEvent:event.kind == DisplayEvent::Kind::KeyDown ? NSKeyDown : NSKeyUp
                  characters:characters
               modifierFlags:modifier_flags(event.modifiers)
                windowNumber:[[NSApp keyWindow] windowNumber]];
}

NSEvent* WindowServer::translate_mouse(const DisplayEvent& event) {
    using Kind = DisplayEvent::Kind;
    const NSPoint mouse = NSMakePoint(event.x, _display->size().height - event.y);
    NSEventType type = NSMouseMoved;
    bool& pressed = event.right_button ? _right_pressed : _pressed;
    if (event.kind == Kind::MouseDown) {
        type = event.right_button ? NSRightMouseDown : NSLeftMouseDown;
    } else if (event.kind == Kind::MouseUp) {
        if (!pressed) return nil;
        type = event.right_button ? NSRightMouseUp : NSLeftMouseUp;
    } else if (event.kind == Kind::MouseMove && (_pressed || _right_pressed)) {
        type = _pressed ? NSLeftMouseDragged : NSRightMouseDragged;
    }
    // While a button is down, events are for the window where it went down.
    NSWindow* window = (_pressed || _right_pressed) && event.kind != Kind::Wheel
                           ? window_with_number(_captured)
                           : window_at(mouse);
    if (event.kind == Kind::MouseDown) {
        if (!_pressed && !_right_pressed) _captured = [window windowNumber];
        pressed = true;
    } else if (event.kind == Kind::MouseUp) {
        pressed = false;
    }
    if (type == NSMouseMoved && event.kind != Kind::Wheel && _moves == 0) return nil;
    const NSPoint location = window ? [window convertScreenToBase:mouse] : mouse;
    const NSUInteger flags = modifier_flags(event.modifiers);
    if (event.kind == Kind::Wheel)
        return [NSEvent scrollEventAt:location
                        modifierFlags:flags
                         windowNumber:[window windowNumber]
                               deltaY:event.lines];
    return [NSEvent mouseEvent:type
                            at:location
                 modifierFlags:flags
                  windowNumber:[window windowNumber]
                    clickCount:event.clicks];
}

} // namespace cocoa
