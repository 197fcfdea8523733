#include "CoreGraphics/CairoContext.h"
#include "TextLayout.h"

#include <AppKit/NSGraphicsContext.h>

NSString* const NSFontAttributeName = @"NSFont";
NSString* const NSForegroundColorAttributeName = @"NSColor";
NSString* const NSParagraphStyleAttributeName = @"NSParagraphStyle";

namespace {

// The current context's cairo; null when nothing can be drawn.
cairo_t* current_cairo() {
    graphics::CairoContext* context =
        graphics::context_of([[NSGraphicsContext currentContext] CGContext]);
    return context && context->state().drawable ? context->cairo : nullptr;
}

// Draws the lines that fit between the layout's top, at (x, top), and `height` below it. In the
// context y goes up unless it is flipped; the lines go down from the top in both.
void draw_lines(PangoLayout* layout, double x, double top, double height, bool flipped) {
    cairo_t* cairo = current_cairo();
    if (!cairo) return;
    cairo_save(cairo);
    cairo_translate(cairo, x, top);
    if (!flipped) cairo_scale(cairo, 1, -1);
    cairo_set_source_rgba(cairo, 0, 0, 0, 1);
    cairo_new_path(cairo);

    PangoLayoutIter* iterator = pango_layout_get_iter(layout);
    bool first = true;
    do {
        PangoRectangle line;
        pango_layout_iter_get_line_extents(iterator, nullptr, &line);
        if (!first && pango_units_to_double(line.y + line.height) > height + 0.5) break;
        first = false;
        cairo_move_to(cairo, pango_units_to_double(line.x),
                      pango_units_to_double(pango_layout_iter_get_baseline(iterator)));
        pango_cairo_show_layout_line(cairo, pango_layout_iter_get_line_readonly(iterator));
    } while (pango_layout_iter_next_line(iterator));
    pango_layout_iter_free(iterator);
    cairo_new_path(cairo);
    cairo_restore(cairo);
}

NSAttributedString* attributed(NSString* string, NSDictionary* attributes) {
    return [[[NSAttributedString alloc] initWithString:string attributes:attributes] autorelease];
}

} // namespace

@implementation NSAttributedString (NSStringDrawing)

- (NSSize)size {
    if (![self length]) return NSMakeSize(0, 0);
    return text::size_of(text::layout(self, nullptr).get());
}

- (void)drawAtPoint:(NSPoint)point {
    if (![self length]) return;
    const text::LayoutPointer layout = text::layout(self, nullptr);
    const double height = text::size_of(layout.get()).height;
    const bool flipped = [[NSGraphicsContext currentContext] isFlipped];
    draw_lines(layout.get(), point.x, flipped ? point.y : point.y + height, height, flipped);
}

- (void)drawInRect:(NSRect)rect {
    if (![self length] || NSIsEmptyRect(rect)) return;
    cairo_t* cairo = current_cairo();
    if (!cairo) return;
    const text::LayoutPointer layout = text::layout(self, &rect.size.width);
    const bool flipped = [[NSGraphicsContext currentContext] isFlipped];
    cairo_save(cairo);
    cairo_new_path(cairo);
    cairo_rectangle(cairo, rect.origin.x, rect.origin.y, rect.size.width, rect.size.height);
    cairo_clip(cairo);
    draw_lines(layout.get(), rect.origin.x, flipped ? NSMinY(rect) : NSMaxY(rect), rect.size.height,
               flipped);
    cairo_restore(cairo);
}

@end

@implementation NSString (NSStringDrawing)

- (NSSize)sizeWithAttributes:(NSDictionary*)attributes {
    return [attributed(self, attributes) size];
}

- (void)drawAtPoint:(NSPoint)point withAttributes:(NSDictionary*)attributes {
    [attributed(self, attributes) drawAtPoint:point];
}

- (void)drawInRect:(NSRect)rect withAttributes:(NSDictionary*)attributes {
    [attributed(self, attributes) drawInRect:rect];
}

@end
