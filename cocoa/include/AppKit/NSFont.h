// A typeface in a size. Sizes are points.
//
// The interface font is Inter, in place of the platform's own. Texts are measured without hinting:
// a width does not depend on the scale of the display.
#pragma once

#include <Foundation/Foundation.h>

@interface NSFont : NSObject {
  @private
    NSString* _name;   // as requested
    NSString* _family; // the one that is drawn
    CGFloat _size;
    BOOL _bold;
    BOOL _italic;
}
// A size of 0 or below is the regular one.
+ (NSFont*)systemFontOfSize:(CGFloat)size;
+ (NSFont*)boldSystemFontOfSize:(CGFloat)size;
// By family name ("Courier") or by family and style ("Courier-Bold"); nil when there is no such
// font. A size of 0 or below is 12 points.
+ (NSFont*)fontWithName:(NSString*)name size:(CGFloat)size;

+ (CGFloat)systemFontSize;      // 13
+ (CGFloat)smallSystemFontSize; // 11
// Small (1) 11, mini (2) 9, any other as the regular one, 13.
+ (CGFloat)systemFontSizeForControlSize:(NSUInteger)controlSize;

- (NSString*)fontName;
- (CGFloat)pointSize;
@end
