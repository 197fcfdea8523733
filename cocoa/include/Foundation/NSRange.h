// A location and a length, in units of whatever is being counted.
#pragma once

#include <Foundation/NSObjCRuntime.h>

typedef struct _NSRange {
    NSUInteger location;
    NSUInteger length;
} NSRange;

NS_INLINE NSRange NSMakeRange(NSUInteger location, NSUInteger length) {
    NSRange range = {location, length};
    return range;
}
NS_INLINE NSUInteger NSMaxRange(NSRange range) {
    return range.location + range.length;
}
NS_INLINE BOOL NSLocationInRange(NSUInteger location, NSRange range) {
    return location >= range.location && location - range.location < range.length;
}
NS_INLINE BOOL NSEqualRanges(NSRange a, NSRange b) {
    return a.location == b.location && a.length == b.length;
}
