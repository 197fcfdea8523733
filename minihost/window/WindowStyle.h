// The window's own colours in both palettes, and how it draws text.

#pragma once

#include "minihost/suites/Colors.h"

#include <Cocoa/Cocoa.h>
#include <string>

namespace minihost::style {

enum class ColorRole {
    Panel,  // behind the docked panel, as the plug-in draws it
    Header, // above a part
    HeaderText,
    List,
    Stripe, // every other row
    Text,
    DimText,
    Line,         // between parts
    Selected,     // row of a list that has the focus
    SelectedIdle, // row of a list without it
    SelectedText,
    Highlight, // around what is selected in the composition
};

// For the whole process, like the host's palette.
void use_palette(Palette palette);
NSColor* color(ColorRole role);

void fill(NSRect rect, ColorRole role);
NSFont* font();
double text_width(const std::string& utf8);
// One line, vertically centred; cut with an ellipsis if it does not fit. Any bytes are accepted.
void draw_text(const std::string& utf8, NSRect rect, NSColor* color,
               NSTextAlignment alignment = NSLeftTextAlignment);
// Of any bytes.
NSString* printable_string(const std::string& utf8);

} // namespace minihost::style
