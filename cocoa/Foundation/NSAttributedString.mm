#include <Foundation/NSAttributedString.h>
#include <Foundation/NSDictionary.h>
#include <Foundation/NSException.h>
#include <Foundation/NSString.h>

@implementation NSAttributedString

- (id)initWithString:(NSString*)string attributes:(NSDictionary*)attributes {
    if (!string) {
        [self release];
        [NSException raise:NSInvalidArgumentException format:@"nil string"];
    }
    self = [super init];
    if (!self) return nil;
    _string = [string copy];
    _attributes = [attributes copy];
    return self;
}

- (void)dealloc {
    [_string release];
    [_attributes release];
    [super dealloc];
}

- (NSString*)string {
    return _string;
}

- (NSUInteger)length {
    return [_string length];
}

- (NSDictionary*)attributesAtIndex:(NSUInteger)index effectiveRange:(NSRange*)range {
    if (index >= [self length])
        [NSException raise:NSRangeException format:@"index beyond the end of an attributed string"];
    if (range) *range = NSMakeRange(0, [self length]);
    return _attributes;
}

@end
