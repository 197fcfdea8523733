// What the user did: a mouse button, a movement, the wheel or a key. Locations are in the window's
// base coordinates: points from the lower left corner of its frame, y upwards.
#pragma once

#include <Foundation/Foundation.h>

@class NSGraphicsContext, NSWindow;

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
    NSAlphaShiftKeyMask = 1 << 16,
    NSShiftKeyMask = 1 << 17,
    NSControlKeyMask = 1 << 18,
    NSAlternateKeyMask = 1 << 19,
    NSCommandKeyMask = 1 << 20,
    NSNumericPadKeyMask = 1 << 21,
    NSFunctionKeyMask = 1 << 23
};

// Characters of keys that write none.
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
    NSTimeInterval _timestamp;
    NSInteger _windowNumber;
    NSInteger _eventNumber;
    NSInteger _clickCount;
    float _pressure;
    NSString* _characters;
    NSString* _charactersIgnoringModifiers;
    BOOL _repeat;
    unsigned short _keyCode;
    short _subtype;
    NSInteger _data1;
    NSInteger _data2;
    CGFloat _deltaX;
    CGFloat _deltaY;
}
+ (NSEvent*)mouseEventWithType:(NSEventType)type
                      location:(NSPoint)location
                 modifierFlags:(NSUInteger)flags
                     timestamp:(NSTimeInterval)time
                  windowNumber:(NSInteger)window
                       context:(NSGraphicsContext*)context
                   eventNumber:(NSInteger)number
                    clickCount:(NSInteger)clicks
                      pressure:(float)pressure;
+ (NSEvent*)keyEventWithType:(NSEventType)type
                       location:(NSPoint)location
                  modifierFlags:(NSUInteger)flags
                      timestamp:(NSTimeInterval)time
                   windowNumber:(NSInteger)window
                        context:(NSGraphicsContext*)context
                     characters:(NSString*)characters
    charactersIgnoringModifiers:(NSString*)unmodified
                      isARepeat:(BOOL)repeat
                        keyCode:(unsigned short)code;
+ (NSEvent*)otherEventWithType:(NSEventType)type
                      location:(NSPoint)location
                 modifierFlags:(NSUInteger)flags
                     timestamp:(NSTimeInterval)time
                  windowNumber:(NSInteger)window
                       context:(NSGraphicsContext*)context
                       subtype:(short)subtype
                         data1:(NSInteger)data1
                         data2:(NSInteger)data2;

// Where the pointer is, in screen coordinates.
+ (NSPoint)mouseLocation;

- (NSEventType)type;
- (NSUInteger)modifierFlags;
- (NSTimeInterval)timestamp;
- (NSInteger)windowNumber;
- (NSWindow*)window; // nil when there is no such window (any more)
- (NSPoint)locationInWindow;

// Mouse events.
- (NSInteger)eventNumber;
- (NSInteger)clickCount;
- (float)pressure;

// Key events.
- (NSString*)characters;
- (NSString*)charactersIgnoringModifiers;
- (BOOL)isARepeat;
- (unsigned short)keyCode;

// Scroll events: lines; positive deltaY moves the contents down, as the wheel turned away does.
- (CGFloat)deltaX;
- (CGFloat)deltaY;

// Application-defined events.
- (short)subtype;
- (NSInteger)data1;
- (NSInteger)data2;
@end
