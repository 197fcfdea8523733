// Text laid out by pango: one point is one unit, and nothing is hinted, so that a layout is the
// same at every scale.
#pragma once

#include <AppKit/NSFont.h>
#include <AppKit/NSParagraphStyle.h>
#include <AppKit/NSStringDrawing.h>

#include <memory>
#include <pango/pangocairo.h>

namespace text {

struct Release {
    void operator()(void* object) const { g_object_unref(object); }
};
struct FreeFont {
    void operator()(PangoFontDescription* font) const { pango_font_description_free(font); }
};
using LayoutPointer = std::unique_ptr<PangoLayout, Release>;
using FontPointer = std::unique_ptr<PangoFontDescription, FreeFont>;

PangoContext* context(); // shared by all texts

FontPointer description(NSFont* font);

// The lines of the text; wrapped and aligned if `width` (points) is given. Layouts are cached and
// shared: do not change them.
LayoutPointer layout(NSAttributedString* string, const double* width);

// In points.
NSSize size_of(PangoLayout* layout);

} // namespace text
