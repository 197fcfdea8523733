// Fires timers. There is one run loop, that of the main thread; the application's event loop lets
// it run while it waits.
#pragma once

#include <Foundation/NSDate.h>

@class NSTimer;
struct NSRunLoopTimers;

FOUNDATION_EXPORT NSString* const NSDefaultRunLoopMode;
FOUNDATION_EXPORT NSString* const NSRunLoopCommonModes; // every mode

@interface NSRunLoop : NSObject {
  @private
    struct NSRunLoopTimers* _timers;
}
+ (NSRunLoop*)currentRunLoop;
- (void)addTimer:(NSTimer*)timer forMode:(NSString*)mode;
// Fires what is due in the mode; returns the date of the mode's next timer, nil if there is none.
- (NSDate*)limitDateForMode:(NSString*)mode;
@end
