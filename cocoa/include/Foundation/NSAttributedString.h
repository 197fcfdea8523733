// A string with attributes (AppKit/NSStringDrawing.h), the same for all of its characters.
#pragma once

#include <Foundation/NSObject.h>
#include <Foundation/NSRange.h>

@class NSDictionary, NSString;

@interface NSAttributedString : NSObject {
    NSString* _string;
    NSDictionary* _attributes;
}
// A nil string raises NSInvalidArgumentException.
- (id)initWithString:(NSString*)string attributes:(NSDictionary*)attributes;
- (NSString*)string;
- (NSUInteger)length;
// Of a character; `range`, if not NULL, gets the range over which they are the same. An index
// beyond the end raises NSRangeException.
- (NSDictionary*)attributesAtIndex:(NSUInteger)index effectiveRange:(NSRange*)range;
@end
