// Colours: red, green, blue and alpha, each 0 to 1, clamped to that.
#pragma once

#include <Foundation/Foundation.h>

@interface NSColor : NSObject {
    CGFloat _red, _green, _blue, _alpha;
}
+ (NSColor*)colorWithDeviceRed:(CGFloat)red
                         green:(CGFloat)green
                          blue:(CGFloat)blue
                         alpha:(CGFloat)alpha;
+ (NSColor*)colorWithDeviceWhite:(CGFloat)white alpha:(CGFloat)alpha;
+ (NSColor*)blackColor;
+ (NSColor*)whiteColor;

- (NSColor*)colorWithAlphaComponent:(CGFloat)alpha;
- (CGFloat)alphaComponent;

// These set the current graphics context's colours; without a context they do nothing.
- (void)set;
- (void)setFill;
- (void)setStroke;
@end
