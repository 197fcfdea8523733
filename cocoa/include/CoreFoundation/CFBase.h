// Types of Core Foundation and the counting of references. Every reference type is an Objective-C
// object underneath: CFRetain and CFRelease are retain and release.
#pragma once

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define CF_EXPORT extern "C" __attribute__((visibility("default")))
#else
#define CF_EXPORT extern __attribute__((visibility("default")))
#endif

typedef unsigned char Boolean;
typedef uint8_t UInt8;
typedef uint16_t UInt16;
typedef uint32_t UInt32;
typedef int8_t SInt8;
typedef int16_t SInt16;
typedef int32_t SInt32;
typedef UInt16 UniChar;

typedef long CFIndex;
typedef unsigned long CFHashCode;
typedef const void* CFTypeRef;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFAllocator* CFAllocatorRef;

// The only allocator.
CF_EXPORT const CFAllocatorRef kCFAllocatorDefault;

// NULL is not allowed and aborts, as on the platform.
CF_EXPORT CFTypeRef CFRetain(CFTypeRef object);
CF_EXPORT void CFRelease(CFTypeRef object);
CF_EXPORT CFIndex CFGetRetainCount(CFTypeRef object);
CF_EXPORT Boolean CFEqual(CFTypeRef a, CFTypeRef b);
