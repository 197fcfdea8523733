// What the user did: a mouse button, a movement, the wheel or a key. Locations are in the window's
// base coordinates: points from the lower left corner of its frame, y upwards.
#pragma once

#include <Foundation/Foundation.h>

@class NSWindow;

enum {
    NSLeftMouseDown = 1,
    NSLeftMouseUp = 2,
    NSRightMouseDown = 3,
    NSRightMouseUp = 4,
    NSMouseMoved = 5,
    NSLeftMouseDragged = 6,
    NSRightMouseDragged = 7,
    NSKeyDown = 10,
    NSKeyUp = 11,
    NSApplicationDefined = 15,
    NSScrollWheel = 22
};
typedef NSUInteger NSEventType;

enum {
    NSLeftMouseDownMask = 1 << NSLeftMouseDown,
    NSLeftMouseUpMask = 1 << NSLeftMouseUp,
    NSRightMouseDownMask = 1 << NSRightMouseDown,
    NSRightMouseUpMask = 1 << NSRightMouseUp,
    NSMouseMovedMask = 1 << NSMouseMoved,
    NSLeftMouseDraggedMask = 1 << NSLeftMouseDragged,
    NSRightMouseDraggedMask = 1 << NSRightMouseDragged,
    NSKeyDownMask = 1 << NSKeyDown,
    NSKeyUpMask = 1 << NSKeyUp,
    NSApplicationDefinedMask = 1 << NSApplicationDefined,
    NSScrollWheelMask = 1 << NSScrollWheel
};
static const NSUInteger NSAnyEventMask = (NSUInteger)-1;

enum {
    NSShiftKeyMask = 1 << 17,
    NSControlKeyMask = 1 << 18,
    NSAlternateKeyMask = 1 << 19,
    NSCommandKeyMask = 1 << 20
};

// Characters that stand for keys that type none.
enum : unsigned short {
    NSEnterCharacter = 0x0003,
    NSTabCharacter = 0x0009,
    NSCarriageReturnCharacter = 0x000d,
    NSBackTabCharacter = 0x0019,
    NSEscapeCharacter = 0x001b,
    NSDeleteCharacter = 0x007f,
    NSUpArrowFunctionKey = 0xF700,
    NSDownArrowFunctionKey = 0xF701,
    NSLeftArrowFunctionKey = 0xF702,
    NSRightArrowFunctionKey = 0xF703,
    NSF1FunctionKey = 0xF704,
    NSF10FunctionKey = 0xF70D,
    NSDeleteFunctionKey = 0xF728,
    NSHomeFunctionKey = 0xF729,
    NSEndFunctionKey = 0xF72B,
    NSPageUpFunctionKey = 0xF72C,
    NSPageDownFunctionKey = 0xF72D
};

@interface NSEvent : NSObject {
  @private
    NSEventType _type;
    NSPoint _location;
    NSUInteger _modifierFlags;
    NSInteger _windowNumber;
    NSInteger _clickCount;
    NSString* _characters;
    short _subtype;
    CGFloat _deltaY;
}
- (NSEventType)type;
- (NSUInteger)modifierFlags;
- (NSWindow*)window; // nil if there is none or it was freed
- (NSPoint)locationInWindow;

// Mouse events.
- (NSInteger)clickCount;

// Key events.
- (NSString*)characters;
- (NSString*)charactersIgnoringModifiers; // the same: displays report them so

// Scroll events: lines; positive is the wheel turned away, which moves the contents down.
- (CGFloat)deltaY;

// Application-defined events.
- (short)subtype;
@end
