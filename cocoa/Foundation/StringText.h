// What all string classes have in common underneath: UTF-8 bytes.
#pragma once

#include "Encodings.h"

#include <Foundation/NSString.h>

#include <optional>

// The bytes of a string, valid as long as it lives and is not changed; empty for nil. String
// literals with escapes may hold bytes that are no UTF-8.
std::string_view text_of(NSString* string);
// A new autoreleased string of valid UTF-8.
NSString* string_of(std::string_view text);

std::optional<encodings::Encoding> encoding_of(NSStringEncoding encoding);

std::string formatted(NSString* format, va_list arguments);

// A string's text and its length in UTF-16 units, which equals that in bytes for ASCII alone.
struct NSStringText {
    std::string bytes;
    NSUInteger units = 0;

    void set(std::string text) {
        bytes = std::move(text);
        units = encodings::utf16_length(bytes);
    }
};

struct NSTextView {
    const char* bytes;
    size_t size;
    NSUInteger units;
};

@interface NSString (NSTextPrimitives)
- (NSTextView)textView;
// The designated initialiser of strings that are made at run time; takes the text away.
- (id)initWithText:(std::string*)text;
@end

// What +[NSString alloc] makes.
@interface NSPlainString : NSString {
    NSStringText* _text;
}
@end
