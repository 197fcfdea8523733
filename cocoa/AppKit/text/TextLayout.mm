#include "TextLayout.h"

#include "Foundation/StringText.h"

#include <AppKit/NSColor.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <unordered_map>
#include <vector>

namespace text {

namespace {

// Pango counts in 32-bit numbers of 1024ths of a point: what is longer is cut.
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

// At most the bytes that a layout can hold, cut between two characters.
std::string_view shown(std::string_view text) {
    if (text.size() <= most_bytes) return text;
    std::size_t end = most_bytes;
    while (end > 0 && (text[end] & 0xc0) == 0x80) --end;
    return text.substr(0, end);
}

guint16 part(double value) {
    return static_cast<guint16>(std::lround(std::clamp(value, 0.0, 1.0) * 65535));
}

void insert(PangoAttrList* list, PangoAttribute* attribute, std::size_t start, std::size_t end) {
    attribute->start_index = static_cast<guint>(start);
    attribute->end_index = static_cast<guint>(end);
    pango_attr_list_insert(list, attribute);
}

// A part of a text that looks the same throughout.
struct Run {
    std::size_t start, end; // bytes
    NSFont* font;
    NSColor* color; // of the device's space; nil for the usual one
};

// The text's colour goes in with red and blue exchanged, as all that is drawn.
void insert_attributes(PangoAttrList* list, const Run& run) {
    insert(list, pango_attr_font_desc_new(description(run.font).get()), run.start, run.end);
    NSColor* color = run.color;
    if (!color) return;
    insert(list,
           pango_attr_foreground_new(part([color blueComponent]), part([color greenComponent]),
                                     part([color redComponent])),
           run.start, run.end);
    // Pango takes no attribute of alpha 0 for one.
    insert(list,
           pango_attr_foreground_alpha_new(std::max<guint16>(1, part([color alphaComponent]))),
           run.start, run.end);
}

// How many bytes the first `units` UTF-16 units of the text take.
std::size_t bytes_of_units(std::string_view text, NSUInteger units) {
    std::size_t at = 0;
    while (at < text.size() && units > 0) {
        const unsigned char lead = static_cast<unsigned char>(text[at]);
        const std::size_t length = lead < 0x80 ? 1 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : 4;
        units -= length == 4 && units > 1 ? 2 : 1;
        at += length;
    }
    return std::min(at, text.size());
}

PangoAlignment alignment_of(NSParagraphStyle* style) {
    switch ([style alignment]) {
    case NSRightTextAlignment:
        return PANGO_ALIGN_RIGHT;
    case NSCenterTextAlignment:
        return PANGO_ALIGN_CENTER;
    default:
        return PANGO_ALIGN_LEFT;
    }
}

// The first paragraph's style is that of the whole.
void set_style(PangoLayout* layout, NSParagraphStyle* style, double width) {
    if (!style) style = [NSParagraphStyle defaultParagraphStyle];
    pango_layout_set_width(layout, pango_units_from_double(std::clamp(width, 0.0, largest_width)));
    pango_layout_set_alignment(layout, alignment_of(style));
    pango_layout_set_justify(layout, [style alignment] == NSJustifiedTextAlignment);
    switch ([style lineBreakMode]) {
    case NSLineBreakByCharWrapping:
        pango_layout_set_wrap(layout, PANGO_WRAP_CHAR);
        break;
    case NSLineBreakByTruncatingHead:
        pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_START);
        break;
    case NSLineBreakByTruncatingTail:
        pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
        break;
    case NSLineBreakByTruncatingMiddle:
        pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_MIDDLE);
        break;
    case NSLineBreakByClipping:
        pango_layout_set_width(layout, -1);
        break;
    default:
        pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
        break;
    }
}

std::vector<Run> runs_of(NSAttributedString* string, std::string_view text) {
    std::vector<Run> runs;
    const NSUInteger length = [string length];
    std::size_t start = 0;
    for (NSUInteger at = 0; at < length && start < text.size();) {
        NSRange range;
        NSDictionary* attributes = [string attributesAtIndex:at effectiveRange:&range];
        at = range.location + range.length;
        const std::size_t end =
            at == length ? text.size() : start + bytes_of_units(text.substr(start), range.length);
        NSFont* font = [attributes objectForKey:NSFontAttributeName];
        NSColor* color = [attributes objectForKey:NSForegroundColorAttributeName];
        runs.push_back({start, end, font ? font : [NSFont systemFontOfSize:12],
                        [color colorUsingColorSpaceName:NSDeviceRGBColorSpace]});
        start = end;
    }
    return runs;
}

LayoutPointer make_layout(std::string_view text, const std::vector<Run>& runs,
                          NSParagraphStyle* style, const double* width) {
    LayoutPointer made(pango_layout_new(context()));
    // A string made from a literal may hold bytes that are no UTF-8; pango shows them as such.
    pango_layout_set_text(made.get(), text.data(), static_cast<int>(text.size()));
    if (width) set_style(made.get(), style, *width);
    PangoAttrList* list = pango_attr_list_new();
    for (const Run& run : runs) insert_attributes(list, run);
    pango_layout_set_attributes(made.get(), list);
    pango_attr_list_unref(list);
    return made;
}

template <typename Value>
void append(std::string& key, Value value) {
    key.append(reinterpret_cast<const char*>(&value), sizeof value);
}

// All that a layout comes from: the same for two exactly if their layouts are.
std::string recipe(std::string_view text, const std::vector<Run>& runs, NSParagraphStyle* style,
                   const double* width) {
    std::string key;
    append(key, width != nullptr);
    append(key, width ? *width : 0);
    append(key, width ? [style alignment] : 0);
    append(key, width ? [style lineBreakMode] : 0);
    for (const Run& run : runs) {
        append(key, run.end);
        append(key, [run.font pointSize]);
        key.append(text_of([run.font fontName])) += '\0';
        append(key, run.color != nil);
        if (!run.color) continue;
        append(key, [run.color redComponent]);
        append(key, [run.color greenComponent]);
        append(key, [run.color blueComponent]);
        append(key, [run.color alphaComponent]);
    }
    return key.append(text);
}

// Dialogs draw the same short texts again and again. As many are kept as a few dialogs have.
constexpr std::size_t most_kept = 256, longest_kept = 256;

} // namespace

PangoContext* context() {
    static PangoContext* const shared = make_context();
    return shared;
}

FontPointer description(const char* family, double size, bool bold, bool italic) {
    FontPointer font(pango_font_description_new());
    pango_font_description_set_family(font.get(), family);
    pango_font_description_set_absolute_size(font.get(),
                                             std::min(size, largest_width) * PANGO_SCALE);
    if (bold) pango_font_description_set_weight(font.get(), PANGO_WEIGHT_BOLD);
    if (italic) pango_font_description_set_style(font.get(), PANGO_STYLE_ITALIC);
    return font;
}

LayoutPointer layout(NSAttributedString* string, const double* width) {
    static std::unordered_map<std::string, LayoutPointer> kept;
    NSString* characters = [string string];
    const std::string_view text = shown(text_of(characters));
    const std::vector<Run> runs = runs_of(string, text);
    NSParagraphStyle* style = nil;
    if (width && [string length]) {
        style = [[string attributesAtIndex:0
                            effectiveRange:NULL] objectForKey:NSParagraphStyleAttributeName];
        if (!style) style = [NSParagraphStyle defaultParagraphStyle];
    }
    if (text.size() > longest_kept) return make_layout(text, runs, style, width);
    std::string key = recipe(text, runs, style, width);
    auto place = kept.find(key);
    if (place == kept.end()) {
        if (kept.size() >= most_kept) kept.clear();
        place = kept.emplace(std::move(key), make_layout(text, runs, style, width)).first;
    }
    return LayoutPointer(static_cast<PangoLayout*>(g_object_ref(place->second.get())));
}

// Heights are whole points, as the platform's are: a view that is made as high as its text, in
// whole points, then shows all of it.
NSSize size_of(PangoLayout* layout) {
    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    return NSMakeSize(pango_units_to_double(logical.width),
                      std::ceil(pango_units_to_double(logical.height)));
}

} // namespace text
