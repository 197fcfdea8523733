// Strings of Unicode characters, counted and indexed in UTF-16 units and kept as UTF-8.
//
// A range or an index outside the string raises NSRangeException; a nil string argument raises
// NSInvalidArgumentException. Cutting a surrogate pair in two leaves U+FFFD in place of the half.
// Equality is literal: without canonical equivalence.
// The default C string encoding is Mac Roman, as on an English system.
#pragma once

#include <Foundation/NSObject.h>
#include <Foundation/NSRange.h>

@class NSArray;

typedef unsigned short unichar;

@interface NSString : NSObject <NSCopying>
// nil when the bytes are not valid UTF-8. NULL raises NSInvalidArgumentException.
+ (id)stringWithUTF8String:(const char*)bytes;
+ (id)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length;
// printf's conversions, %@ for an object's description, %C for a unichar. The bytes of %s are in
// the default C string encoding.
+ (id)stringWithFormat:(NSString*)format, ...;

- (id)init;
- (id)initWithString:(NSString*)string;
// In the default C string encoding.
- (id)initWithCString:(const char*)bytes;
- (id)initWithFormat:(NSString*)format arguments:(va_list)arguments;

- (NSUInteger)length;
- (unichar)characterAtIndex:(NSUInteger)index;
- (void)getCharacters:(unichar*)buffer range:(NSRange)range;
// Valid as long as the string lives and is not changed.
- (const char*)UTF8String;

- (BOOL)isEqualToString:(NSString*)string;

- (NSString*)substringFromIndex:(NSUInteger)index;
- (NSString*)substringToIndex:(NSUInteger)index;
- (NSString*)substringWithRange:(NSRange)range;
- (NSString*)stringByAppendingString:(NSString*)string;
- (NSArray*)componentsSeparatedByString:(NSString*)separator;

// The number at the start, after white space; 0 when there is none, and the nearest representable
// one when it is out of range.
- (double)doubleValue;
@end

struct NSStringStorage;

@interface NSMutableString : NSString {
    struct NSStringStorage* _storage;
}
- (void)setString:(NSString*)string;
- (void)replaceCharactersInRange:(NSRange)range withString:(NSString*)string;
@end

// What the compiler makes of @"..."; its layout is the compiler's.
@interface NSConstantString : NSString {
    const char* _bytes;
    unsigned int _byteCount;
}
@end
