// The graphics state of contexts.
#include "Context.h"

#include <algorithm>
#include <cmath>

using graphics::Color;
using graphics::Context;
using graphics::context_of;

namespace {

double clamped(double component) {
    return std::isnan(component) ? 0 : std::clamp(component, 0.0, 1.0);
}

// Cairo counts pixels downwards from the top in 24.8 fixed point.
constexpr double farthest = 4'000'000;

double brought_near(double device) {
    return std::isnan(device) ? 0 : std::clamp(device, -farthest, farthest);
}

} // namespace

namespace graphics {

Context::~Context() {
    if (cairo) cairo_destroy(cairo);
    CGColorSpaceRelease(space);
}

void Context::apply_ctm() {
    const CGAffineTransform& t = state().ctm;
    // The context's y points up, cairo's down.
    const cairo_matrix_t matrix = {t.a,  -t.b, t.c,
                                   -t.d, t.tx, static_cast<double>(pixels.height) - t.ty};
    cairo_matrix_t inverse = matrix;
    const bool finite = std::isfinite(t.a + t.b + t.c + t.d + t.tx + t.ty);
    state().drawable = finite && cairo_matrix_invert(&inverse) == CAIRO_STATUS_SUCCESS;
    if (state().drawable) cairo_set_matrix(cairo, &matrix);
}

void Context::use(Color color) {
    cairo_set_source_rgba(cairo, color.blue, color.green, color.red, color.alpha * state().alpha);
}

CGPoint Context::safe(double x, double y) const {
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
    Context* c = context_of(context);
    if (!c) return;
    cairo_save(c->cairo);
    c->states.push_back(c->state());
}

void CGContextRestoreGState(CGContextRef context) {
    Context* c = context_of(context);
    if (!c || c->states.size() == 1) return;
    c->states.pop_back();
    cairo_restore(c->cairo);
}

void CGContextConcatCTM(CGContextRef context, CGAffineTransform transform) {
    Context* c = context_of(context);
    if (!c) return;
    c->state().ctm = CGAffineTransformConcat(transform, c->state().ctm);
    c->apply_ctm();
}

void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy) {
    CGContextConcatCTM(context, CGAffineTransformMakeScale(sx, sy));
}

void CGContextTranslateCTM(CGContextRef context, CGFloat tx, CGFloat ty) {
    CGContextConcatCTM(context, CGAffineTransformMakeTranslation(tx, ty));
}

void CGContextRotateCTM(CGContextRef context, CGFloat angle) {
    CGContextConcatCTM(context, CGAffineTransformMakeRotation(angle));
}

CGAffineTransform CGContextGetCTM(CGContextRef context) {
    Context* c = context_of(context);
    return c ? c->state().ctm : CGAffineTransformIdentity;
}

void CGContextSetRGBFillColor(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue,
                              CGFloat alpha) {
    if (Context* c = context_of(context))
        c->state().fill = {clamped(red), clamped(green), clamped(blue), clamped(alpha)};
}

void CGContextSetRGBStrokeColor(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue,
                                CGFloat alpha) {
    if (Context* c = context_of(context))
        c->state().stroke = {clamped(red), clamped(green), clamped(blue), clamped(alpha)};
}

void CGContextSetGrayFillColor(CGContextRef context, CGFloat gray, CGFloat alpha) {
    CGContextSetRGBFillColor(context, gray, gray, gray, alpha);
}

void CGContextSetGrayStrokeColor(CGContextRef context, CGFloat gray, CGFloat alpha) {
    CGContextSetRGBStrokeColor(context, gray, gray, gray, alpha);
}

void CGContextSetAlpha(CGContextRef context, CGFloat alpha) {
    if (Context* c = context_of(context)) c->state().alpha = clamped(alpha);
}

void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode) {
    Context* c = context_of(context);
    if (!c) return;
    cairo_set_operator(c->cairo, mode == kCGBlendModeCopy    ? CAIRO_OPERATOR_SOURCE
                                 : mode == kCGBlendModeClear ? CAIRO_OPERATOR_CLEAR
                                                             : CAIRO_OPERATOR_OVER);
}

void CGContextSetShouldAntialias(CGContextRef context, bool shouldAntialias) {
    if (Context* c = context_of(context))
        cairo_set_antialias(c->cairo,
                            shouldAntialias ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
}

void CGContextSetLineWidth(CGContextRef context, CGFloat width) {
    Context* c = context_of(context);
    if (c && width > 0 && std::isfinite(width)) cairo_set_line_width(c->cairo, width);
}

void CGContextSetLineCap(CGContextRef context, CGLineCap cap) {
    if (Context* c = context_of(context))
        cairo_set_line_cap(c->cairo, cap == kCGLineCapRound    ? CAIRO_LINE_CAP_ROUND
                                     : cap == kCGLineCapSquare ? CAIRO_LINE_CAP_SQUARE
                                                               : CAIRO_LINE_CAP_BUTT);
}

void CGContextSetLineJoin(CGContextRef context, CGLineJoin join) {
    if (Context* c = context_of(context))
        cairo_set_line_join(c->cairo, join == kCGLineJoinRound   ? CAIRO_LINE_JOIN_ROUND
                                      : join == kCGLineJoinBevel ? CAIRO_LINE_JOIN_BEVEL
                                                                 : CAIRO_LINE_JOIN_MITER);
}

void CGContextSetMiterLimit(CGContextRef context, CGFloat limit) {
    Context* c = context_of(context);
    if (c && std::isfinite(limit)) cairo_set_miter_limit(c->cairo, limit);
}

void CGContextSetLineDash(CGContextRef context, CGFloat phase, const CGFloat* lengths,
                          size_t count) {
    Context* c = context_of(context);
    if (!c) return;
    double total = 0;
    bool valid = lengths && count > 0 && count < 1000 && std::isfinite(phase);
    for (size_t i = 0; valid && i < count; ++i) {
        valid = lengths[i] >= 0 && std::isfinite(lengths[i]);
        total += lengths[i];
    }
    const CGAffineTransform& t = c->state().ctm;
    const double scale = std::sqrt(std::abs(t.a * t.d - t.b * t.c));
    valid = valid && total * scale > 0.01;
    cairo_set_dash(c->cairo, lengths, valid ? static_cast<int>(count) : 0, valid ? phase : 0);
}
