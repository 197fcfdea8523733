// Between the toolkit's rectangles of 16-bit numbers and Cocoa's frames.

#pragma once

#include "ADMLibrary/ADMTypes.h"

#include <Cocoa/Cocoa.h>

namespace adm {

// What 16 bits hold of a sum: it wraps.
constexpr std::int16_t wrap16(std::int64_t value) {
    return static_cast<std::int16_t>(value);
}

// Truncated toward zero; beyond 32 bits the nearest that they hold, 0 for what is no number.
int truncated(double value);

NSRect frame_of(const Rect& r);
// Each of x, y, width and height is truncated before they are added up.
Rect rect_of(const NSRect& frame);

Rect union_of(const Rect& a, const Rect& b);
Rect moved_by(const Rect& r, const Rect& origin);

} // namespace adm

// The rectangle that a view needs: a text field's by its text, at its own place (width: that of the
// text rounded up, and the font's point size; height: that of the text); any other view's frame.
void CalculateControlBounds(NSControl* view, Rect* out);
