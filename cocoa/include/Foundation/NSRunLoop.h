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
+ (NSRunLoop*)mainRunLoop;
- (void)addTimer:(NSTimer*)timer forMode:(NSString*)mode;
// Fires what is due in the mode; the date of the next timer of the mode, nil if there is none.
- (NSDate*)limitDateForMode:(NSString*)mode;
// Waits for the first timer of the mode, until the date at most, and fires it. NO, at once, when
// the mode has no timer.
- (BOOL)runMode:(NSString*)mode beforeDate:(NSDate*)date;
// Fires timers of the default mode until the date.
- (void)runUntilDate:(NSDate*)date;
@end
