#include <AppKit/NSColor.h>

#include <AppKit/NSGraphicsContext.h>

#include <algorithm>
#include <cmath>

NSString* const NSCalibratedWhiteColorSpace = @"NSCalibratedWhiteColorSpace";
NSString* const NSCalibratedRGBColorSpace = @"NSCalibratedRGBColorSpace";
NSString* const NSDeviceWhiteColorSpace = @"NSDeviceWhiteColorSpace";
NSString* const NSDeviceRGBColorSpace = @"NSDeviceRGBColorSpace";

namespace {

CGFloat clamped(CGFloat component) {
    return std::isnan(component) ? 0 : std::clamp(component, 0.0, 1.0);
}

bool is_white(NSString* space) {
    return space == NSCalibratedWhiteColorSpace || space == NSDeviceWhiteColorSpace;
}

// The constant that equals the name, or nil.
NSString* known_space(NSString* name) {
    for (NSString* space : {NSCalibratedWhiteColorSpace, NSCalibratedRGBColorSpace,
                            NSDeviceWhiteColorSpace, NSDeviceRGBColorSpace})
        if ([space isEqualToString:name]) return space;
    return nil;
}

} // namespace

@implementation NSColor

static NSColor* make(Class of_class, NSString* space, CGFloat red, CGFloat green, CGFloat blue,
                     CGFloat alpha) {
    NSColor* color = [[[of_class alloc] init] autorelease];
    color->_space = space;
    color->_red = clamped(red);
    color->_green = clamped(green);
    color->_blue = clamped(blue);
    color->_alpha = clamped(alpha);
    return color;
}

+ (NSColor*)colorWithDeviceRed:(CGFloat)red
                         green:(CGFloat)green
                          blue:(CGFloat)blue
                         alpha:(CGFloat)alpha {
    return make(self, NSDeviceRGBColorSpace, red, green, blue, alpha);
}

+ (NSColor*)colorWithDeviceWhite:(CGFloat)white alpha:(CGFloat)alpha {
    return make(self, NSDeviceWhiteColorSpace, white, white, white, alpha);
}

+ (NSColor*)colorWithCalibratedRed:(CGFloat)red
                             green:(CGFloat)green
                              blue:(CGFloat)blue
                             alpha:(CGFloat)alpha {
    return make(self, NSCalibratedRGBColorSpace, red, green, blue, alpha);
}

+ (NSColor*)colorWithCalibratedWhite:(CGFloat)white alpha:(CGFloat)alpha {
    return make(self, NSCalibratedWhiteColorSpace, white, white, white, alpha);
}

+ (NSColor*)blackColor {
    return [self colorWithCalibratedWhite:0 alpha:1];
}

+ (NSColor*)darkGrayColor {
    return [self colorWithCalibratedWhite:1.0 / 3 alpha:1];
}

+ (NSColor*)grayColor {
    return [self colorWithCalibratedWhite:0.5 alpha:1];
}

+ (NSColor*)lightGrayColor {
    return [self colorWithCalibratedWhite:2.0 / 3 alpha:1];
}

+ (NSColor*)whiteColor {
    return [self colorWithCalibratedWhite:1 alpha:1];
}

+ (NSColor*)clearColor {
    return [self colorWithCalibratedWhite:0 alpha:0];
}

+ (NSColor*)redColor {
    return [self colorWithCalibratedRed:1 green:0 blue:0 alpha:1];
}

+ (NSColor*)greenColor {
    return [self colorWithCalibratedRed:0 green:1 blue:0 alpha:1];
}

+ (NSColor*)blueColor {
    return [self colorWithCalibratedRed:0 green:0 blue:1 alpha:1];
}

- (id)copyWithZone:(NSZone*)__attribute__((unused))zone {
    return [self retain];
}

- (NSColor*)colorWithAlphaComponent:(CGFloat)alpha {
    return make([self class], _space, _red, _green, _blue, alpha);
}

- (NSColor*)colorUsingColorSpaceName:(NSString*)space {
    NSString* wanted = known_space(space);
    if (!wanted || (is_white(wanted) && !is_white(_space))) return nil;
    return make([self class], wanted, _red, _green, _blue, _alpha);
}

- (NSString*)colorSpaceName {
    return _space;
}

- (BOOL)isEqual:(id)object {
    if (![object isKindOfClass:[NSColor class]]) return NO;
    NSColor* other = object;
    return _space == other->_space && _red == other->_red && _green == other->_green &&
           _blue == other->_blue && _alpha == other->_alpha;
}

- (NSUInteger)hash {
    return static_cast<NSUInteger>(255 * (_red + 256 * (_green + 256 * (_blue + 256 * _alpha))));
}

- (NSString*)description {
    return [NSString stringWithFormat:@"%@ %g %g %g %g", _space, _red, _green, _blue, _alpha];
}

static void expect(NSColor* color, bool white) {
    if (is_white(color->_space) != white)
        [NSException raise:NSInvalidArgumentException
                    format:@"the colour %@ is asked for a component that it has not", color];
}

- (CGFloat)redComponent {
    expect(self, false);
    return _red;
}

- (CGFloat)greenComponent {
    expect(self, false);
    return _green;
}

- (CGFloat)blueComponent {
    expect(self, false);
    return _blue;
}

- (CGFloat)whiteComponent {
    expect(self, true);
    return _red;
}

- (CGFloat)alphaComponent {
    return _alpha;
}

- (void)getRed:(CGFloat*)red green:(CGFloat*)green blue:(CGFloat*)blue alpha:(CGFloat*)alpha {
    expect(self, false);
    if (red) *red = _red;
    if (green) *green = _green;
    if (blue) *blue = _blue;
    if (alpha) *alpha = _alpha;
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
