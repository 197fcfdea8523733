#include <Foundation/NSTimer.h>

#include <limits>

@implementation NSTimer
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                           target:(id)target
                         selector:(SEL)selector
                         userInfo:(id)__attribute__((unused))userInfo
                          repeats:(BOOL)repeats {
    NSTimer* timer = [[[self alloc] init] autorelease];
    timer->_interval = interval > 0.0001 ? interval : 0.0001;
    timer->_fireTime = [NSDate timeIntervalSinceReferenceDate] + timer->_interval;
    timer->_target = [target retain];
    timer->_selector = selector;
    timer->_repeats = !!repeats;
    timer->_valid = YES;
    return timer;
}

- (void)dealloc {
    [_target release];
    [super dealloc];
}

- (void)fire {
    if (!_valid) return;
    [self retain];
    // Counted from now, not from when it was due: after a long wait it does not catch up in a
    // burst. One that does not repeat is valid while it fires, but a nested loop must not fire it
    // again.
    _fireTime = _repeats ? [NSDate timeIntervalSinceReferenceDate] + _interval
                         : std::numeric_limits<double>::infinity();
    id target = [_target retain];
    [target performSelector:_selector withObject:self];
    [target release];
    if (!_repeats) [self invalidate];
    [self release];
}

- (void)invalidate {
    if (!_valid) return;
    _valid = NO;
    id target = _target;
    _target = nil;
    [target autorelease];
}
- (BOOL)isValid {
    return _valid;
}
- (NSDate*)fireDate {
    return [NSDate dateWithTimeIntervalSinceReferenceDate:_fireTime];
}
@end
