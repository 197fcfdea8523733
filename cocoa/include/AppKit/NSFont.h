// A typeface in a size. Sizes are points.
//
// The interface font is Inter, in place of the platform's own; texts are measured without hinting,
// so that a width does not depend on the scale of what it is drawn on.
#pragma once

#include <Foundation/Foundation.h>

@interface NSFont : NSObject <NSCopying> {
  @private
    NSString* _name;   // as asked for
    NSString* _family; // the one that is drawn
    CGFloat _size;
    BOOL _bold;
    BOOL _italic;
    CGFloat _ascender;
    CGFloat _descender;
    CGFloat _leading;
    BOOL _fixedPitch;
}
// A size of 0 or below is the regular one.
+ (NSFont*)systemFontOfSize:(CGFloat)size;
+ (NSFont*)boldSystemFontOfSize:(CGFloat)size;
// By family name ("Courier") or by family and style ("Courier-Bold"); nil when there is no such
// font. A size of 0 or below is 12 points.
+ (NSFont*)fontWithName:(NSString*)name size:(CGFloat)size;

+ (CGFloat)systemFontSize;      // 13
+ (CGFloat)smallSystemFontSize; // 11
+ (CGFloat)labelFontSize;       // 10
// NSRegularControlSize 13, NSSmallControlSize 11, NSMiniControlSize 9; any other as the regular
// one.
+ (CGFloat)systemFontSizeForControlSize:(NSUInteger)controlSize;

- (NSString*)fontName;
- (NSString*)familyName;
- (CGFloat)pointSize;
- (CGFloat)ascender;  // from the baseline up
- (CGFloat)descender; // from the baseline down: negative
- (CGFloat)leading;   // between two lines
- (BOOL)isFixedPitch;
@end
