// The path of contexts: building it, drawing it, clipping to it.
#include "Context.h"

#include <algorithm>
#include <cmath>

using graphics::Context;
using graphics::context_of;

namespace {

// The context when it can be drawn in, else null.
Context* drawable(CGContextRef reference) {
    Context* context = context_of(reference);
    return context && context->state().drawable ? context : nullptr;
}

// Without a current point there is nothing to go on from.
Context* with_current_point(CGContextRef reference) {
    Context* context = drawable(reference);
    return context && cairo_has_current_point(context->cairo) ? context : nullptr;
}

void fill(CGContextRef reference, cairo_fill_rule_t rule, bool keep_path) {
    Context* context = drawable(reference);
    if (!context) return;
    context->use(context->state().fill);
    cairo_set_fill_rule(context->cairo, rule);
    cairo_fill_preserve(context->cairo);
    if (!keep_path) cairo_new_path(context->cairo);
}

void clip(CGContextRef reference, cairo_fill_rule_t rule) {
    Context* context = drawable(reference);
    if (!context) return;
    cairo_set_fill_rule(context->cairo, rule);
    cairo_clip(context->cairo);
}

// At most a quarter turn from `from` to `to`, as one curve.
void add_quarter(CGContextRef context, CGPoint center, CGSize radius, double from, double to) {
    const double handle = 4.0 / 3.0 * std::tan((to - from) / 4);
    const auto at = [&](double angle, double along) {
        return CGPointMake(center.x + radius.width * (std::cos(angle) - along * std::sin(angle)),
                           center.y + radius.height * (std::sin(angle) + along * std::cos(angle)));
    };
    const CGPoint a = at(from, handle), b = at(to, -handle), end = at(to, 0);
    CGContextAddCurveToPoint(context, a.x, a.y, b.x, b.y, end.x, end.y);
}

} // namespace

void graphics::Context::add_rect(CGRect rect) {
    rect = CGRectStandardize(rect);
    const double right = rect.origin.x + rect.size.width, top = rect.origin.y + rect.size.height;
    const CGPoint corners[] = {safe(rect.origin.x, rect.origin.y), safe(right, rect.origin.y),
                               safe(right, top), safe(rect.origin.x, top)};
    cairo_move_to(cairo, corners[0].x, corners[0].y);
    for (int i = 1; i < 4; ++i) cairo_line_to(cairo, corners[i].x, corners[i].y);
    cairo_close_path(cairo);
}

void CGContextBeginPath(CGContextRef context) {
    if (Context* c = context_of(context)) cairo_new_path(c->cairo);
}

void CGContextMoveToPoint(CGContextRef context, CGFloat x, CGFloat y) {
    Context* c = drawable(context);
    if (!c) return;
    const CGPoint p = c->safe(x, y);
    cairo_move_to(c->cairo, p.x, p.y);
}

void CGContextAddLineToPoint(CGContextRef context, CGFloat x, CGFloat y) {
    Context* c = with_current_point(context);
    if (!c) return;
    const CGPoint p = c->safe(x, y);
    cairo_line_to(c->cairo, p.x, p.y);
}

void CGContextAddCurveToPoint(CGContextRef context, CGFloat cp1x, CGFloat cp1y, CGFloat cp2x,
                              CGFloat cp2y, CGFloat x, CGFloat y) {
    Context* c = with_current_point(context);
    if (!c) return;
    const CGPoint p1 = c->safe(cp1x, cp1y), p2 = c->safe(cp2x, cp2y), p = c->safe(x, y);
    cairo_curve_to(c->cairo, p1.x, p1.y, p2.x, p2.y, p.x, p.y);
}

void CGContextClosePath(CGContextRef context) {
    if (Context* c = with_current_point(context)) cairo_close_path(c->cairo);
}

void CGContextAddRect(CGContextRef context, CGRect rect) {
    Context* c = drawable(context);
    if (c && !CGRectIsNull(rect)) c->add_rect(rect);
}

void CGContextAddEllipseInRect(CGContextRef context, CGRect rect) {
    if (CGRectIsNull(rect)) return;
    rect = CGRectStandardize(rect);
    const CGPoint center = {CGRectGetMidX(rect), CGRectGetMidY(rect)};
    const CGSize radius = {rect.size.width / 2, rect.size.height / 2};
    CGContextMoveToPoint(context, center.x + radius.width, center.y);
    for (int quarter = 0; quarter < 4; ++quarter)
        add_quarter(context, center, radius, quarter * M_PI_2, (quarter + 1) * M_PI_2);
    CGContextClosePath(context);
}

void CGContextAddArc(CGContextRef context, CGFloat x, CGFloat y, CGFloat radius, CGFloat startAngle,
                     CGFloat endAngle, int clockwise) {
    Context* c = drawable(context);
    if (!c || !std::isfinite(startAngle) || !std::isfinite(endAngle)) return;
    double sweep = clockwise ? startAngle - endAngle : endAngle - startAngle;
    if (sweep < 0) sweep = std::fmod(sweep, 2 * M_PI) + 2 * M_PI;
    sweep = std::min(sweep, 2 * M_PI);
    const double start = std::fmod(startAngle, 2 * M_PI);
    const CGPoint first = {x + radius * std::cos(start), y + radius * std::sin(start)};
    if (cairo_has_current_point(c->cairo))
        CGContextAddLineToPoint(context, first.x, first.y);
    else
        CGContextMoveToPoint(context, first.x, first.y);
    const int parts = static_cast<int>(std::ceil(sweep / M_PI_2));
    const double step = parts > 0 ? (clockwise ? -sweep : sweep) / parts : 0;
    for (int i = 0; i < parts; ++i)
        add_quarter(context, {x, y}, {radius, radius}, start + i * step, start + (i + 1) * step);
}

void CGContextFillPath(CGContextRef context) {
    fill(context, CAIRO_FILL_RULE_WINDING, false);
}

void CGContextEOFillPath(CGContextRef context) {
    fill(context, CAIRO_FILL_RULE_EVEN_ODD, false);
}

void CGContextStrokePath(CGContextRef context) {
    Context* c = drawable(context);
    if (!c) return;
    c->use(c->state().stroke);
    cairo_stroke(c->cairo);
}

void CGContextDrawPath(CGContextRef context, CGPathDrawingMode mode) {
    const bool even_odd = mode == kCGPathEOFill || mode == kCGPathEOFillStroke;
    const bool strokes = mode != kCGPathFill && mode != kCGPathEOFill;
    if (mode != kCGPathStroke)
        fill(context, even_odd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING, strokes);
    if (strokes) CGContextStrokePath(context);
}

void CGContextClip(CGContextRef context) {
    clip(context, CAIRO_FILL_RULE_WINDING);
}

void CGContextEOClip(CGContextRef context) {
    clip(context, CAIRO_FILL_RULE_EVEN_ODD);
}

void CGContextClipToRect(CGContextRef context, CGRect rect) {
    CGContextBeginPath(context);
    CGContextAddRect(context, rect);
    CGContextClip(context);
}

CGRect CGContextGetClipBoundingBox(CGContextRef context) {
    Context* c = drawable(context);
    if (!c) return CGRectNull;
    double left, top, right, bottom;
    cairo_clip_extents(c->cairo, &left, &top, &right, &bottom);
    if (!(left < right && top < bottom)) return CGRectNull;
    return CGRectMake(left, top, right - left, bottom - top);
}
