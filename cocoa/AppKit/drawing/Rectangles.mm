// Rectangles drawn by functions into the current context.
#include <AppKit/NSGraphicsContext.h>

#include <algorithm>

void NSRectFill(NSRect rect) {
    NSRectFillUsingOperation(rect, NSCompositeCopy);
}

void NSRectFillUsingOperation(NSRect rect, NSCompositingOperation operation) {
    NSGraphicsContext* context = [NSGraphicsContext currentContext];
    [context saveGraphicsState];
    [context setCompositingOperation:operation];
    CGContextFillRect([context CGContext], rect);
    [context restoreGraphicsState];
}

void NSFrameRect(NSRect rect) {
    NSFrameRectWithWidth(rect, 1);
}

void NSFrameRectWithWidth(NSRect rect, CGFloat width) {
    NSRect slice, rest = rect;
    for (NSRectEdge edge : {NSMinXEdge, NSMinYEdge, NSMaxXEdge, NSMaxYEdge}) {
        NSDivideRect(rest, &slice, &rest, width, edge);
        NSRectFill(slice);
    }
}

void NSRectClip(NSRect rect) {
    CGContextClipToRect([[NSGraphicsContext currentContext] CGContext], rect);
}

void NSEraseRect(NSRect rect) {
    CGContextRef context = [[NSGraphicsContext currentContext] CGContext];
    CGContextSaveGState(context);
    CGContextSetGrayFillColor(context, 1, 1);
    CGContextFillRect(context, rect);
    CGContextRestoreGState(context);
}
