#include "StringText.h"

#include <Foundation/NSException.h>

@implementation NSMutableString

+ (id)stringWithCapacity:(NSUInteger)capacity {
    return [[[self alloc] initWithCapacity:capacity] autorelease];
}

- (id)initWithText:(std::string*)text {
    if (!_text) _text = new NSStringText;
    _text->set(std::move(*text));
    return self;
}

- (id)initWithCapacity:(NSUInteger)capacity {
    self = [self init];
    _text->bytes.reserve(capacity);
    return self;
}

- (void)dealloc {
    delete _text;
    [super dealloc];
}

- (NSTextView)textView {
    return {_text->bytes.c_str(), _text->bytes.size(), _text->units};
}

- (id)copyWithZone:(NSZone*)zone {
    return [[NSString allocWithZone:zone] initWithString:self];
}

- (NSString*)description {
    return [NSString stringWithString:self];
}

- (void)setString:(NSString*)string {
    if (!string) [NSException raise:NSInvalidArgumentException format:@"nil string"];
    _text->set(std::string(text_of(string)));
}

- (void)appendString:(NSString*)string {
    if (!string) [NSException raise:NSInvalidArgumentException format:@"nil string"];
    const NSUInteger units = _text->units + [string length];
    _text->bytes += std::string(text_of(string)); // a copy, for it may be this string
    _text->units = units;
}

- (void)appendFormat:(NSString*)format, ... {
    if (!format) [NSException raise:NSInvalidArgumentException format:@"nil format"];
    va_list arguments;
    va_start(arguments, format);
    const std::string text = formatted(format, arguments);
    va_end(arguments);
    _text->bytes += text;
    _text->units += encodings::utf16_length(text);
}

- (void)insertString:(NSString*)string atIndex:(NSUInteger)index {
    [self replaceCharactersInRange:NSMakeRange(index, 0) withString:string];
}

- (void)deleteCharactersInRange:(NSRange)range {
    [self replaceCharactersInRange:range withString:@""];
}

- (void)replaceCharactersInRange:(NSRange)range withString:(NSString*)string {
    if (!string) [NSException raise:NSInvalidArgumentException format:@"nil string"];
    NSString* before = [self substringToIndex:range.location];
    NSString* rest = [self substringFromIndex:range.location];
    NSString* after = [rest substringFromIndex:range.length];
    std::string text(text_of(before));
    text += text_of(string);
    text += text_of(after);
    _text->set(std::move(text));
}

@end
