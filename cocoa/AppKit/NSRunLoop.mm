// Dates, timers and the run loop that fires them.
#include <Foundation/Foundation.h>
#include <Foundation/NSRunLoop.h>
#include <Foundation/NSTimer.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <thread>
#include <vector>

NSString* const NSDefaultRunLoopMode = @"kCFRunLoopDefaultMode";
NSString* const NSRunLoopCommonModes = @"kCFRunLoopCommonModes";

// Seconds from 1970 to 2001, the reference date.
static const NSTimeInterval reference_offset = 978307200;

@implementation NSDate
+ (NSTimeInterval)timeIntervalSinceReferenceDate {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count() - reference_offset;
}
+ (id)dateWithTimeIntervalSinceReferenceDate:(NSTimeInterval)seconds {
    NSDate* date = [[[self alloc] init] autorelease];
    date->_seconds = seconds;
    return date;
}
+ (id)date {
    return [self dateWithTimeIntervalSinceReferenceDate:[self timeIntervalSinceReferenceDate]];
}
+ (id)dateWithTimeIntervalSinceNow:(NSTimeInterval)seconds {
    const NSTimeInterval now = [self timeIntervalSinceReferenceDate];
    return [self dateWithTimeIntervalSinceReferenceDate:now + seconds];
}
+ (id)distantPast {
    return [self dateWithTimeIntervalSinceReferenceDate:-63114076800.0];
}
+ (id)distantFuture {
    return [self dateWithTimeIntervalSinceReferenceDate:63113904000.0];
}
- (NSTimeInterval)timeIntervalSinceReferenceDate {
    return _seconds;
}
- (NSTimeInterval)timeIntervalSinceNow {
    return _seconds - [NSDate timeIntervalSinceReferenceDate];
}
@end

@implementation NSTimer
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)interval
                           target:(id)target
                         selector:(SEL)selector
                         userInfo:(id)userInfo
                          repeats:(BOOL)repeats {
    NSTimer* timer = [[[self alloc] init] autorelease];
    timer->_interval = interval > 0.0001 ? interval : 0.0001;
    timer->_fireTime = [NSDate timeIntervalSinceReferenceDate] + timer->_interval;
    timer->_target = [target retain];
    timer->_selector = selector;
    timer->_userInfo = [userInfo retain];
    timer->_repeats = !!repeats;
    timer->_valid = YES;
    return timer;
}

+ (NSTimer*)scheduledTimerWithTimeInterval:(NSTimeInterval)interval
                                    target:(id)target
                                  selector:(SEL)selector
                                  userInfo:(id)userInfo
                                   repeats:(BOOL)repeats {
    NSTimer* timer = [self timerWithTimeInterval:interval
                                          target:target
                                        selector:selector
                                        userInfo:userInfo
                                         repeats:repeats];
    [[NSRunLoop currentRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
    return timer;
}

- (void)dealloc {
    [_target release];
    [_userInfo release];
    [super dealloc];
}

- (void)fire {
    if (!_valid) return;
    [self retain];
    // From now and not from when it was due: a loop that was busy does not catch up in a burst. One
    // that does not repeat is still valid while it fires, but a loop inside must not fire it again.
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
    [_userInfo autorelease];
    _userInfo = nil;
}
- (BOOL)isValid {
    return _valid;
}
- (NSTimeInterval)timeInterval {
    return _repeats ? _interval : 0;
}
- (NSDate*)fireDate {
    return [NSDate dateWithTimeIntervalSinceReferenceDate:_fireTime];
}
- (id)userInfo {
    return _userInfo;
}
@end

struct NSRunLoopTimers {
    struct Entry {
        NSTimer* timer; // retained
        NSString* mode; // retained
    };
    std::vector<Entry> entries;

    void drop_invalid() {
        std::vector<Entry> gone;
        std::erase_if(entries, [&](const Entry& entry) {
            if ([entry.timer isValid]) return false;
            gone.push_back(entry);
            return true;
        });
        for (const Entry& entry : gone) {
            [entry.timer release];
            [entry.mode release];
        }
    }
};

@implementation NSRunLoop
+ (NSRunLoop*)mainRunLoop {
    static NSRunLoop* loop = [[NSRunLoop alloc] init];
    return loop;
}
+ (NSRunLoop*)currentRunLoop {
    return [self mainRunLoop];
}
- (id)init {
    self = [super init];
    if (self) _timers = new NSRunLoopTimers();
    return self;
}
- (void)dealloc {
    for (const auto& entry : _timers->entries) {
        [entry.timer release];
        [entry.mode release];
    }
    delete _timers;
    [super dealloc];
}

- (void)addTimer:(NSTimer*)timer forMode:(NSString*)mode {
    if (!timer || !mode) return;
    for (const auto& entry : _timers->entries)
        if (entry.timer == timer && [entry.mode isEqualToString:mode]) return;
    _timers->entries.push_back({[timer retain], [mode copy]});
}

static bool runs_in(NSString* timerMode, NSString* mode) {
    return [timerMode isEqualToString:NSRunLoopCommonModes] || [timerMode isEqualToString:mode];
}

- (NSDate*)limitDateForMode:(NSString*)mode {
    const NSTimeInterval now = [NSDate timeIntervalSinceReferenceDate];
    std::vector<NSTimer*> due;
    for (const auto& entry : _timers->entries)
        if (runs_in(entry.mode, mode) &&
            [[entry.timer fireDate] timeIntervalSinceReferenceDate] <= now)
            due.push_back([entry.timer retain]);
    for (NSTimer* timer : due) {
        [timer fire];
        [timer release];
    }
    _timers->drop_invalid();
    NSDate* first = nil;
    for (const auto& entry : _timers->entries) {
        NSDate* date = [entry.timer fireDate];
        if (runs_in(entry.mode, mode) && (!first || [date timeIntervalSinceReferenceDate] <
                                                        [first timeIntervalSinceReferenceDate]))
            first = date;
    }
    return first;
}

- (BOOL)runMode:(NSString*)mode beforeDate:(NSDate*)date {
    NSDate* next = [self limitDateForMode:mode];
    if (!next) return NO;
    const NSTimeInterval seconds =
        std::min([next timeIntervalSinceNow], [date timeIntervalSinceNow]);
    if (seconds > 0) std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    [self limitDateForMode:mode];
    return YES;
}

- (void)runUntilDate:(NSDate*)date {
    while ([date timeIntervalSinceNow] > 0) {
        NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
        if (![self runMode:NSDefaultRunLoopMode beforeDate:date]) {
            const NSTimeInterval rest = [date timeIntervalSinceNow];
            if (rest > 0) std::this_thread::sleep_for(std::chrono::duration<double>(rest));
        }
        [pool drain];
    }
}
@end
