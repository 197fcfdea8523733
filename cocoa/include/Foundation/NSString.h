// Strings of Unicode characters, counted and indexed in UTF-16 units and kept as UTF-8.
//
// A range or an index outside the string raises NSRangeException; a nil string argument raises
// NSInvalidArgumentException. Cutting a surrogate pair in two leaves U+FFFD in place of the half.
// Comparison is literal: by UTF-16 units, without canonical equivalence.
// The default C string encoding is Mac Roman, as on an English system.
#pragma once

#include <Foundation/NSObject.h>
#include <Foundation/NSRange.h>

@class NSArray;

typedef unsigned short unichar;

typedef NSUInteger NSStringEncoding;
enum {
    NSASCIIStringEncoding = 1,
    NSUTF8StringEncoding = 4,
    NSISOLatin1StringEncoding = 5,
    NSMacOSRomanStringEncoding = 30
};

typedef NSUInteger NSStringCompareOptions;
enum { NSLiteralSearch = 2, NSBackwardsSearch = 4, NSAnchoredSearch = 8 };

@interface NSString : NSObject <NSCopying, NSMutableCopying>
+ (NSStringEncoding)defaultCStringEncoding;

+ (id)string;
+ (id)stringWithString:(NSString*)string;
// nil when the bytes are not valid UTF-8. NULL raises NSInvalidArgumentException.
+ (id)stringWithUTF8String:(const char*)bytes;
+ (id)stringWithCString:(const char*)bytes encoding:(NSStringEncoding)encoding;
+ (id)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length;
// printf's conversions, and %@ for an object's description, %C for a unichar. The bytes of %s are
// read in the default C string encoding.
+ (id)stringWithFormat:(NSString*)format, ...;

- (id)init;
- (id)initWithString:(NSString*)string;
- (id)initWithUTF8String:(const char*)bytes;
// The default C string encoding.
- (id)initWithCString:(const char*)bytes;
- (id)initWithCString:(const char*)bytes encoding:(NSStringEncoding)encoding;
// nil when the bytes are not valid in the encoding, or the encoding is not one of those above.
- (id)initWithBytes:(const void*)bytes
             length:(NSUInteger)length
           encoding:(NSStringEncoding)encoding;
- (id)initWithCharacters:(const unichar*)characters length:(NSUInteger)length;
- (id)initWithFormat:(NSString*)format, ...;
- (id)initWithFormat:(NSString*)format arguments:(va_list)arguments;

- (NSUInteger)length;
- (unichar)characterAtIndex:(NSUInteger)index;
- (void)getCharacters:(unichar*)buffer range:(NSRange)range;

// Valid as long as the string lives and is not changed.
- (const char*)UTF8String;
// NO when it does not fit with its final zero, or has a character that the encoding lacks.
- (BOOL)getCString:(char*)buffer maxLength:(NSUInteger)size encoding:(NSStringEncoding)encoding;
// NULL when the string cannot be had in the encoding; lives as long as an autoreleased object.
- (const char*)cStringUsingEncoding:(NSStringEncoding)encoding;
- (BOOL)canBeConvertedToEncoding:(NSStringEncoding)encoding;
// In bytes without a final zero; 0 when the string cannot be had in the encoding.
- (NSUInteger)lengthOfBytesUsingEncoding:(NSStringEncoding)encoding;

- (BOOL)isEqualToString:(NSString*)string;
- (NSComparisonResult)compare:(NSString*)string;
- (BOOL)hasPrefix:(NSString*)string;
- (BOOL)hasSuffix:(NSString*)string;
// {NSNotFound, 0} when it is not there, and for the empty string.
- (NSRange)rangeOfString:(NSString*)string;
- (NSRange)rangeOfString:(NSString*)string options:(NSStringCompareOptions)options;

- (NSString*)substringFromIndex:(NSUInteger)index;
- (NSString*)substringToIndex:(NSUInteger)index;
- (NSString*)substringWithRange:(NSRange)range;
- (NSString*)stringByAppendingString:(NSString*)string;
- (NSString*)stringByAppendingFormat:(NSString*)format, ...;
- (NSString*)stringByReplacingOccurrencesOfString:(NSString*)target withString:(NSString*)other;
- (NSArray*)componentsSeparatedByString:(NSString*)separator;

// The number at the start, after white space; 0 when there is none, and the nearest representable
// one when it is out of range.
- (double)doubleValue;
- (float)floatValue;
- (int)intValue;
- (NSInteger)integerValue;
- (long long)longLongValue;
// YES for a text that starts, after white space, zeros and a sign, with one of YyTt1-9.
- (BOOL)boolValue;
@end

struct NSStringText;

@interface NSMutableString : NSString {
    struct NSStringText* _text;
}
+ (id)stringWithCapacity:(NSUInteger)capacity;
- (id)initWithCapacity:(NSUInteger)capacity;
- (void)setString:(NSString*)string;
- (void)appendString:(NSString*)string;
- (void)appendFormat:(NSString*)format, ...;
- (void)insertString:(NSString*)string atIndex:(NSUInteger)index;
- (void)deleteCharactersInRange:(NSRange)range;
- (void)replaceCharactersInRange:(NSRange)range withString:(NSString*)string;
@end

// What the compiler makes of @"..."; its layout is the compiler's.
@interface NSConstantString : NSString {
    const char* _bytes;
    unsigned int _byteCount;
}
@end
