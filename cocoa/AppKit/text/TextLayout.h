// Text as pango lays it out: one point is one unit, glyphs stand where their advances put them, and
// nothing is hinted, so that a layout is the same at every scale.
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

// The one context of all texts.
PangoContext* context();

FontPointer description(const char* family, double size, bool bold, bool italic);
FontPointer description(NSFont* font);

// One line after the other as the text has them; wrapped and aligned if `width` (points) is given.
// Not to be changed: the layout of a text that was asked for before may be the same one.
LayoutPointer layout(NSAttributedString* string, const double* width);

// In points.
NSSize size_of(PangoLayout* layout);

} // namespace text
