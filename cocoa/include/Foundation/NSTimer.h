// A message that the run loop sends after a while, once or repeatedly. The run loop retains the
// timer and the timer its target until the timer is invalidated or, if it does not repeat, has
// fired.
#pragma once

#include <Foundation/NSDate.h>

@interface NSTimer : NSObject {
  @private
    NSTimeInterval _fireTime; // since the reference date
    NSTimeInterval _interval;
    id _target;
    SEL _selector;
    BOOL _repeats;
    BOOL _valid;
}
// An interval below 0.0001 s counts as that. The selector takes the timer. The user info is
// ignored.
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                           target:(id)target
                         selector:(SEL)selector
                         userInfo:(id)userInfo
                          repeats:(BOOL)repeats;
- (void)fire; // now; a timer that does not repeat is invalid afterwards
- (void)invalidate;
- (BOOL)isValid;
- (NSDate*)fireDate;
@end
