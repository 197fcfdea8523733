// The path of contexts: building it, drawing it, clipping to it.
#include "CairoContext.h"

#include <cmath>

using graphics::CairoContext;
using graphics::context_of;

namespace {

// The context when it can be drawn in, else null.
CairoContext* drawable(CGContextRef reference) {
    CairoContext* context = context_of(reference);
    return context && context->state().drawable ? context : nullptr;
}

// The same, and null too when there is no current point.
CairoContext* with_current_point(CGContextRef reference) {
    CairoContext* context = drawable(reference);
    return context && cairo_has_current_point(context->cairo) ? context : nullptr;
}

} // namespace

void graphics::CairoContext::add_rect(CGRect rect) {
    rect = CGRectStandardize(rect);
    const double right = rect.origin.x + rect.size.width, top = rect.origin.y + rect.size.height;
    const CGPoint corners[] = {safe(rect.origin.x, rect.origin.y), safe(right, rect.origin.y),
                               safe(right, top), safe(rect.origin.x, top)};
    cairo_move_to(cairo, corners[0].x, corners[0].y);
    for (int i = 1; i < 4; ++i) cairo_line_to(cairo, corners[i].x, corners[i].y);
    cairo_close_path(cairo);
}

void CGContextBeginPath(CGContextRef context) {
    if (CairoContext* c = context_of(context)) cairo_new_path(c->cairo);
}

void CGContextMoveToPoint(CGContextRef context, CGFloat x, CGFloat y) {
    CairoContext* c = drawable(context);
    if (!c) return;
    const CGPoint p = c->safe(x, y);
    cairo_move_to(c->cairo, p.x, p.y);
}

void CGContextAddLineToPoint(CGContextRef context, CGFloat x, CGFloat y) {
    CairoContext* c = with_current_point(context);
    if (!c) return;
    const CGPoint p = c->safe(x, y);
    cairo_line_to(c->cairo, p.x, p.y);
}

void CGContextAddCurveToPoint(CGContextRef context, CGFloat cp1x, CGFloat cp1y, CGFloat cp2x,
                              CGFloat cp2y, CGFloat x, CGFloat y) {
    CairoContext* c = with_current_point(context);
    if (!c) return;
    const CGPoint p1 = c->safe(cp1x, cp1y), p2 = c->safe(cp2x, cp2y), p = c->safe(x, y);
    cairo_curve_to(c->cairo, p1.x, p1.y, p2.x, p2.y, p.x, p.y);
}

void CGContextClosePath(CGContextRef context) {
    if (CairoContext* c = with_current_point(context)) cairo_close_path(c->cairo);
}

void CGContextAddRect(CGContextRef context, CGRect rect) {
    if (CairoContext* c = drawable(context)) c->add_rect(rect);
}

void CGContextFillPath(CGContextRef context) {
    CairoContext* c = drawable(context);
    if (!c) return;
    c->use(c->state().fill);
    cairo_fill(c->cairo);
}

void CGContextStrokePath(CGContextRef context) {
    CairoContext* c = drawable(context);
    if (!c) return;
    c->use(c->state().stroke);
    cairo_stroke(c->cairo);
}

// Four curves, each a quarter of the ellipse.
void CGContextStrokeEllipseInRect(CGContextRef context, CGRect rect) {
    rect = CGRectStandardize(rect);
    const CGSize radius = {rect.size.width / 2, rect.size.height / 2};
    const CGPoint center = {rect.origin.x + rect.size.width * 0.5,
                            rect.origin.y + rect.size.height * 0.5};
    const double handle = 4.0 / 3.0 * std::tan(M_PI_2 / 4);
    // On the tangent at the angle, `along` radii from where it touches the ellipse.
    const auto at = [&](double angle, double along) -> CGPoint {
        return {center.x + radius.width * (std::cos(angle) - along * std::sin(angle)),
                center.y + radius.height * (std::sin(angle) + along * std::cos(angle))};
    };
    CGContextBeginPath(context);
    CGContextMoveToPoint(context, center.x + radius.width, center.y);
    for (int quarter = 0; quarter < 4; ++quarter) {
        const double from = quarter * M_PI_2, to = (quarter + 1) * M_PI_2;
        const CGPoint a = at(from, handle), b = at(to, -handle), end = at(to, 0);
        CGContextAddCurveToPoint(context, a.x, a.y, b.x, b.y, end.x, end.y);
    }
    CGContextClosePath(context);
    CGContextStrokePath(context);
}

void CGContextClip(CGContextRef context) {
    if (CairoContext* c = drawable(context)) cairo_clip(c->cairo);
}

void CGContextClipToRect(CGContextRef context, CGRect rect) {
    CGContextBeginPath(context);
    CGContextAddRect(context, rect);
    CGContextClip(context);
}
