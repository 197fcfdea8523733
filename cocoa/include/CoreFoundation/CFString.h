// Strings for C callers. A CFStringRef is an NSString*: cast one into the other.
#pragma once

#include <CoreFoundation/CFBase.h>

typedef UInt32 CFStringEncoding;
enum { kCFStringEncodingMacRoman = 0 };

// A string of the zero-terminated bytes, owned by the caller. NULL for any encoding but Mac Roman,
// and when `bytes` is NULL. The allocator is ignored.
CF_EXPORT CFStringRef CFStringCreateWithCString(CFAllocatorRef allocator, const char* bytes,
                                                CFStringEncoding encoding);
// Writes the string and a terminating zero. False when it does not fit into `size` bytes or has a
// character that is not in the encoding; the buffer, if size > 0, then holds an empty string.
CF_EXPORT Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size,
                                     CFStringEncoding encoding);
