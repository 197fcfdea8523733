#include <AppKit/NSGradient.h>

#include <AppKit/NSBezierPath.h>
#include <AppKit/NSColor.h>
#include <AppKit/NSGraphicsContext.h>

#include <cmath>
#include <vector>

namespace {

// Cosine and sine of an angle in degrees, exact at quarter turns.
NSPoint direction(CGFloat angle) {
    const CGFloat turn = std::remainder(angle, 360.0);
    if (turn == 0) return {1, 0};
    if (turn == 90) return {0, 1};
    if (turn == -90) return {0, -1};
    if (std::abs(turn) == 180) return {-1, 0};
    return {std::cos(turn * M_PI / 180), std::sin(turn * M_PI / 180)};
}

} // namespace

@implementation NSGradient

- (id)initWithStartingColor:(NSColor*)start endingColor:(NSColor*)end {
    return [self initWithColors:[NSArray arrayWithObjects:start, end, nil]];
}

- (id)initWithColors:(NSArray*)colors {
    self = [super init];
    _count = [colors count];
    if (_count < 2) {
        [self release];
        return nil;
    }
    std::vector<CGFloat> components(4 * _count);
    for (NSInteger i = 0; i < _count; ++i) {
        CGFloat* c = &components[4 * i];
        NSColor* color = [colors objectAtIndex:i];
        [[color colorUsingColorSpaceName:NSDeviceRGBColorSpace] getRed:c
                                                                 green:c + 1
                                                                  blue:c + 2
                                                                 alpha:c + 3];
    }
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    _gradient = CGGradientCreateWithColorComponents(space, components.data(), NULL, _count);
    CGColorSpaceRelease(space);
    return self;
}

- (void)dealloc {
    CGGradientRelease(_gradient);
    [super dealloc];
}

- (NSInteger)numberOfColorStops {
    return _count;
}

// Through the middle of the rectangle, to where lines across it touch the corners.
- (void)drawAcross:(NSRect)rect angle:(CGFloat)angle {
    const NSPoint along = direction(angle);
    const CGFloat half =
        (std::abs(along.x) * NSWidth(rect) + std::abs(along.y) * NSHeight(rect)) / 2;
    const NSPoint middle = NSMakePoint(NSMidX(rect), NSMidY(rect));
    [self drawFromPoint:NSMakePoint(middle.x - half * along.x, middle.y - half * along.y)
                toPoint:NSMakePoint(middle.x + half * along.x, middle.y + half * along.y)
                options:NSGradientDrawsBeforeStartingLocation | NSGradientDrawsAfterEndingLocation];
}

- (void)drawInRect:(NSRect)rect angle:(CGFloat)angle {
    if (NSIsEmptyRect(rect)) return;
    CGContextRef context = [[NSGraphicsContext currentContext] CGContext];
    CGContextSaveGState(context);
    CGContextClipToRect(context, rect);
    [self drawAcross:rect angle:angle];
    CGContextRestoreGState(context);
}

- (void)drawInBezierPath:(NSBezierPath*)path angle:(CGFloat)angle {
    if ([path isEmpty]) return;
    CGContextRef context = [[NSGraphicsContext currentContext] CGContext];
    CGContextSaveGState(context);
    [path addClip];
    [self drawAcross:[path controlPointBounds] angle:angle];
    CGContextRestoreGState(context);
}

- (void)drawFromPoint:(NSPoint)start
              toPoint:(NSPoint)end
              options:(NSGradientDrawingOptions)options {
    CGContextDrawLinearGradient([[NSGraphicsContext currentContext] CGContext], _gradient, start,
                                end, static_cast<CGGradientDrawingOptions>(options));
}

@end
