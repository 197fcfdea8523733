#include "Theme.h"

#include <AppKit/AppKit.h>

namespace cocoa::theme {

static NSColor* rgb(unsigned hex, double alpha = 1) {
    return [NSColor colorWithDeviceRed:(hex >> 16 & 255) / 255.0
                                 green:(hex >> 8 & 255) / 255.0
                                  blue:(hex & 255) / 255.0
                                 alpha:alpha];
}

static bool light = false;

void use_light(bool flag) {
    light = flag;
}

static NSColor* either(unsigned dark_hex, unsigned light_hex) {
    return rgb(light ? light_hex : dark_hex);
}

NSColor* window() {
    return either(0x262628, 0xececee);
}
NSColor* title_bar(bool key) {
    return key ? either(0x38383b, 0xdcdcdf) : either(0x2c2c2e, 0xe6e6e8);
}
NSColor* outline() {
    return either(0x0b0b0c, 0xa6a6aa);
}
NSColor* menu() {
    return either(0x303033, 0xf4f4f6);
}
NSColor* separator() {
    return either(0x4a4a4e, 0xc8c8cc);
}
NSColor* text() {
    return either(0xdedee0, 0x1d1d1f);
}
NSColor* dim_text() {
    return either(0x808084, 0x8a8a8e);
}
NSColor* accent() {
    return either(0x2f7de1, 0x1f6fd6);
}
NSColor* accent_text() {
    return rgb(0xffffff);
}
NSColor* button() {
    return either(0x4a4a4e, 0xffffff);
}
NSColor* button_pressed() {
    return either(0x2f7de1, 0x1f6fd6);
}
NSColor* button_outline() {
    return either(0x161618, 0xb0b0b4);
}
NSColor* field() {
    return either(0x1a1a1c, 0xffffff);
}
NSColor* field_outline() {
    return either(0x58585c, 0xb4b4b8);
}
NSColor* knob() {
    return either(0xc4c4c8, 0xffffff);
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

void draw_line(NSString* text, NSRect rect, NSFont* font, NSColor* color,
               NSTextAlignment alignment) {
    if ([text length] == 0) return;
    const NSSize size = measure(text, font);
    const double room = rect.size.width - size.width;
    const double x = alignment == NSRightTextAlignment    ? room
                     : alignment == NSCenterTextAlignment ? room / 2
                                                          : 0;
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
