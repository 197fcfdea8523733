// Strings for C callers. A CFStringRef is an NSString*: cast one into the other.
#pragma once

#include <CoreFoundation/CFBase.h>

typedef UInt32 CFStringEncoding;
enum {
    kCFStringEncodingMacRoman = 0,
    kCFStringEncodingISOLatin1 = 0x0201,
    kCFStringEncodingASCII = 0x0600,
    kCFStringEncodingUTF8 = 0x08000100
};

// A string of the zero-ended bytes, owned by the caller. NULL when they are not valid in the
// encoding, the encoding is none of those above, or `bytes` is NULL.
CF_EXPORT CFStringRef CFStringCreateWithCString(CFAllocatorRef allocator, const char* bytes,
                                                CFStringEncoding encoding);
// In UTF-16 units.
CF_EXPORT CFIndex CFStringGetLength(CFStringRef string);
// Writes the string and a final zero. False when it does not fit into `size` bytes or has a
// character that the encoding lacks; the buffer then holds an empty string (if it holds a byte).
CF_EXPORT Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex size,
                                     CFStringEncoding encoding);

// A constant string that is never freed; the text is ASCII.
#define CFSTR(text) __CFStringMakeConstantString("" text "")
CF_EXPORT CFStringRef __CFStringMakeConstantString(const char* text);
