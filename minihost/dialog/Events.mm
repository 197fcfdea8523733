#include "minihost/dialog/Events.h"

#include "minihost/dialog/AutoreleasePool.h"
#include "minihost/dialog/Controls.h"

#include <AppKit/NSDisplayStandIn.h>
#include <Cocoa/Cocoa.h>

namespace minihost {

namespace {

NSUInteger flags(unsigned modifiers) {
    NSUInteger mask = 0;
    if (modifiers & ShiftKey) mask |= NSShiftKeyMask;
    if (modifiers & ControlKey) mask |= NSControlKeyMask;
    if (modifiers & OptionKey) mask |= NSAlternateKeyMask;
    if (modifiers & CommandKey) mask |= NSCommandKeyMask;
    return mask;
}

NSPoint location_in(NSView* root, const RawEvent& event) {
    const NSRect bounds = [root bounds];
    const double y = [root isFlipped] ? NSMinY(bounds) + event.y : NSMaxY(bounds) - event.y;
    return NSMakePoint(NSMinX(bounds) + event.x, y);
}

void type(const std::string& utf8) {
    NSString* text = [NSString stringWithUTF8String:utf8.c_str()];
    if (!text) throw ControlError("the text is not valid UTF-8");
    NSPostText(text);
}

} // namespace

void EventPoster::post(NSView* root, const RawEvent& event) {
    const AutoreleasePool pool;
    using Kind = RawEvent::Kind;
    if (event.kind == Kind::Text) {
        type(event.text);
    } else if (event.kind == Kind::Key) {
        NSPostKey(event.key, flags(event.modifiers));
    } else if (!root) {
        return;
    } else if (event.kind == Kind::Wheel) {
        NSPostScroll(root, location_in(root, event), event.dx, event.dy);
    } else {
        NSEventType type = NSMouseMoved;
        if (event.kind == Kind::MouseMove) {
            if (_left_is_down)
                type = NSLeftMouseDragged;
            else if (_right_is_down)
                type = NSRightMouseDragged;
        } else {
            const bool down = event.kind == Kind::MouseDown;
            (event.right_button ? _right_is_down : _left_is_down) = down;
            if (event.right_button)
                type = down ? NSRightMouseDown : NSRightMouseUp;
            else
                type = down ? NSLeftMouseDown : NSLeftMouseUp;
        }
        NSPostMouse([root window], type, [root convertPoint:location_in(root, event) toView:nil],
                    event.clicks, flags(event.modifiers));
    }
    _has_queued = true;
}

void EventPoster::settle() {
    if (!_has_queued) return;
    _has_queued = _left_is_down = _right_is_down = false;
    const AutoreleasePool pool;
    NSDispatchEvents();
}

} // namespace minihost
