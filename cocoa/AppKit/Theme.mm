#include "Theme.h"

#include <AppKit/AppKit.h>

namespace cocoa::theme {

static NSColor* rgb(unsigned hex, double alpha = 1) {
    return [NSColor colorWithDeviceRed:(hex >> 16 & 255) / 255.0
                                 green:(hex >> 8 & 255) / 255.0
                                  blue:(hex & 255) / 255.0
                                 alpha:alpha];
}

NSColor* desktop() {
    return rgb(0x141416);
}
NSColor* window() {
    return rgb(0x262628);
}
NSColor* title_bar(bool key) {
    return rgb(key ? 0x38383b : 0x2c2c2e);
}
NSColor* outline() {
    return rgb(0x0b0b0c);
}
NSColor* menu() {
    return rgb(0x303033);
}
NSColor* separator() {
    return rgb(0x4a4a4e);
}
NSColor* text() {
    return rgb(0xdedee0);
}
NSColor* dim_text() {
    return rgb(0x808084);
}
NSColor* accent() {
    return rgb(0x2f7de1);
}
NSColor* accent_text() {
    return rgb(0xffffff);
}
NSColor* button() {
    return rgb(0x4a4a4e);
}
NSColor* button_pressed() {
    return rgb(0x2f7de1);
}
NSColor* button_outline() {
    return rgb(0x161618);
}
NSColor* field() {
    return rgb(0x1a1a1c);
}
NSColor* field_outline() {
    return rgb(0x58585c);
}
NSColor* knob() {
    return rgb(0xc4c4c8);
}
NSColor* neutral(double alpha) {
    return rgb(0x808084, alpha);
}

NSFont* font() {
    return [NSFont systemFontOfSize:12];
}
NSFont* bold_font() {
    return [NSFont boldSystemFontOfSize:12];
}
NSFont* menu_font() {
    return [NSFont systemFontOfSize:12];
}

static NSDictionary* attributes(NSFont* font, NSColor* color) {
    return [NSDictionary dictionaryWithObjectsAndKeys:font, NSFontAttributeName, color,
                                                      NSForegroundColorAttributeName, nil];
}

NSSize measure(NSString* text, NSFont* font) {
    return
        [text sizeWithAttributes:[NSDictionary
                                     dictionaryWithObjectsAndKeys:font, NSFontAttributeName, nil]];
}

void draw_line(NSString* text, NSRect rect, NSFont* font, NSColor* color, unsigned alignment) {
    if ([text length] == 0) return;
    const NSSize size = measure(text, font);
    const double room = rect.size.width - size.width;
    const double x = alignment == 1 ? room : alignment == 2 ? room / 2 : 0;
    const double y = (rect.size.height - size.height) / 2;
    [text drawAtPoint:NSMakePoint(rect.origin.x + x, rect.origin.y + y)
        withAttributes:attributes(font, color)];
}

void draw_round(NSRect rect, double radius, NSColor* fill, NSColor* line) {
    NSBezierPath* path = [NSBezierPath bezierPathWithRoundedRect:rect
                                                         xRadius:radius
                                                         yRadius:radius];
    if (fill) {
        [fill setFill];
        [path fill];
    }
    if (!line) return;
    path = [NSBezierPath bezierPathWithRoundedRect:NSInsetRect(rect, 0.5, 0.5)
                                           xRadius:radius
                                           yRadius:radius];
    [line setStroke];
    [path stroke];
}

} // namespace cocoa::theme
