#include <Foundation/NSException.h>

#include "NSStringStorage.h"

#include <stdexcept>

NSString* const NSGenericException = @"NSGenericException";
NSString* const NSRangeException = @"NSRangeException";
NSString* const NSInvalidArgumentException = @"NSInvalidArgumentException";
NSString* const NSInternalInconsistencyException = @"NSInternalInconsistencyException";

@implementation NSException

+ (void)raise:(NSString*)name format:(NSString*)format, ... {
    va_list arguments;
    va_start(arguments, format);
    const std::string reason = formatted(format, arguments);
    va_end(arguments);
    throw std::runtime_error(std::string(utf8_of(name)) + ": " + reason);
}

@end
