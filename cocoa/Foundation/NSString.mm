#include "NSStringStorage.h"
#include "TextEncoding.h"

#include <Foundation/NSArray.h>
#include <Foundation/NSException.h>

#include <algorithm>
#include <cstdlib>
#include <locale.h>

namespace {

void need(id object, const char* what) {
    if (!object) [NSException raise:NSInvalidArgumentException format:@"nil %s", what];
}

void check_range(NSString* string, NSRange range) {
    const NSUInteger length = [string length];
    if (range.location > length || range.length > length - range.location)
        [NSException raise:NSRangeException
                    format:@"range {%lu, %lu} is outside a string of length %lu", range.location,
                           range.length, length];
}

// The decimal number that the text starts with, in a form that the C library reads: no hexadecimal
// numbers, infinities or NaNs.
std::string number_prefix(std::string_view text) {
    size_t at = 0;
    const auto digits = [&] {
        const size_t from = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
        return at > from;
    };
    const auto sign = [&] { at += at < text.size() && (text[at] == '+' || text[at] == '-'); };
    while (at < text.size() && (text[at] == ' ' || (text[at] >= '\t' && text[at] <= '\r'))) ++at;
    const size_t start = at;
    sign();
    bool any = digits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        any |= digits();
    }
    if (!any) return {};
    size_t end = at;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        sign();
        if (digits()) end = at;
    }
    return std::string(text.substr(start, end - start));
}

} // namespace

std::string_view utf8_of(NSString* string) {
    if (!string) return {};
    const UTF8View view = [string utf8View];
    return {view.bytes, view.size};
}

NSString* string_from_utf8(std::string_view text) {
    std::string copy(text);
    return [[[NSString alloc] initWithUTF8:&copy] autorelease];
}

void NSStringStorage::set(std::string text) {
    bytes = std::move(text);
    units = text_encoding::utf16_length(bytes);
}

@implementation NSString

+ (id)allocWithZone:(NSZone*)zone {
    return self == [NSString class] ? [NSPlainString allocWithZone:zone]
                                    : [super allocWithZone:zone];
}

+ (id)stringWithUTF8String:(const char*)bytes {
    if (!bytes) [NSException raise:NSInvalidArgumentException format:@"NULL C string"];
    if (!text_encoding::is_utf8(bytes)) return nil;
    std::string text(bytes);
    return [[[self alloc] initWithUTF8:&text] autorelease];
}

+ (id)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length {
    std::string text =
        text_encoding::from_utf16({reinterpret_cast<const char16_t*>(characters), length});
    return [[[self alloc] initWithUTF8:&text] autorelease];
}

+ (id)stringWithFormat:(NSString*)format, ... {
    va_list arguments;
    va_start(arguments, format);
    id made = [[[self alloc] initWithFormat:format arguments:arguments] autorelease];
    va_end(arguments);
    return made;
}

- (id)init {
    std::string empty;
    return [self initWithUTF8:&empty];
}

- (id)initWithUTF8:(std::string*)__attribute__((unused))text {
    [self doesNotRecognizeSelector:_cmd];
    return nil;
}

- (UTF8View)utf8View {
    [self doesNotRecognizeSelector:_cmd];
    return {};
}

- (id)initWithString:(NSString*)string {
    need(string, "string");
    std::string text(utf8_of(string));
    return [self initWithUTF8:&text];
}

- (id)initWithCString:(const char*)bytes {
    if (!bytes) {
        [self release];
        [NSException raise:NSInvalidArgumentException format:@"NULL C string"];
    }
    std::string text = text_encoding::from_mac_roman(bytes);
    return [self initWithUTF8:&text];
}

- (id)initWithFormat:(NSString*)format arguments:(va_list)arguments {
    need(format, "format");
    std::string text = formatted(format, arguments);
    return [self initWithUTF8:&text];
}

- (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return [self retain];
}

- (NSString*)description {
    return [[self retain] autorelease];
}

- (BOOL)isEqual:(id)object {
    return [object isKindOfClass:[NSString class]] && [self isEqualToString:object];
}

- (BOOL)isEqualToString:(NSString*)string {
    return string && utf8_of(self) == utf8_of(string);
}

- (NSUInteger)hash {
    return std::hash<std::string_view>()(utf8_of(self));
}

- (NSUInteger)length {
    return [self utf8View].units;
}

- (unichar)characterAtIndex:(NSUInteger)index {
    unichar character;
    [self getCharacters:&character range:NSMakeRange(index, 1)];
    return character;
}

- (void)getCharacters:(unichar*)buffer range:(NSRange)range {
    check_range(self, range);
    const UTF8View view = [self utf8View];
    if (view.units == view.size) {
        std::copy_n(view.bytes + range.location, range.length, buffer);
        return;
    }
    const std::u16string units = text_encoding::to_utf16({view.bytes, view.size});
    std::copy_n(units.data() + range.location, range.length, buffer);
}

- (const char*)UTF8String {
    return [self utf8View].bytes;
}

- (NSString*)substringFromIndex:(NSUInteger)index {
    const NSUInteger length = [self length];
    check_range(self, NSMakeRange(index, 0));
    return [self substringWithRange:NSMakeRange(index, length - index)];
}

- (NSString*)substringToIndex:(NSUInteger)index {
    return [self substringWithRange:NSMakeRange(0, index)];
}

- (NSString*)substringWithRange:(NSRange)range {
    check_range(self, range);
    const UTF8View view = [self utf8View];
    const std::string_view text(view.bytes, view.size);
    if (view.units == view.size) return string_from_utf8(text.substr(range.location, range.length));
    const std::u16string units = text_encoding::to_utf16(text);
    return string_from_utf8(
        text_encoding::from_utf16(std::u16string_view(units).substr(range.location, range.length)));
}

- (NSString*)stringByAppendingString:(NSString*)string {
    need(string, "string to append");
    std::string text(utf8_of(self));
    text += utf8_of(string);
    return string_from_utf8(text);
}

- (NSArray*)componentsSeparatedByString:(NSString*)separator {
    need(separator, "separator");
    const std::string_view text = utf8_of(self), cut = utf8_of(separator);
    NSMutableArray* parts = [NSMutableArray array];
    size_t from = 0;
    for (size_t at; !cut.empty() && (at = text.find(cut, from)) != std::string_view::npos;
         from = at + cut.size())
        [parts addObject:string_from_utf8(text.substr(from, at - from))];
    [parts addObject:string_from_utf8(text.substr(from))];
    return parts;
}

- (double)doubleValue {
    static const locale_t c_locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(number_prefix(utf8_of(self)).c_str(), nullptr, c_locale);
}

@end

@implementation NSPlainString

- (id)initWithUTF8:(std::string*)text {
    _storage = new NSStringStorage;
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

@end

@implementation NSConstantString

+ (id)allocWithZone:(NSZone*)zone {
    return [NSString allocWithZone:zone];
}

- (id)retain {
    return self;
}

- (oneway void)release {
}

- (id)autorelease {
    return self;
}

- (UTF8View)utf8View {
    return {_bytes, _byteCount, text_encoding::utf16_length({_bytes, _byteCount})};
}

@end
