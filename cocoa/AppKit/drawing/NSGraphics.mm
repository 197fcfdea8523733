#include <AppKit/NSGraphicsContext.h>

void NSRectFill(NSRect rect) {
    NSRectFillUsingOperation(rect, NSCompositeCopy);
}

void NSRectFillUsingOperation(NSRect rect, NSCompositingOperation operation) {
    CGContextRef context = [[NSGraphicsContext currentContext] CGContext];
    CGContextSaveGState(context);
    CGContextSetBlendMode(context,
                          operation == NSCompositeCopy ? kCGBlendModeCopy : kCGBlendModeNormal);
    CGContextFillRect(context, rect);
    CGContextRestoreGState(context);
}

void NSFrameRect(NSRect rect) {
    NSRectFill(NSMakeRect(NSMinX(rect), NSMinY(rect), 1, NSHeight(rect)));
    NSRectFill(NSMakeRect(NSMaxX(rect) - 1, NSMinY(rect), 1, NSHeight(rect)));
    NSRectFill(NSMakeRect(NSMinX(rect), NSMinY(rect), NSWidth(rect), 1));
    NSRectFill(NSMakeRect(NSMinX(rect), NSMaxY(rect) - 1, NSWidth(rect), 1));
}

void NSRectClip(NSRect rect) {
    CGContextClipToRect([[NSGraphicsContext currentContext] CGContext], rect);
}
