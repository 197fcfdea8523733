// Makes events, and locates them on the screen.
#pragma once

#include <AppKit/NSEvent.h>

@interface NSEvent (Private)
+ (NSEvent*)mouseEvent:(NSEventType)type
                    at:(NSPoint)location
         modifierFlags:(NSUInteger)flags
          windowNumber:(NSInteger)window
            clickCount:(NSInteger)clicks;
+ (NSEvent*)scrollEventAt:(NSPoint)location
            modifierFlags:(NSUInteger)flags
             windowNumber:(NSInteger)window
                   deltaY:(CGFloat)deltaY;
+ (NSEvent*)keyEvent:(NSEventType)type
          characters:(NSString*)characters
       modifierFlags:(NSUInteger)flags
        windowNumber:(NSInteger)window;
// Of type NSApplicationDefined.
+ (NSEvent*)applicationEvent:(short)subtype;
- (NSPoint)locationOnScreen;
@end

namespace cocoa {

// The subtype of the application event that stands for the user's wish to quit. A nested event loop
// that takes it ends and posts it again, for the application.
constexpr short quit_subtype = 0x7175;

} // namespace cocoa
