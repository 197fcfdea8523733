#include "NSColorPrivate.h"

#include <AppKit/NSGraphicsContext.h>

@implementation NSColor

+ (NSColor*)colorWithDeviceRed:(CGFloat)red
                         green:(CGFloat)green
                          blue:(CGFloat)blue
                         alpha:(CGFloat)alpha {
    NSColor* color = [[[self alloc] init] autorelease];
    color->_red = graphics::clamped(red);
    color->_green = graphics::clamped(green);
    color->_blue = graphics::clamped(blue);
    color->_alpha = graphics::clamped(alpha);
    return color;
}

+ (NSColor*)colorWithDeviceWhite:(CGFloat)white alpha:(CGFloat)alpha {
    return [self colorWithDeviceRed:white green:white blue:white alpha:alpha];
}

+ (NSColor*)blackColor {
    return [self colorWithDeviceWhite:0 alpha:1];
}

+ (NSColor*)whiteColor {
    return [self colorWithDeviceWhite:1 alpha:1];
}

- (NSColor*)colorWithAlphaComponent:(CGFloat)alpha {
    return [NSColor colorWithDeviceRed:_red green:_green blue:_blue alpha:alpha];
}

- (BOOL)isEqual:(id)object {
    if (![object isKindOfClass:[NSColor class]]) return NO;
    NSColor* other = object;
    return _red == other->_red && _green == other->_green && _blue == other->_blue &&
           _alpha == other->_alpha;
}

- (graphics::Color)components {
    return {_red, _green, _blue, _alpha};
}

- (CGFloat)alphaComponent {
    return _alpha;
}

- (void)set {
    [self setFill];
    [self setStroke];
}

- (void)setFill {
    CGContextSetRGBFillColor([[NSGraphicsContext currentContext] CGContext], _red, _green, _blue,
                             _alpha);
}

- (void)setStroke {
    CGContextSetRGBStrokeColor([[NSGraphicsContext currentContext] CGContext], _red, _green, _blue,
                               _alpha);
}

@end
