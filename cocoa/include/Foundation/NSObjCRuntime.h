// The integer types of Foundation, the names of classes and selectors as strings, and NSLog.
//
// A message to nil answers 0, nil, 0.0 or a structure of zeros, whatever its return type is.
// The compiler's @try, @catch and @throw do not work in Objective-C++ with the GNU runtime and are
// left off: exceptions travel as C++ exceptions (Foundation/NSRaisedException.h).
#pragma once

#include <objc/objc.h>

#include <objc/message.h>
#include <objc/runtime.h>
#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define FOUNDATION_EXPORT extern "C" __attribute__((visibility("default")))
#else
#define FOUNDATION_EXPORT extern __attribute__((visibility("default")))
#endif
#define NS_INLINE static inline
#define NS_REQUIRES_NIL_TERMINATION __attribute__((sentinel))

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef id instancetype;

enum { NSNotFound = INT64_MAX };
#define NSIntegerMax LONG_MAX
#define NSIntegerMin LONG_MIN
#define NSUIntegerMax ULONG_MAX

typedef NSInteger NSComparisonResult;
enum { NSOrderedAscending = -1L, NSOrderedSame, NSOrderedDescending };

@class NSString;

FOUNDATION_EXPORT NSString* NSStringFromClass(Class aClass);
// nil when no class has that name.
FOUNDATION_EXPORT Class NSClassFromString(NSString* name);
FOUNDATION_EXPORT NSString* NSStringFromSelector(SEL selector);
FOUNDATION_EXPORT SEL NSSelectorFromString(NSString* name);

// Writes the formatted line to standard error.
FOUNDATION_EXPORT void NSLog(NSString* format, ...);
FOUNDATION_EXPORT void NSLogv(NSString* format, va_list arguments);
