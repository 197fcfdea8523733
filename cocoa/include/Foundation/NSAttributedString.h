// A string with attributes: each character has a dictionary of them, runs of equal ones are kept
// together. Ranges count UTF-16 units.
#pragma once

#include <Foundation/NSObject.h>
#include <Foundation/NSRange.h>

@class NSDictionary, NSString;

struct NSAttributeRuns;

@interface NSAttributedString : NSObject <NSCopying, NSMutableCopying> {
    NSString* _string;
    struct NSAttributeRuns* _runs;
}
- (id)initWithString:(NSString*)string; // nil raises NSInvalidArgumentException
// nil attributes are none.
- (id)initWithString:(NSString*)string attributes:(NSDictionary*)attributes;
- (id)initWithAttributedString:(NSAttributedString*)other;
- (NSString*)string;
- (NSUInteger)length;
// Of a character; `range`, if not NULL, gets the run in which they are the same. An index beyond
// the end raises NSRangeException.
- (NSDictionary*)attributesAtIndex:(NSUInteger)index effectiveRange:(NSRange*)range;
- (id)attribute:(NSString*)name atIndex:(NSUInteger)index effectiveRange:(NSRange*)range;
- (BOOL)isEqualToAttributedString:(NSAttributedString*)other;
@end

@interface NSMutableAttributedString : NSAttributedString
- (void)appendAttributedString:(NSAttributedString*)other;
// Ranges beyond the end raise NSRangeException.
- (void)setAttributes:(NSDictionary*)attributes range:(NSRange)range;
- (void)addAttribute:(NSString*)name value:(id)value range:(NSRange)range;
@end
