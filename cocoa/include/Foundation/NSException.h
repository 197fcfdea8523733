// Exceptions. One is raised as a C++ exception, a std::runtime_error of the name, a colon and the
// reason: the compiler matches no handler for Objective-C classes. Code that is written for the
// platform too catches everything with catch (...).
#pragma once

#include <Foundation/NSObject.h>

FOUNDATION_EXPORT NSString* const NSGenericException;
FOUNDATION_EXPORT NSString* const NSRangeException;
FOUNDATION_EXPORT NSString* const NSInvalidArgumentException;
FOUNDATION_EXPORT NSString* const NSInternalInconsistencyException;

@interface NSException : NSObject
// Does not return.
+ (void)raise:(NSString*)name format:(NSString*)format, ...;
@end
