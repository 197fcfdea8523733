// Rectangles, ellipses, images and gradients.
#include "Context.h"

#include <cmath>

using graphics::Context;
using graphics::context_of;

namespace {

// Keeps the current path over drawing that needs cairo's for itself.
class PathKeeper {
  public:
    explicit PathKeeper(cairo_t* cairo) : _cairo(cairo) {
        if (cairo_has_current_point(cairo)) _path = cairo_copy_path(cairo);
        cairo_new_path(cairo);
    }
    ~PathKeeper() {
        cairo_new_path(_cairo);
        if (!_path) return;
        cairo_append_path(_cairo, _path);
        cairo_path_destroy(_path);
    }
    PathKeeper(const PathKeeper&) = delete;
    PathKeeper& operator=(const PathKeeper&) = delete;

  private:
    cairo_t* _cairo;
    cairo_path_t* _path = nullptr;
};

} // namespace

void CGContextFillRect(CGContextRef context, CGRect rect) {
    CGContextBeginPath(context);
    CGContextAddRect(context, rect);
    CGContextFillPath(context);
}

void CGContextFillEllipseInRect(CGContextRef context, CGRect rect) {
    CGContextBeginPath(context);
    CGContextAddEllipseInRect(context, rect);
    CGContextFillPath(context);
}

void CGContextStrokeRect(CGContextRef context, CGRect rect) {
    CGContextBeginPath(context);
    CGContextAddRect(context, rect);
    CGContextStrokePath(context);
}

void CGContextStrokeRectWithWidth(CGContextRef context, CGRect rect, CGFloat width) {
    CGContextSaveGState(context);
    CGContextSetLineWidth(context, width);
    CGContextStrokeRect(context, rect);
    CGContextRestoreGState(context);
}

void CGContextStrokeEllipseInRect(CGContextRef context, CGRect rect) {
    CGContextBeginPath(context);
    CGContextAddEllipseInRect(context, rect);
    CGContextStrokePath(context);
}

void CGContextClearRect(CGContextRef context, CGRect rect) {
    CGContextSaveGState(context);
    CGContextSetBlendMode(context, kCGBlendModeClear);
    CGContextFillRect(context, rect);
    CGContextRestoreGState(context);
}

void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image) {
    Context* c = context_of(context);
    rect = CGRectStandardize(rect);
    if (!c || !c->state().drawable || !image || CGRectIsEmpty(rect)) return;
    const graphics::Pixels& pixels = *graphics::pixels_of(image);
    PathKeeper keeper(c->cairo);
    cairo_save(c->cairo);
    c->add_rect(rect);
    cairo_clip(c->cairo);
    cairo_translate(c->cairo, rect.origin.x, rect.origin.y + rect.size.height);
    cairo_scale(c->cairo, rect.size.width / static_cast<double>(pixels.width),
                -rect.size.height / static_cast<double>(pixels.height));
    cairo_set_source_surface(c->cairo, pixels.surface, 0, 0);
    // Pixels at the edge of an enlarged image are not mixed with the nothing beside it.
    cairo_pattern_set_extend(cairo_get_source(c->cairo), CAIRO_EXTEND_PAD);
    cairo_paint_with_alpha(c->cairo, c->state().alpha);
    cairo_restore(c->cairo);
}

void CGContextDrawLinearGradient(CGContextRef context, CGGradientRef gradient, CGPoint start,
                                 CGPoint end, CGGradientDrawingOptions options) {
    Context* c = context_of(context);
    if (!c || !c->state().drawable || !gradient) return;
    if (!std::isfinite(start.x + start.y + end.x + end.y)) return;
    PathKeeper keeper(c->cairo);
    cairo_save(c->cairo);
    cairo_pattern_t* pattern = graphics::pattern_of(gradient, start, end, c->state().alpha);
    cairo_pattern_set_extend(pattern, CAIRO_EXTEND_PAD);
    cairo_set_source(c->cairo, pattern);
    cairo_pattern_destroy(pattern);
    // What lies before the start or after the end is cut off by half planes, as far as can be seen.
    const double length = std::hypot(end.x - start.x, end.y - start.y);
    const CGPoint along = {(end.x - start.x) / length, (end.y - start.y) / length};
    const double reach = 1e6;
    const auto keep_half = [&](CGPoint edge, double direction) {
        const CGPoint across = {-along.y * reach, along.x * reach};
        const CGPoint far = {along.x * reach * direction, along.y * reach * direction};
        const CGPoint corners[] = {{edge.x - across.x, edge.y - across.y},
                                   {edge.x + across.x, edge.y + across.y},
                                   {edge.x + across.x + far.x, edge.y + across.y + far.y},
                                   {edge.x - across.x + far.x, edge.y - across.y + far.y}};
        for (const CGPoint& corner : corners) {
            const CGPoint p = c->safe(corner.x, corner.y);
            cairo_line_to(c->cairo, p.x, p.y);
        }
        cairo_clip(c->cairo);
    };
    if (length > 0) {
        if (!(options & kCGGradientDrawsBeforeStartLocation)) keep_half(start, 1);
        if (!(options & kCGGradientDrawsAfterEndLocation)) keep_half(end, -1);
        cairo_paint(c->cairo);
    }
    cairo_restore(c->cairo);
}
