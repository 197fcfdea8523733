#include "NSStringStorage.h"

#include <Foundation/NSException.h>

@implementation NSMutableString

- (id)initWithUTF8:(std::string*)text {
    if (!_storage) _storage = new NSStringStorage;
    _storage->set(std::move(*text));
    return self;
}

- (void)dealloc {
    delete _storage;
    [super dealloc];
}

- (UTF8View)utf8View {
    return {_storage->bytes.c_str(), _storage->bytes.size(), _storage->units};
}

- (id)copyWithZone:(NSZone*)zone {
    return [[NSString allocWithZone:zone] initWithString:self];
}

- (NSString*)description {
    return [[self copy] autorelease];
}

- (void)setString:(NSString*)string {
    if (!string) [NSException raise:NSInvalidArgumentException format:@"nil string"];
    _storage->set(std::string(utf8_of(string)));
}

- (void)replaceCharactersInRange:(NSRange)range withString:(NSString*)string {
    if (!string) [NSException raise:NSInvalidArgumentException format:@"nil string"];
    NSString* before = [self substringToIndex:range.location];
    NSString* rest = [self substringFromIndex:range.location];
    NSString* after = [rest substringFromIndex:range.length];
    std::string text(utf8_of(before));
    text += utf8_of(string);
    text += utf8_of(after);
    _storage->set(std::move(text));
}

@end
