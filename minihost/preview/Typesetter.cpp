#include "minihost/preview/Typesetter.h"

#include "minihost/preview/PrintableText.h"

#include <algorithm>
#include <pango/pangocairo.h>
#include <string>

namespace minihost::preview {

namespace {

constexpr glong max_characters = 80; // more could not be read on a layer
constexpr double max_width = 100000;

PangoFontDescription* font(PangoWeight weight) {
    PangoFontDescription* description = pango_font_description_from_string("Inter, sans-serif");
    pango_font_description_set_weight(description, weight);
    pango_font_description_set_absolute_size(description, Typesetter::size * PANGO_SCALE);
    return description;
}

Path path_of(cairo_t* context) {
    Path copy;
    cairo_path_t* path = cairo_copy_path(context);
    for (int i = 0; i < path->num_data; i += path->data[i].header.length) {
        const cairo_path_data_t* data = &path->data[i];
        const auto point = [data](int n) { return Point{data[n].point.x, data[n].point.y}; };
        switch (data->header.type) {
        case CAIRO_PATH_MOVE_TO:
            copy.move(point(1));
            break;
        case CAIRO_PATH_LINE_TO:
            copy.line(point(1));
            break;
        case CAIRO_PATH_CURVE_TO:
            copy.curve(point(1), point(2), point(3));
            break;
        case CAIRO_PATH_CLOSE_PATH:
            copy.close();
            break;
        }
    }
    cairo_path_destroy(path);
    return copy;
}

} // namespace

struct Typesetter::Pango {
    // Unbounded: glyphs far outside a surface would be left out of paths.
    cairo_surface_t* surface = cairo_recording_surface_create(CAIRO_CONTENT_ALPHA, nullptr);
    cairo_t* context = cairo_create(surface);
    PangoFontDescription* regular = font(PANGO_WEIGHT_MEDIUM);
    PangoFontDescription* bold = font(PANGO_WEIGHT_BOLD);
    PangoLayout* layout = nullptr;

    Pango() {
        layout = pango_cairo_create_layout(context);
        cairo_font_options_t* options = cairo_font_options_create();
        // No hints: paths are the same at every size.
        cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
        cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
        pango_cairo_context_set_font_options(pango_layout_get_context(layout), options);
        cairo_font_options_destroy(options);
        pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
        pango_layout_set_single_paragraph_mode(layout, TRUE);
    }
    ~Pango() {
        g_object_unref(layout);
        pango_font_description_free(regular);
        pango_font_description_free(bold);
        cairo_destroy(context);
        cairo_surface_destroy(surface);
    }
    Pango(const Pango&) = delete;
    Pango& operator=(const Pango&) = delete;
};

Typesetter::Typesetter() : _pango(std::make_unique<Pango>()) {}
Typesetter::~Typesetter() = default;

TextLine Typesetter::line(std::string_view text, double room, bool bold) const {
    std::string shown = printable_text(text);
    if (g_utf8_strlen(shown.data(), -1) > max_characters) {
        shown.erase(g_utf8_offset_to_pointer(shown.data(), max_characters - 1) - shown.data());
        shown += "\u2026";
    }
    PangoLayout* layout = _pango->layout;
    pango_layout_set_font_description(layout, bold ? _pango->bold : _pango->regular);
    pango_layout_set_text(layout, shown.data(), static_cast<int>(shown.size()));
    pango_layout_set_width(layout,
                           static_cast<int>(std::clamp(room, 1.0, max_width) * PANGO_SCALE));

    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    cairo_new_path(_pango->context);
    cairo_move_to(_pango->context, 0, 0);
    pango_cairo_layout_path(_pango->context, layout);
    TextLine line;
    line.path = path_of(_pango->context);
    line.width = pango_units_to_double(logical.width);
    line.height = pango_units_to_double(logical.height);
    cairo_new_path(_pango->context);
    return line;
}

} // namespace minihost::preview
