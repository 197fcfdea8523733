// The integer types of Foundation.
//
// A message to nil returns 0, nil, 0.0 or a structure of zeros, whatever its return type is.
// The compiler's @try, @catch and @throw do not work in Objective-C++ with the GNU runtime:
// exceptions are C++ exceptions (Foundation/NSRaisedException.h).
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
