#include <Foundation/NSRaisedException.h>

#include <Foundation/NSDictionary.h>
#include <Foundation/NSString.h>

#include <cstdlib>

NSString* const NSGenericException = @"NSGenericException";
NSString* const NSRangeException = @"NSRangeException";
NSString* const NSInvalidArgumentException = @"NSInvalidArgumentException";
NSString* const NSInternalInconsistencyException = @"NSInternalInconsistencyException";

NSRaisedException::NSRaisedException(NSException* object)
    : _object([object retain]),
      _text([[NSString stringWithFormat:@"%@: %@", [object name], [object reason]] UTF8String]) {}

NSRaisedException::NSRaisedException(const NSRaisedException& other)
    : std::exception(other), _object([other._object retain]), _text(other._text) {}

NSRaisedException::~NSRaisedException() {
    [_object release];
}

@implementation NSException

+ (NSException*)exceptionWithName:(NSString*)name
                           reason:(NSString*)reason
                         userInfo:(NSDictionary*)userInfo {
    return [[[self alloc] initWithName:name reason:reason userInfo:userInfo] autorelease];
}

+ (void)raise:(NSString*)name format:(NSString*)format, ... {
    va_list arguments;
    va_start(arguments, format);
    NSString* reason = [[[NSString alloc] initWithFormat:format arguments:arguments] autorelease];
    va_end(arguments);
    [[self exceptionWithName:name reason:reason userInfo:nil] raise];
    abort(); // not reached; the compiler does not know that a message may not return
}

- (id)initWithName:(NSString*)name reason:(NSString*)reason userInfo:(NSDictionary*)userInfo {
    self = [super init];
    if (!self) return nil;
    _name = [name copy];
    _reason = [reason copy];
    _userInfo = [userInfo retain];
    return self;
}

- (void)dealloc {
    [_name release];
    [_reason release];
    [_userInfo release];
    [super dealloc];
}

- (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return [self retain];
}

- (void)raise {
    throw NSRaisedException(self);
}

- (NSString*)name {
    return _name;
}

- (NSString*)reason {
    return _reason;
}

- (NSDictionary*)userInfo {
    return _userInfo;
}

- (NSString*)description {
    return _reason ? _reason : _name;
}

@end
