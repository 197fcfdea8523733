#include "TextLayout.h"

#include "AppKit/drawing/NSColorPrivate.h"
#include "Foundation/NSStringStorage.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>

namespace text {

namespace {

// Pango counts in 32-bit numbers of 1024ths of a point: longer texts are cut.
constexpr double largest_width = 1e6;
constexpr std::size_t most_bytes = 1 << 18;

PangoContext* make_context() {
    PangoFontMap* map = pango_cairo_font_map_new();
    pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map), 72);
    PangoContext* made = pango_font_map_create_context(map);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(made, options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(made, FALSE);
    g_object_unref(map);
    return made;
}

// The bytes that a layout can hold, up to the end of a character.
std::string_view cut(std::string_view text) {
    if (text.size() <= most_bytes) return text;
    std::size_t end = most_bytes;
    while (end > 0 && (text[end] & 0xc0) == 0x80) --end;
    return text.substr(0, end);
}

guint16 part(double value) {
    return static_cast<guint16>(std::lround(std::clamp(value, 0.0, 1.0) * 65535));
}

void insert_attributes(PangoAttrList* list, NSFont* font, NSColor* color) {
    pango_attr_list_insert(list, pango_attr_font_desc_new(description(font).get()));
    if (!color) return;
    // With red and blue exchanged, as in all drawing.
    const graphics::Color c = [color components];
    pango_attr_list_insert(list,
                           pango_attr_foreground_new(part(c.blue), part(c.green), part(c.red)));
    // Pango ignores an attribute of alpha 0.
    pango_attr_list_insert(list,
                           pango_attr_foreground_alpha_new(std::max<guint16>(1, part(c.alpha))));
}

LayoutPointer make_layout(std::string_view text, NSFont* font, NSColor* color,
                          NSParagraphStyle* style, const double* width) {
    LayoutPointer made(pango_layout_new(context()));
    // A string literal may hold bytes that are not UTF-8; pango shows them as such.
    pango_layout_set_text(made.get(), text.data(), static_cast<int>(text.size()));
    if (width) {
        pango_layout_set_width(made.get(),
                               pango_units_from_double(std::clamp(*width, 0.0, largest_width)));
        pango_layout_set_wrap(made.get(), PANGO_WRAP_WORD_CHAR);
        const NSTextAlignment alignment = [style alignment];
        pango_layout_set_alignment(made.get(),
                                   alignment == NSCenterTextAlignment  ? PANGO_ALIGN_CENTER
                                   : alignment == NSRightTextAlignment ? PANGO_ALIGN_RIGHT
                                                                       : PANGO_ALIGN_LEFT);
    }
    PangoAttrList* list = pango_attr_list_new();
    insert_attributes(list, font, color);
    pango_layout_set_attributes(made.get(), list);
    pango_attr_list_unref(list);
    return made;
}

template <typename Value>
void append(std::string& key, Value value) {
    key.append(reinterpret_cast<const char*>(&value), sizeof value);
}

// Equal for two layouts exactly if they are made from the same.
std::string cache_key(std::string_view text, NSFont* font, NSColor* color, NSParagraphStyle* style,
                      const double* width) {
    std::string key;
    append(key, width != nullptr);
    append(key, width ? *width : 0);
    append(key, width ? [style alignment] : 0);
    append(key, [font pointSize]);
    key.append(utf8_of([font fontName])) += '\0';
    append(key, color != nil);
    if (color) append(key, [color components]);
    return key.append(text);
}

// Dialogs draw the same short texts again and again. The cache has room for those of a few dialogs.
constexpr std::size_t most_cached = 256, longest_cached = 256;

} // namespace

PangoContext* context() {
    static PangoContext* const shared = make_context();
    return shared;
}

LayoutPointer layout(NSAttributedString* string, const double* width) {
    static std::unordered_map<std::string, LayoutPointer> cache;
    NSString* characters = [string string];
    const std::string_view text = cut(utf8_of(characters));
    NSDictionary* attributes =
        [string length] ? [string attributesAtIndex:0 effectiveRange:NULL] : nil;
    NSFont* font = [attributes objectForKey:NSFontAttributeName];
    if (!font) font = [NSFont systemFontOfSize:12];
    NSColor* color = [attributes objectForKey:NSForegroundColorAttributeName];
    NSParagraphStyle* style = [attributes objectForKey:NSParagraphStyleAttributeName];
    if (text.size() > longest_cached) return make_layout(text, font, color, style, width);
    std::string key = cache_key(text, font, color, style, width);
    auto place = cache.find(key);
    if (place == cache.end()) {
        if (cache.size() >= most_cached) cache.clear();
        place = cache.emplace(std::move(key), make_layout(text, font, color, style, width)).first;
    }
    return LayoutPointer(static_cast<PangoLayout*>(g_object_ref(place->second.get())));
}

// Heights are whole points, as on the platform: a view made as high as its text, in whole points,
// shows all of it.
NSSize size_of(PangoLayout* layout) {
    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    return NSMakeSize(pango_units_to_double(logical.width),
                      std::ceil(pango_units_to_double(logical.height)));
}

} // namespace text
