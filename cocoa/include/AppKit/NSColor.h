// Colours: red, green and blue, or white, with alpha; each 0 to 1, clamped to that. Calibrated
// colours are shown as the device's are.
#pragma once

#include <Foundation/Foundation.h>

FOUNDATION_EXPORT NSString* const NSCalibratedWhiteColorSpace;
FOUNDATION_EXPORT NSString* const NSCalibratedRGBColorSpace;
FOUNDATION_EXPORT NSString* const NSDeviceWhiteColorSpace;
FOUNDATION_EXPORT NSString* const NSDeviceRGBColorSpace;

@interface NSColor : NSObject <NSCopying> {
    NSString* _space; // one of the constants above
    CGFloat _red, _green, _blue, _alpha;
}
+ (NSColor*)colorWithDeviceRed:(CGFloat)red
                         green:(CGFloat)green
                          blue:(CGFloat)blue
                         alpha:(CGFloat)alpha;
+ (NSColor*)colorWithDeviceWhite:(CGFloat)white alpha:(CGFloat)alpha;
+ (NSColor*)colorWithCalibratedRed:(CGFloat)red
                             green:(CGFloat)green
                              blue:(CGFloat)blue
                             alpha:(CGFloat)alpha;
+ (NSColor*)colorWithCalibratedWhite:(CGFloat)white alpha:(CGFloat)alpha;

// Calibrated white: 0, 1/3, 1/2, 2/3, 1, and 0 with alpha 0.
+ (NSColor*)blackColor;
+ (NSColor*)darkGrayColor;
+ (NSColor*)grayColor;
+ (NSColor*)lightGrayColor;
+ (NSColor*)whiteColor;
+ (NSColor*)clearColor;
// Calibrated RGB.
+ (NSColor*)redColor;
+ (NSColor*)greenColor;
+ (NSColor*)blueColor;

- (NSColor*)colorWithAlphaComponent:(CGFloat)alpha;
// nil when there is no way there: a colour in red, green and blue has no white.
- (NSColor*)colorUsingColorSpaceName:(NSString*)space;
- (NSString*)colorSpaceName;

// Asking a white colour for red, green and blue, or the other way round, raises
// NSInvalidArgumentException; colorUsingColorSpaceName: converts.
- (CGFloat)redComponent;
- (CGFloat)greenComponent;
- (CGFloat)blueComponent;
- (CGFloat)whiteComponent;
- (CGFloat)alphaComponent;
// Any of the pointers may be NULL.
- (void)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha;

// The colours of the current graphics context; without one, nothing.
- (void)set;
- (void)setFill;
- (void)setStroke;
@end
