#include <AppKit/NSGradient.h>

#include "NSColorPrivate.h"

#include <AppKit/NSBezierPath.h>
#include <AppKit/NSGraphicsContext.h>

#include <cmath>

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

void add_stop(cairo_pattern_t* pattern, double at, NSColor* color) {
    const graphics::Color c = [color components];
    cairo_pattern_add_color_stop_rgba(pattern, at, c.blue, c.green, c.red, c.alpha);
}

} // namespace

@implementation NSGradient

- (id)initWithStartingColor:(NSColor*)start endingColor:(NSColor*)end {
    self = [super init];
    if (!self) return nil;
    _start = [start retain];
    _end = [end retain];
    return self;
}

- (void)dealloc {
    [_start release];
    [_end release];
    [super dealloc];
}

// Paints the current clip along a line through the middle of the rectangle, as long as the
// rectangle is in that direction.
- (void)drawAcross:(NSRect)rect angle:(CGFloat)angle {
    graphics::CairoContext* context =
        graphics::context_of([[NSGraphicsContext currentContext] CGContext]);
    const NSPoint along = direction(angle);
    const CGFloat half =
        (std::abs(along.x) * NSWidth(rect) + std::abs(along.y) * NSHeight(rect)) / 2;
    if (!context || !context->state().drawable || !(half > 0) || !std::isfinite(half)) return;
    const NSPoint middle = NSMakePoint(NSMidX(rect), NSMidY(rect));
    cairo_pattern_t* pattern =
        cairo_pattern_create_linear(middle.x - half * along.x, middle.y - half * along.y,
                                    middle.x + half * along.x, middle.y + half * along.y);
    add_stop(pattern, 0, _start);
    add_stop(pattern, 1, _end);
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);
    cairo_set_source(context->cairo, pattern);
    cairo_pattern_destroy(pattern);
    cairo_paint(context->cairo);
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

@end
