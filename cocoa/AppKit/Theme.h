// The look of what AppKit draws: named colours, dark or light, fonts, sizes and shapes.
#pragma once

#include <AppKit/NSParagraphStyle.h>

@class NSColor, NSFont;

namespace cocoa::theme {

void use_light(bool flag); // dark at first

NSColor* window();
NSColor* title_bar(bool key);
NSColor* outline();
NSColor* menu();
NSColor* separator();
NSColor* text();
NSColor* dim_text();
NSColor* accent();
NSColor* accent_text();
NSColor* button();
NSColor* button_pressed();
NSColor* button_outline();
NSColor* field();
NSColor* field_outline();
NSColor* knob();
NSColor* neutral(double alpha); // a grey for dark and light surroundings

NSFont* font();
NSFont* bold_font();
NSFont* menu_font();

constexpr double menu_bar_height = 24;
constexpr double menu_row_height = 20;
constexpr double menu_separator_height = 9;
constexpr double ring_width = 2;

// One line of text, in the middle of the rectangle's height, flipped or not.
void draw_line(NSString* text, NSRect rect, NSFont* font, NSColor* color,
               NSTextAlignment alignment);
NSSize measure(NSString* text, NSFont* font);

// A rectangle with round corners, filled, and outlined by a line of width 1 inside; nil for either
// leaves it out.
void draw_round(NSRect rect, double radius, NSColor* fill, NSColor* line);

} // namespace cocoa::theme
