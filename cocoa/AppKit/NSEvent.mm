#include "NSEventPrivate.h"

#include "WindowServer.h"

#include <AppKit/NSWindow.h>

@implementation NSEvent
static NSEvent* make(NSEventType type, NSPoint location, NSUInteger flags, NSInteger window) {
    NSEvent* event = [[[NSEvent alloc] init] autorelease];
    event->_type = type;
    event->_location = location;
    event->_modifierFlags = flags;
    event->_windowNumber = window;
    return event;
}

+ (NSEvent*)mouseEvent:(NSEventType)type
                    at:(NSPoint)location
         modifierFlags:(NSUInteger)flags
          windowNumber:(NSInteger)window
            clickCount:(NSInteger)clicks {
    NSEvent* event = make(type, location, flags, window);
    event->_clickCount = clicks;
    return event;
}

+ (NSEvent*)scrollEventAt:(NSPoint)location
            modifierFlags:(NSUInteger)flags
             windowNumber:(NSInteger)window
                   deltaY:(CGFloat)deltaY {
    NSEvent* event = make(NSScrollWheel, location, flags, window);
    event->_deltaY = deltaY;
    return event;
}

+ (NSEvent*)keyEvent:(NSEventType)type
          characters:(NSString*)characters
       modifierFlags:(NSUInteger)flags
        windowNumber:(NSInteger)window {
    NSEvent* event = make(type, NSZeroPoint, flags, window);
    event->_characters = [characters copy];
    return event;
}

+ (NSEvent*)applicationEvent:(short)subtype {
    NSEvent* event = make(NSApplicationDefined, NSZeroPoint, 0, 0);
    event->_subtype = subtype;
    return event;
}

- (void)dealloc {
    [_characters release];
    [super dealloc];
}

- (NSEventType)type {
    return _type;
}
- (NSUInteger)modifierFlags {
    return _modifierFlags;
}
- (NSWindow*)window {
    return cocoa::WindowServer::shared().window_with_number(_windowNumber);
}
- (NSPoint)locationInWindow {
    return _location;
}
- (NSPoint)locationOnScreen {
    NSWindow* window = [self window];
    return window ? [window convertBaseToScreen:_location] : _location;
}
- (NSInteger)clickCount {
    return _clickCount;
}
- (NSString*)characters {
    return _characters;
}
- (NSString*)charactersIgnoringModifiers {
    return _characters;
}
- (CGFloat)deltaY {
    return _deltaY;
}
- (short)subtype {
    return _subtype;
}
@end
