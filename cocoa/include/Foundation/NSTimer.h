// A message that is sent after a while, once or again and again, by the run loop. The run loop
// retains the timer, the timer its target, until it is invalidated or has fired its only time.
#pragma once

#include <Foundation/NSDate.h>

@interface NSTimer : NSObject {
  @private
    NSTimeInterval _fireTime; // as of the reference date
    NSTimeInterval _interval;
    id _target;
    SEL _selector;
    id _userInfo;
    BOOL _repeats;
    BOOL _valid;
}
// An interval that is not above 0.0001 s counts as that. The selector takes the timer.
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                           target:(id)target
                         selector:(SEL)selector
                         userInfo:(id)userInfo
                          repeats:(BOOL)repeats;
// Also adds it to the current run loop in the default mode.
+ (NSTimer*)scheduledTimerWithTimeInterval:(NSTimeInterval)interval
                                    target:(id)target
                                  selector:(SEL)selector
                                  userInfo:(id)userInfo
                                   repeats:(BOOL)repeats;
- (void)fire; // now; a timer that does not repeat is invalid afterwards
- (void)invalidate;
- (BOOL)isValid;
- (NSTimeInterval)timeInterval; // 0 for one that does not repeat
- (NSDate*)fireDate;
- (id)userInfo;
@end
