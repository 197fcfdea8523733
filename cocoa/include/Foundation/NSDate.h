// Moments of time, to the precision of the system's clock.
#pragma once

#include <Foundation/NSObject.h>

typedef double NSTimeInterval; // seconds

@interface NSDate : NSObject {
  @private
    NSTimeInterval _seconds; // since the start of 2001, UTC
}
+ (id)dateWithTimeIntervalSinceNow:(NSTimeInterval)seconds;
+ (id)dateWithTimeIntervalSinceReferenceDate:(NSTimeInterval)seconds;
+ (id)distantPast;
+ (id)distantFuture;
+ (NSTimeInterval)timeIntervalSinceReferenceDate;
- (NSTimeInterval)timeIntervalSinceReferenceDate;
@end
