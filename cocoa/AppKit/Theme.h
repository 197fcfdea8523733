// The looks of what AppKit itself draws: named colours, dark or light, and sizes.
#pragma once

#include <Foundation/NSGeometry.h>

@class NSColor, NSDictionary, NSFont, NSString;

namespace cocoa::theme {

void use_light(bool flag); // dark at first

NSColor* desktop();
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

// One line of text at the left (0), right (1) or middle (2) of the rectangle, in the middle of its
// height; for flipped and other views alike.
void draw_line(NSString* text, NSRect rect, NSFont* font, NSColor* color, unsigned alignment);
NSSize measure(NSString* text, NSFont* font);

// A rectangle with round corners, filled and, with a colour, outlined by a line of width 1 inside.
void draw_round(NSRect rect, double radius, NSColor* fill, NSColor* line);

} // namespace cocoa::theme
