// Rectangles and images.
#include "CairoContext.h"

void CGContextFillRect(CGContextRef context, CGRect rect) {
    CGContextBeginPath(context);
    CGContextAddRect(context, rect);
    CGContextFillPath(context);
}

void CGContextStrokeRect(CGContextRef context, CGRect rect) {
    CGContextBeginPath(context);
    CGContextAddRect(context, rect);
    CGContextStrokePath(context);
}

void CGContextClearRect(CGContextRef context, CGRect rect) {
    CGContextSaveGState(context);
    CGContextSetBlendMode(context, kCGBlendModeClear);
    CGContextFillRect(context, rect);
    CGContextRestoreGState(context);
}

void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image) {
    graphics::CairoContext* c = graphics::context_of(context);
    rect = CGRectStandardize(rect);
    if (!c || !c->state().drawable || !image || rect.size.width == 0 || rect.size.height == 0)
        return;
    const graphics::Pixels& pixels = *graphics::pixels_of(image);
    cairo_path_t* path = cairo_copy_path(c->cairo); // the context's, which clipping would clear
    cairo_new_path(c->cairo);
    cairo_save(c->cairo);
    c->add_rect(rect);
    cairo_clip(c->cairo);
    cairo_translate(c->cairo, rect.origin.x, rect.origin.y + rect.size.height);
    cairo_scale(c->cairo, rect.size.width / static_cast<double>(pixels.width),
                -rect.size.height / static_cast<double>(pixels.height));
    cairo_set_source_surface(c->cairo, pixels.surface, 0, 0);
    // Pixels at the edge of an enlarged image do not fade into transparency.
    cairo_pattern_set_extend(cairo_get_source(c->cairo), CAIRO_EXTEND_PAD);
    cairo_paint(c->cairo);
    cairo_restore(c->cairo);
    cairo_append_path(c->cairo, path);
    cairo_path_destroy(path);
}
