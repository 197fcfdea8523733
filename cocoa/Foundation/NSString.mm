#include "StringText.h"

#include <Foundation/NSArray.h>
#include <Foundation/NSException.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <locale.h>

using encodings::Encoding;

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

std::u16string_view as_utf16(const unichar* characters, NSUInteger length) {
    return {reinterpret_cast<const char16_t*>(characters), length};
}

// The number that the text starts with, as the C library reads it in its own locale, but without
// its hexadecimal numbers, infinities and NaNs.
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

// A whole number at the start, saturated; strtoll saturates itself.
long long whole_number(std::string_view text) {
    const std::string prefix = number_prefix(text);
    return strtoll(prefix.c_str(), nullptr, 10);
}

} // namespace

std::string_view text_of(NSString* string) {
    if (!string) return {};
    const NSTextView view = [string textView];
    return {view.bytes, view.size};
}

NSString* string_of(std::string_view text) {
    std::string copy(text);
    return [[[NSString alloc] initWithText:&copy] autorelease];
}

std::optional<Encoding> encoding_of(NSStringEncoding encoding) {
    switch (encoding) {
    case NSASCIIStringEncoding:
        return Encoding::ascii;
    case NSUTF8StringEncoding:
        return Encoding::utf8;
    case NSISOLatin1StringEncoding:
        return Encoding::iso_latin1;
    case NSMacOSRomanStringEncoding:
        return Encoding::mac_roman;
    default:
        return std::nullopt;
    }
}

@implementation NSString

+ (id)allocWithZone:(NSZone*)zone {
    return self == [NSString class] ? [NSPlainString allocWithZone:zone]
                                    : [super allocWithZone:zone];
}

+ (NSStringEncoding)defaultCStringEncoding {
    return NSMacOSRomanStringEncoding;
}

+ (id)string {
    return [[[self alloc] init] autorelease];
}

+ (id)stringWithString:(NSString*)string {
    return [[[self alloc] initWithString:string] autorelease];
}

+ (id)stringWithUTF8String:(const char*)bytes {
    return [[[self alloc] initWithUTF8String:bytes] autorelease];
}

+ (id)stringWithCString:(const char*)bytes encoding:(NSStringEncoding)encoding {
    return [[[self alloc] initWithCString:bytes encoding:encoding] autorelease];
}

+ (id)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length {
    return [[[self alloc] initWithCharacters:characters length:length] autorelease];
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
    return [self initWithText:&empty];
}

- (id)initWithText:(std::string*)__attribute__((unused))text {
    [self doesNotRecognizeSelector:_cmd];
    return nil;
}

- (NSTextView)textView {
    [self doesNotRecognizeSelector:_cmd];
    return {};
}

- (id)initWithString:(NSString*)string {
    need(string, "string");
    std::string text(text_of(string));
    return [self initWithText:&text];
}

- (id)initWithUTF8String:(const char*)bytes {
    return [self initWithCString:bytes encoding:NSUTF8StringEncoding];
}

- (id)initWithCString:(const char*)bytes {
    return [self initWithCString:bytes encoding:[NSString defaultCStringEncoding]];
}

- (id)initWithCString:(const char*)bytes encoding:(NSStringEncoding)encoding {
    if (!bytes) {
        [self release];
        [NSException raise:NSInvalidArgumentException format:@"NULL C string"];
    }
    return [self initWithBytes:bytes length:strlen(bytes) encoding:encoding];
}

- (id)initWithBytes:(const void*)bytes
             length:(NSUInteger)length
           encoding:(NSStringEncoding)encoding {
    const auto known = encoding_of(encoding);
    const std::string_view given(static_cast<const char*>(bytes), length);
    auto text = known ? encodings::decode(given, *known) : std::nullopt;
    if (text) return [self initWithText:&*text];
    [self release];
    return nil;
}

- (id)initWithCharacters:(const unichar*)characters length:(NSUInteger)length {
    std::string text = encodings::from_utf16(as_utf16(characters, length));
    return [self initWithText:&text];
}

- (id)initWithFormat:(NSString*)format, ... {
    va_list arguments;
    va_start(arguments, format);
    id made = [self initWithFormat:format arguments:arguments];
    va_end(arguments);
    return made;
}

- (id)initWithFormat:(NSString*)format arguments:(va_list)arguments {
    need(format, "format");
    std::string text = formatted(format, arguments);
    return [self initWithText:&text];
}

- (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return [self retain];
}

- (id)mutableCopyWithZone:(NSZone*)zone {
    return [[NSMutableString allocWithZone:zone] initWithString:self];
}

- (NSString*)description {
    return [[self retain] autorelease];
}

- (BOOL)isEqual:(id)object {
    return [object isKindOfClass:[NSString class]] && [self isEqualToString:object];
}

- (BOOL)isEqualToString:(NSString*)string {
    return string && text_of(self) == text_of(string);
}

- (NSUInteger)hash {
    return std::hash<std::string_view>()(text_of(self));
}

- (NSUInteger)length {
    return [self textView].units;
}

- (unichar)characterAtIndex:(NSUInteger)index {
    unichar character;
    [self getCharacters:&character range:NSMakeRange(index, 1)];
    return character;
}

- (void)getCharacters:(unichar*)buffer range:(NSRange)range {
    check_range(self, range);
    const NSTextView view = [self textView];
    if (view.units == view.size) {
        std::copy_n(view.bytes + range.location, range.length, buffer);
        return;
    }
    const std::u16string units = encodings::to_utf16({view.bytes, view.size});
    std::copy_n(units.data() + range.location, range.length, buffer);
}

- (const char*)UTF8String {
    return [self textView].bytes;
}

- (BOOL)getCString:(char*)buffer maxLength:(NSUInteger)size encoding:(NSStringEncoding)encoding {
    const auto known = encoding_of(encoding);
    const auto bytes = known ? encodings::encode(text_of(self), *known) : std::nullopt;
    if (!bytes || bytes->size() >= size) return NO;
    memcpy(buffer, bytes->c_str(), bytes->size() + 1);
    return YES;
}

- (const char*)cStringUsingEncoding:(NSStringEncoding)encoding {
    const auto known = encoding_of(encoding);
    auto bytes = known ? encodings::encode(text_of(self), *known) : std::nullopt;
    if (!bytes) return NULL;
    // The bytes of a string object: not a text, but what keeps them until the pool is drained.
    return [[[[NSPlainString alloc] initWithText:&*bytes] autorelease] UTF8String];
}

- (BOOL)canBeConvertedToEncoding:(NSStringEncoding)encoding {
    const auto known = encoding_of(encoding);
    return known && encodings::encode(text_of(self), *known);
}

- (NSUInteger)lengthOfBytesUsingEncoding:(NSStringEncoding)encoding {
    const auto known = encoding_of(encoding);
    const auto bytes = known ? encodings::encode(text_of(self), *known) : std::nullopt;
    return bytes ? bytes->size() : 0;
}

- (NSComparisonResult)compare:(NSString*)string {
    need(string, "string to compare with");
    const NSTextView a = [self textView], b = [string textView];
    const std::string_view a_bytes(a.bytes, a.size), b_bytes(b.bytes, b.size);
    const bool ascii = a.units == a.size && b.units == b.size;
    const int order = ascii ? a_bytes.compare(b_bytes)
                            : encodings::to_utf16(a_bytes).compare(encodings::to_utf16(b_bytes));
    return order < 0 ? NSOrderedAscending : order > 0 ? NSOrderedDescending : NSOrderedSame;
}

- (BOOL)hasPrefix:(NSString*)string {
    need(string, "prefix");
    return text_of(self).starts_with(text_of(string));
}

- (BOOL)hasSuffix:(NSString*)string {
    need(string, "suffix");
    return text_of(self).ends_with(text_of(string));
}

- (NSRange)rangeOfString:(NSString*)string {
    return [self rangeOfString:string options:NSLiteralSearch];
}

- (NSRange)rangeOfString:(NSString*)string options:(NSStringCompareOptions)options {
    need(string, "string to search for");
    const std::string_view text = text_of(self), wanted = text_of(string);
    const bool backwards = options & NSBackwardsSearch;
    size_t found = backwards ? text.rfind(wanted) : text.find(wanted);
    if (options & NSAnchoredSearch) {
        if (backwards ? !text.ends_with(wanted) : !text.starts_with(wanted))
            found = std::string_view::npos;
    }
    if (wanted.empty() || found == std::string_view::npos) return NSMakeRange(NSNotFound, 0);
    return NSMakeRange(encodings::utf16_length(text.substr(0, found)), [string length]);
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
    const NSTextView view = [self textView];
    const std::string_view text(view.bytes, view.size);
    if (view.units == view.size) return string_of(text.substr(range.location, range.length));
    const std::u16string units = encodings::to_utf16(text);
    return string_of(
        encodings::from_utf16(std::u16string_view(units).substr(range.location, range.length)));
}

- (NSString*)stringByAppendingString:(NSString*)string {
    need(string, "string to append");
    std::string text(text_of(self));
    text += text_of(string);
    return string_of(text);
}

- (NSString*)stringByAppendingFormat:(NSString*)format, ... {
    need(format, "format");
    std::string text(text_of(self));
    va_list arguments;
    va_start(arguments, format);
    text += formatted(format, arguments);
    va_end(arguments);
    return string_of(text);
}

- (NSString*)stringByReplacingOccurrencesOfString:(NSString*)target withString:(NSString*)other {
    need(target, "string to replace");
    need(other, "replacement");
    const std::string_view text = text_of(self), wanted = text_of(target);
    std::string replaced;
    size_t from = 0;
    for (size_t at; !wanted.empty() && (at = text.find(wanted, from)) != std::string_view::npos;
         from = at + wanted.size()) {
        replaced += text.substr(from, at - from);
        replaced += text_of(other);
    }
    replaced += text.substr(from);
    return string_of(replaced);
}

- (NSArray*)componentsSeparatedByString:(NSString*)separator {
    need(separator, "separator");
    const std::string_view text = text_of(self), cut = text_of(separator);
    NSMutableArray* parts = [NSMutableArray array];
    size_t from = 0;
    for (size_t at; !cut.empty() && (at = text.find(cut, from)) != std::string_view::npos;
         from = at + cut.size())
        [parts addObject:string_of(text.substr(from, at - from))];
    [parts addObject:string_of(text.substr(from))];
    return parts;
}

- (double)doubleValue {
    static const locale_t c_locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(number_prefix(text_of(self)).c_str(), nullptr, c_locale);
}

- (float)floatValue {
    const double value = [self doubleValue];
    const double most = std::numeric_limits<float>::max();
    return static_cast<float>(std::isinf(value) ? value : std::clamp(value, -most, most));
}

- (int)intValue {
    return static_cast<int>(std::clamp<long long>(whole_number(text_of(self)), INT_MIN, INT_MAX));
}

- (NSInteger)integerValue {
    return whole_number(text_of(self));
}

- (long long)longLongValue {
    return whole_number(text_of(self));
}

- (BOOL)boolValue {
    const std::string_view text = text_of(self);
    size_t at = text.find_first_not_of(" \t\n\v\f\r");
    if (at == std::string_view::npos) return NO;
    at += text[at] == '+' || text[at] == '-';
    at = text.find_first_not_of('0', at);
    return at != std::string_view::npos && strchr("YyTt123456789", text[at]) && text[at] != 0;
}

@end

@implementation NSPlainString

- (id)initWithText:(std::string*)text {
    _text = new NSStringText;
    _text->set(std::move(*text));
    return self;
}

- (void)dealloc {
    delete _text;
    [super dealloc];
}

- (NSTextView)textView {
    return {_text->bytes.c_str(), _text->bytes.size(), _text->units};
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

- (NSUInteger)retainCount {
    return UINT32_MAX;
}

- (NSTextView)textView {
    return {_bytes, _byteCount, encodings::utf16_length({_bytes, _byteCount})};
}

@end
