#include <Foundation/NSDate.h>

#include <chrono>

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
@end
