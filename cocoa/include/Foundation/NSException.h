// Exceptions as objects, thrown inside C++ exceptions (Foundation/NSRaisedException.h). One that
// nobody catches is named on standard error and aborts.
#pragma once

#include <Foundation/NSObject.h>

@class NSDictionary;

FOUNDATION_EXPORT NSString* const NSGenericException;
FOUNDATION_EXPORT NSString* const NSRangeException;
FOUNDATION_EXPORT NSString* const NSInvalidArgumentException;
FOUNDATION_EXPORT NSString* const NSInternalInconsistencyException;

@interface NSException : NSObject <NSCopying> {
    NSString* _name;
    NSString* _reason;
    NSDictionary* _userInfo;
}
+ (NSException*)exceptionWithName:(NSString*)name
                           reason:(NSString*)reason
                         userInfo:(NSDictionary*)userInfo;
+ (void)raise:(NSString*)name format:(NSString*)format, ...;
- (id)initWithName:(NSString*)name reason:(NSString*)reason userInfo:(NSDictionary*)userInfo;
// Does not return.
- (void)raise;
- (NSString*)name;
- (NSString*)reason;
- (NSDictionary*)userInfo;
@end
