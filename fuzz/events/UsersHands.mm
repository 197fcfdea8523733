#include "fuzz/events/UsersHands.h"

#include <algorithm>
#include <AppKit/NSDisplayStandIn.h>
#include <Cocoa/Cocoa.h>

namespace {

const unichar keys[] = {
    NSTabCharacter,
    NSBackTabCharacter,
    NSCarriageReturnCharacter,
    NSEnterCharacter,
    NSEscapeCharacter,
    ' ',
    NSDeleteCharacter,
    NSUpArrowFunctionKey,
    NSDownArrowFunctionKey,
    NSLeftArrowFunctionKey,
    NSRightArrowFunctionKey,
    NSHomeFunctionKey,
    NSEndFunctionKey,
    NSDeleteFunctionKey,
    NSPageUpFunctionKey,
    NSF1FunctionKey,
    'a',
    'c',
    'v',
    'x',
    'z',
    '7',
    '-',
    0xd83d,
};
NSString* const texts[] = {@"",  @"0",     @"-1", @"360",  @"1e9",  @"0.5", @"nan",
                           @"x", @"1e309", @"ü",  @"12 3", @"a\tb", @"7\r", @"😀"};
const NSUInteger modifiers[] = {0, 0, 0, NSShiftKeyMask, NSCommandKeyMask, NSAlternateKeyMask};

template <typename Item, std::size_t count>
const Item& any(fuzz::Bytes& bytes, const Item (&items)[count]) {
    return items[bytes.take<std::uint8_t>() % count];
}

// A little around the rectangle, too.
NSPoint place(fuzz::Bytes& bytes, NSRect r) {
    const int width = std::max(static_cast<int>(NSWidth(r)), 0); // some rectangles are inside out
    const int height = std::max(static_cast<int>(NSHeight(r)), 0);
    const double x = bytes.integer(-10, width + 10), y = bytes.integer(-10, height + 10);
    return NSMakePoint(NSMinX(r) + x, NSMinY(r) + y);
}

// Hands that aim at a control find one more often.
NSView* some_view(fuzz::Bytes& bytes, NSView* view) {
    for (auto depth = bytes.take<std::uint8_t>(); depth % 4 && [[view subviews] count]; depth /= 4)
        view = [[view subviews] objectAtIndex:bytes.take<std::uint8_t>() % [[view subviews] count]];
    return view;
}

void use(fuzz::Bytes& bytes, NSView* view) {
    const auto anywhere = [&] { return place(bytes, [view bounds]); };
    switch (bytes.take<std::uint8_t>() % 10) {
    default: {
        const NSPoint at = anywhere();
        NSPostClick(view, at, bytes.integer(1, 3), any(bytes, modifiers));
        break;
    }
    case 1: {
        const NSPoint from = anywhere();
        NSPostDrag(view, from, anywhere());
        break;
    }
    case 2: {
        const NSPoint at = anywhere();
        const double by = bytes.integer(-9, 9);
        NSPostScroll(view, at, bytes.integer(-9, 9), by);
        break;
    }
    case 3:
    case 4: {
        const unichar key = any(bytes, keys);
        NSPostKey(key, any(bytes, modifiers));
        break;
    }
    case 5:
        NSPostText(any(bytes, texts));
        break;
    case 6: { // half a click, or what other buttons do
        const auto type = static_cast<NSEventType>(bytes.integer(1, 7));
        const NSPoint at = anywhere();
        NSPostMouse([view window], type, at, bytes.integer(0, 3), any(bytes, modifiers));
        break;
    }
    case 7: {
        const auto type = any(bytes, {NSLeftMouseDown, NSLeftMouseUp, NSMouseMoved});
        NSPostScreenMouse(type, place(bytes, [[view window] frame]));
        break;
    }
    }
}

} // namespace

void fuzz::use_hands(Bytes& bytes) {
    NSArray* windows = [[NSApplication sharedApplication] windows];
    if ([windows count] == 0) return;
    NSWindow* window = [windows objectAtIndex:bytes.take<std::uint8_t>() % [windows count]];
    const auto how = bytes.take<std::uint8_t>();
    if (how % 8 == 7)
        NSSetNextAlertAnswer(1 + how % 3);
    else
        use(bytes, some_view(bytes, [window contentView]));
    if (how < 224) let_go();
}

void fuzz::let_go() {
    NSDispatchEvents();
}
