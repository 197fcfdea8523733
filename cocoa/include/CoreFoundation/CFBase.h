// Types of Core Foundation, and CFRelease. Every reference is an Objective-C object underneath.
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define CF_EXPORT extern "C" __attribute__((visibility("default")))
#else
#define CF_EXPORT extern __attribute__((visibility("default")))
#endif

typedef unsigned char Boolean;
typedef uint32_t UInt32;
typedef long CFIndex;
typedef const void* CFTypeRef;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFAllocator* CFAllocatorRef;

// NULL is not allowed and aborts, as on the platform.
CF_EXPORT void CFRelease(CFTypeRef object);
