// The graphics state of contexts.
#include "CairoContext.h"

#include <algorithm>
#include <cmath>

using graphics::CairoContext;
using graphics::context_of;

namespace {

// In pixels: cairo's coordinates are 24.8 fixed point.
constexpr double farthest = 4'000'000;

double brought_near(double device) {
    return std::isnan(device) ? 0 : std::clamp(device, -farthest, farthest);
}

} // namespace

namespace graphics {

double clamped(double component) {
    return std::isnan(component) ? 0 : std::clamp(component, 0.0, 1.0);
}

CairoContext::~CairoContext() {
    if (cairo) cairo_destroy(cairo);
}

void CairoContext::apply_ctm() {
    const auto& t = state().ctm;
    // The context's y points up, cairo's down.
    const cairo_matrix_t matrix = {t.a,  -t.b, t.c,
                                   -t.d, t.tx, static_cast<double>(pixels.height) - t.ty};
    cairo_matrix_t inverse = matrix;
    const bool finite = std::isfinite(t.a + t.b + t.c + t.d + t.tx + t.ty);
    state().drawable = finite && cairo_matrix_invert(&inverse) == CAIRO_STATUS_SUCCESS;
    if (state().drawable) cairo_set_matrix(cairo, &matrix);
}

void CairoContext::use(Color color) {
    cairo_set_source_rgba(cairo, color.blue, color.green, color.red, color.alpha);
}

CGPoint CairoContext::safe(double x, double y) const {
    double device_x = std::isfinite(x) ? x : 0, device_y = std::isfinite(y) ? y : 0;
    const CGPoint given = {device_x, device_y};
    cairo_user_to_device(cairo, &device_x, &device_y);
    if (std::abs(device_x) <= farthest && std::abs(device_y) <= farthest) return given;
    device_x = brought_near(device_x);
    device_y = brought_near(device_y);
    cairo_device_to_user(cairo, &device_x, &device_y);
    return {device_x, device_y};
}

} // namespace graphics

CGContextRef CGContextRetain(CGContextRef context) {
    return (CGContextRef)[(id)context retain];
}

void CGContextRelease(CGContextRef context) {
    [(id)context release];
}

void CGContextSaveGState(CGContextRef context) {
    CairoContext* c = context_of(context);
    if (!c) return;
    cairo_save(c->cairo);
    c->states.push_back(c->state());
}

void CGContextRestoreGState(CGContextRef context) {
    CairoContext* c = context_of(context);
    if (!c || c->states.size() == 1) return;
    c->states.pop_back();
    cairo_restore(c->cairo);
}

void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy) {
    CairoContext* c = context_of(context);
    if (!c) return;
    auto& t = c->state().ctm;
    t = {sx * t.a, sx * t.b, sy * t.c, sy * t.d, t.tx, t.ty};
    c->apply_ctm();
}

void CGContextTranslateCTM(CGContextRef context, CGFloat tx, CGFloat ty) {
    CairoContext* c = context_of(context);
    if (!c) return;
    auto& t = c->state().ctm;
    t.tx = tx * t.a + ty * t.c + t.tx;
    t.ty = tx * t.b + ty * t.d + t.ty;
    c->apply_ctm();
}

void CGContextSetRGBFillColor(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue,
                              CGFloat alpha) {
    if (CairoContext* c = context_of(context))
        c->state().fill = {graphics::clamped(red), graphics::clamped(green),
                           graphics::clamped(blue), graphics::clamped(alpha)};
}

void CGContextSetRGBStrokeColor(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue,
                                CGFloat alpha) {
    if (CairoContext* c = context_of(context))
        c->state().stroke = {graphics::clamped(red), graphics::clamped(green),
                             graphics::clamped(blue), graphics::clamped(alpha)};
}

void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode) {
    CairoContext* c = context_of(context);
    if (!c) return;
    cairo_set_operator(c->cairo, mode == kCGBlendModeCopy    ? CAIRO_OPERATOR_SOURCE
                                 : mode == kCGBlendModeClear ? CAIRO_OPERATOR_CLEAR
                                                             : CAIRO_OPERATOR_OVER);
}

void CGContextSetShouldAntialias(CGContextRef context, bool shouldAntialias) {
    if (CairoContext* c = context_of(context))
        cairo_set_antialias(c->cairo,
                            shouldAntialias ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
}

void CGContextSetLineWidth(CGContextRef context, CGFloat width) {
    CairoContext* c = context_of(context);
    if (c && width > 0 && std::isfinite(width)) cairo_set_line_width(c->cairo, width);
}

void CGContextSetLineJoin(CGContextRef context, CGLineJoin join) {
    if (CairoContext* c = context_of(context))
        cairo_set_line_join(c->cairo, join == kCGLineJoinRound ? CAIRO_LINE_JOIN_ROUND
                                                               : CAIRO_LINE_JOIN_MITER);
}
