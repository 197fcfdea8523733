// Converts between the toolkit's 16-bit rectangles and Cocoa's frames.

#pragma once

#include "ADMLibrary/ADMTypes.h"

#include <Cocoa/Cocoa.h>

namespace adm {

// The low 16 bits: sums wrap.
constexpr std::int16_t wrap16(std::int64_t value) {
    return static_cast<std::int16_t>(value);
}

NSRect frame_of(const Rect& r);
// Truncates x, y, width and height before adding them up.
Rect rect_of(const NSRect& frame);

Rect union_of(const Rect& a, const Rect& b);
Rect moved_by(const Rect& r, const Rect& origin);

} // namespace adm

// The rectangle that a view needs. A text field's place stays and its size comes from its text: the
// text's width, rounded up, plus the font's point size, and the text's height. For any other view,
// its frame.
void CalculateControlBounds(NSControl* view, Rect* out);
