#include <Foundation/NSRunLoop.h>

#include <Foundation/NSString.h>
#include <Foundation/NSTimer.h>

#include <vector>

NSString* const NSDefaultRunLoopMode = @"kCFRunLoopDefaultMode";
NSString* const NSRunLoopCommonModes = @"kCFRunLoopCommonModes";

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
+ (NSRunLoop*)currentRunLoop {
    static NSRunLoop* loop = [[NSRunLoop alloc] init];
    return loop;
}
- (id)init {
    self = [super init];
    if (self) _timers = new NSRunLoopTimers();
    return self;
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
@end
