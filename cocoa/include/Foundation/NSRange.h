// A location and a length.
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
