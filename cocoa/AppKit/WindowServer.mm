#include "WindowServer.h"

#include "display/HeadlessDisplay.h"
#include "Internal.h"

#include <algorithm>

namespace cocoa {

WindowServer& WindowServer::shared() {
    // Never destroyed: windows may be freed as late as the process ends.
    static WindowServer* server = new WindowServer();
    return *server;
}

WindowServer::WindowServer()
    : display_(std::make_unique<HeadlessDisplay>(ScreenSize{1440, 900}, 1)) {}

void WindowServer::set_display(std::unique_ptr<Display> display) {
    display_ = std::move(display);
    pressed_ = right_pressed_ = false;
    screen_changed();
}

NSSize WindowServer::screen_size() const {
    const ScreenSize size = display_->size();
    return NSMakeSize(size.width, size.height);
}

NSInteger WindowServer::add(NSWindow* window) {
    all_.push_back(window);
    return next_number_++;
}

void WindowServer::remove(NSWindow* window) {
    order_out(window);
    std::erase(all_, window);
}

NSWindow* WindowServer::window_with_number(NSInteger number) const {
    for (NSWindow* window : all_)
        if ([window windowNumber] == number) return window;
    return nil;
}

NSWindow* WindowServer::window_at(NSPoint screen) const {
    for (NSWindow* window : ordered_)
        if (NSMouseInRect(screen, [window frame], NO)) return window;
    return nil;
}

void WindowServer::order_front(NSWindow* window) {
    std::erase(ordered_, window);
    auto place = ordered_.begin();
    while (place != ordered_.end() && [*place level] > [window level]) ++place;
    ordered_.insert(place, window);
    stale_ = true;
}

void WindowServer::order_back(NSWindow* window) {
    std::erase(ordered_, window);
    auto place = ordered_.begin();
    while (place != ordered_.end() && [*place level] >= [window level]) ++place;
    ordered_.insert(place, window);
    stale_ = true;
}

void WindowServer::order_out(NSWindow* window) {
    std::erase(ordered_, window);
    stale_ = true;
}

void WindowServer::screen_changed() {
    stale_ = true;
    shown_.clear();
    const std::vector<NSWindow*> windows = all_;
    for (NSWindow* window : windows)
        if (std::find(all_.begin(), all_.end(), window) != all_.end()) [window screenDidChange];
}

static NSUInteger modifier_flags(unsigned modifiers) {
    NSUInteger flags = 0;
    if (modifiers & shift) flags |= NSShiftKeyMask;
    if (modifiers & control) flags |= NSControlKeyMask;
    if (modifiers & option) flags |= NSAlternateKeyMask;
    if (modifiers & command) flags |= NSCommandKeyMask;
    if (modifiers & caps_lock) flags |= NSAlphaShiftKeyMask;
    return flags;
}

NSEvent* WindowServer::translate(const DisplayEvent& event) {
    using Kind = DisplayEvent::Kind;
    switch (event.kind) {
    case Kind::key_down:
    case Kind::key_up:
        return translate_key(event);
    case Kind::resized:
        screen_changed();
        return nil;
    case Kind::quit:
        return [NSEvent otherEventWithType:NSApplicationDefined
                                  location:NSZeroPoint
                             modifierFlags:0
                                 timestamp:[NSDate timeIntervalSinceReferenceDate]
                              windowNumber:0
                                   context:nil
                                   subtype:quit_subtype
                                     data1:0
                                     data2:0];
    default:
        return translate_mouse(event);
    }
}

NSEvent* WindowServer::translate_key(const DisplayEvent& event) {
    NSString* characters = [NSString stringWithUTF8String:event.characters.c_str()];
    NSString* unmodified = [NSString stringWithUTF8String:event.characters_unmodified.c_str()];
    if (![characters length]) return nil;
    return
        [NSEvent keyEventWithType:event.kind == DisplayEvent::Kind::key_down ? NSKeyDown : NSKeyUp
                               location:NSZeroPoint
                          modifierFlags:modifier_flags(event.modifiers)
                              timestamp:[NSDate timeIntervalSinceReferenceDate]
                           windowNumber:[[NSApp keyWindow] windowNumber]
                                context:nil
                             characters:characters
            charactersIgnoringModifiers:[unmodified length] ? unmodified : characters
                              isARepeat:event.repeat
                                keyCode:event.key_code];
}

NSEvent* WindowServer::translate_mouse(const DisplayEvent& event) {
    using Kind = DisplayEvent::Kind;
    mouse_ = NSMakePoint(event.x, display_->size().height - event.y);
    NSEventType type = NSMouseMoved;
    bool& pressed = event.right_button ? right_pressed_ : pressed_;
    if (event.kind == Kind::mouse_down) {
        type = event.right_button ? NSRightMouseDown : NSLeftMouseDown;
    } else if (event.kind == Kind::mouse_up) {
        if (!pressed) return nil;
        type = event.right_button ? NSRightMouseUp : NSLeftMouseUp;
    } else if (event.kind == Kind::mouse_move && (pressed_ || right_pressed_)) {
        type = pressed_ ? NSLeftMouseDragged : NSRightMouseDragged;
    }
    // From its button's down to its up the mouse belongs to the window where it went down.
    NSWindow* window = (pressed_ || right_pressed_) && event.kind != Kind::wheel
                           ? window_with_number(captured_)
                           : window_at(mouse_);
    if (event.kind == Kind::mouse_down) {
        if (!pressed_ && !right_pressed_) captured_ = [window windowNumber];
        pressed = true;
    } else if (event.kind == Kind::mouse_up) {
        pressed = false;
    }
    if (type == NSMouseMoved && event.kind != Kind::wheel && moves_ == 0 &&
        ![window acceptsMouseMovedEvents])
        return nil;
    const NSPoint location = window ? [window convertScreenToBase:mouse_] : mouse_;
    const NSUInteger flags = modifier_flags(event.modifiers);
    if (event.kind == Kind::wheel)
        return [NSEvent scrollEventAt:location
                        modifierFlags:flags
                         windowNumber:[window windowNumber]
                               deltaX:event.dx
                               deltaY:event.dy];
    return [NSEvent mouseEventWithType:type
                              location:location
                         modifierFlags:flags
                             timestamp:[NSDate timeIntervalSinceReferenceDate]
                          windowNumber:[window windowNumber]
                               context:nil
                           eventNumber:next_event_++
                            clickCount:event.clicks
                              pressure:pressed_ ? 1.0f : 0.0f];
}

} // namespace cocoa
