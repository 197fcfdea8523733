#include <AppKit/NSEvent.h>

#include "Internal.h"
#include "WindowServer.h"

@implementation NSEvent
- (id)initWithType:(NSEventType)type
          location:(NSPoint)location
             flags:(NSUInteger)flags
              time:(NSTimeInterval)time
            window:(NSInteger)window {
    self = [super init];
    if (!self) return nil;
    _type = type;
    _location = location;
    _modifierFlags = flags;
    _timestamp = time;
    _windowNumber = window;
    return self;
}

+ (NSEvent*)mouseEventWithType:(NSEventType)type
                      location:(NSPoint)location
                 modifierFlags:(NSUInteger)flags
                     timestamp:(NSTimeInterval)time
                  windowNumber:(NSInteger)window
                       context:(NSGraphicsContext*)__attribute__((unused))context
                   eventNumber:(NSInteger)number
                    clickCount:(NSInteger)clicks
                      pressure:(float)pressure {
    NSEvent* event = [[NSEvent alloc] initWithType:type
                                          location:location
                                             flags:flags
                                              time:time
                                            window:window];
    event->_eventNumber = number;
    event->_clickCount = clicks;
    event->_pressure = pressure;
    return [event autorelease];
}

+ (NSEvent*)keyEventWithType:(NSEventType)type
                       location:(NSPoint)location
                  modifierFlags:(NSUInteger)flags
                      timestamp:(NSTimeInterval)time
                   windowNumber:(NSInteger)window
                        context:(NSGraphicsContext*)__attribute__((unused))context
                     characters:(NSString*)characters
    charactersIgnoringModifiers:(NSString*)unmodified
                      isARepeat:(BOOL)repeat
                        keyCode:(unsigned short)code {
    NSEvent* event = [[NSEvent alloc] initWithType:type
                                          location:location
                                             flags:flags
                                              time:time
                                            window:window];
    event->_characters = [characters copy];
    event->_charactersIgnoringModifiers = [unmodified copy];
    event->_repeat = repeat;
    event->_keyCode = code;
    return [event autorelease];
}

+ (NSEvent*)otherEventWithType:(NSEventType)type
                      location:(NSPoint)location
                 modifierFlags:(NSUInteger)flags
                     timestamp:(NSTimeInterval)time
                  windowNumber:(NSInteger)window
                       context:(NSGraphicsContext*)__attribute__((unused))context
                       subtype:(short)subtype
                         data1:(NSInteger)data1
                         data2:(NSInteger)data2 {
    NSEvent* event = [[NSEvent alloc] initWithType:type
                                          location:location
                                             flags:flags
                                              time:time
                                            window:window];
    event->_subtype = subtype;
    event->_data1 = data1;
    event->_data2 = data2;
    return [event autorelease];
}

+ (NSEvent*)scrollEventAt:(NSPoint)location
            modifierFlags:(NSUInteger)flags
             windowNumber:(NSInteger)window
                   deltaX:(CGFloat)dx
                   deltaY:(CGFloat)dy {
    NSEvent* event = [[NSEvent alloc] initWithType:NSScrollWheel
                                          location:location
                                             flags:flags
                                              time:[NSDate timeIntervalSinceReferenceDate]
                                            window:window];
    event->_deltaX = dx;
    event->_deltaY = dy;
    return [event autorelease];
}

- (void)dealloc {
    [_characters release];
    [_charactersIgnoringModifiers release];
    [super dealloc];
}

+ (NSPoint)mouseLocation {
    return cocoa::WindowServer::shared().mouse_location();
}
- (NSEventType)type {
    return _type;
}
- (NSUInteger)modifierFlags {
    return _modifierFlags;
}
- (NSTimeInterval)timestamp {
    return _timestamp;
}
- (NSInteger)windowNumber {
    return _windowNumber;
}
- (NSWindow*)window {
    return cocoa::WindowServer::shared().window_with_number(_windowNumber);
}
- (NSPoint)locationInWindow {
    return _location;
}
- (NSInteger)eventNumber {
    return _eventNumber;
}
- (NSInteger)clickCount {
    return _clickCount;
}
- (float)pressure {
    return _pressure;
}
- (NSString*)characters {
    return _characters;
}
- (NSString*)charactersIgnoringModifiers {
    return _charactersIgnoringModifiers;
}
- (BOOL)isARepeat {
    return _repeat;
}
- (unsigned short)keyCode {
    return _keyCode;
}
- (CGFloat)deltaX {
    return _deltaX;
}
- (CGFloat)deltaY {
    return _deltaY;
}
- (short)subtype {
    return _subtype;
}
- (NSInteger)data1 {
    return _data1;
}
- (NSInteger)data2 {
    return _data2;
}
@end
