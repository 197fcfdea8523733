// The window's own colours in both palettes, and its lines of text.

#pragma once

#include "minihost/suites/Colors.h"

#include <Cocoa/Cocoa.h>
#include <string>

namespace minihost::look {

enum class Part {
    Panel,  // behind the docked panel, as the plug-in draws it
    Header, // above a part
    HeaderText,
    List,
    Stripe, // every other row
    Text,
    DimText,
    Line,         // between parts
    Selected,     // row of a list that has the focus
    SelectedIdle, // of one that has not
    SelectedText,
    Highlight, // around what is selected in the composition
};

// For the whole process, like the host's palette.
void use(Palette palette);
NSColor* color(Part part);

void fill(NSRect rect, Part part);
NSFont* font();
// One line in the middle of the rectangle's height, cut with an ellipsis where it does not fit.
// Alignment: 0 left, 1 right, 2 middle. Any bytes are taken.
void draw_text(const std::string& utf8, NSRect rect, NSColor* color, int alignment = 0);
NSString* string(const std::string& utf8);

} // namespace minihost::look
