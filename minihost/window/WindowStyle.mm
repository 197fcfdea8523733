#include "minihost/window/WindowStyle.h"

#include "minihost/preview/PrintableText.h"

#include <cmath>

namespace minihost::style {

namespace {

Palette current_palette = Palette::Dark;

struct Row {
    ColorRole role;
    unsigned dark, light; // 0xRRGGBB
};
constexpr Row rows[] = {
    {ColorRole::Panel, 0x353535, 0xd2d2d2},        {ColorRole::Header, 0x2b2b2b, 0xc2c2c2},
    {ColorRole::HeaderText, 0xc8c8c8, 0x303030},   {ColorRole::List, 0x262626, 0xf2f2f2},
    {ColorRole::Stripe, 0x2a2a2a, 0xeaeaea},       {ColorRole::Text, 0xdcdcdc, 0x1c1c1c},
    {ColorRole::DimText, 0x909090, 0x6a6a6a},      {ColorRole::Line, 0x161616, 0x9c9c9c},
    {ColorRole::Selected, 0x2f62a6, 0x2f6fc4},     {ColorRole::SelectedIdle, 0x45505e, 0xb9c8dc},
    {ColorRole::SelectedText, 0xffffff, 0xffffff}, {ColorRole::Highlight, 0x5cb8ff, 0x5cb8ff},
};

// The longest prefix that fits together with an ellipsis.
NSString* truncated(NSString* text, NSDictionary* attributes, double width) {
    NSUInteger low = 0, high = [text length];
    NSString* ellipsis = @"…";
    while (low < high) {
        const NSUInteger middle = (low + high + 1) / 2;
        NSString* part = [[text substringToIndex:middle] stringByAppendingString:ellipsis];
        if ([part sizeWithAttributes:attributes].width <= width)
            low = middle;
        else
            high = middle - 1;
    }
    // Not between two surrogates.
    if (low > 0 && ([text characterAtIndex:low - 1] & 0xfc00) == 0xd800) --low;
    return [[text substringToIndex:low] stringByAppendingString:ellipsis];
}

} // namespace

void use_palette(Palette palette) {
    current_palette = palette;
}

NSColor* color(ColorRole role) {
    unsigned hex = 0;
    for (const Row& row : rows)
        if (row.role == role) hex = current_palette == Palette::Dark ? row.dark : row.light;
    return [NSColor colorWithDeviceRed:(hex >> 16) / 255.0
                                 green:(hex >> 8 & 255) / 255.0
                                  blue:(hex & 255) / 255.0
                                 alpha:1];
}

void fill(NSRect rect, ColorRole role) {
    [color(role) setFill];
    NSRectFill(rect);
}

NSFont* font() {
    return [NSFont systemFontOfSize:12];
}

double text_width(const std::string& utf8) {
    NSDictionary* attributes =
        [NSDictionary dictionaryWithObjectsAndKeys:font(), NSFontAttributeName, nil];
    return [printable_string(utf8) sizeWithAttributes:attributes].width;
}

NSString* printable_string(const std::string& utf8) {
    NSString* text = [NSString stringWithUTF8String:preview::printable_text(utf8).c_str()];
    return text ? text : @"";
}

void draw_text(const std::string& utf8, NSRect rect, NSColor* color, NSTextAlignment alignment) {
    constexpr std::size_t max_bytes = 1000; // no line of a window shows more
    NSString* text = printable_string(utf8.substr(0, max_bytes));
    if ([text length] == 0 || rect.size.width < 8) return;
    NSDictionary* attributes =
        [NSDictionary dictionaryWithObjectsAndKeys:font(), NSFontAttributeName, color,
                                                   NSForegroundColorAttributeName, nil];
    NSSize size = [text sizeWithAttributes:attributes];
    if (size.width > rect.size.width) {
        text = truncated(text, attributes, rect.size.width);
        size = [text sizeWithAttributes:attributes];
        alignment = NSLeftTextAlignment;
    }
    const double room = rect.size.width - size.width;
    const double x = alignment == NSRightTextAlignment    ? room
                     : alignment == NSCenterTextAlignment ? std::floor(room / 2)
                                                          : 0;
    [text drawAtPoint:NSMakePoint(NSMinX(rect) + x,
                                  NSMinY(rect) + (rect.size.height - size.height) / 2)
        withAttributes:attributes];
}

} // namespace minihost::style
