// The text of strings: UTF-8 bytes, and the two methods that every concrete string class has.
#pragma once

#include <Foundation/NSString.h>

#include <string>
#include <string_view>

// The bytes of a string, valid as long as it lives and is not changed; empty for nil. Literals with
// escapes may hold bytes that are not UTF-8.
std::string_view utf8_of(NSString* string);
// A new autoreleased string of valid UTF-8.
NSString* string_from_utf8(std::string_view text);

// The text that a format and its arguments make, as valid UTF-8.
std::string formatted(NSString* format, va_list arguments);

struct NSStringStorage {
    std::string bytes;
    NSUInteger units = 0; // UTF-16 units: as many as bytes if the text is ASCII

    void set(std::string text);
};

struct UTF8View {
    const char* bytes;
    size_t size;
    NSUInteger units;
};

@interface NSString (UTF8)
- (UTF8View)utf8View;
// The designated initialiser of strings made at run time; moves the text away.
- (id)initWithUTF8:(std::string*)text;
@end

// What +[NSString alloc] makes.
@interface NSPlainString : NSString {
    NSStringStorage* _storage;
}
@end
