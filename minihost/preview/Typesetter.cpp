// Text set by pango, taken as paths. Hints are off, so that outlines are the same at every size.

#include "minihost/preview/Typesetter.h"

#include <algorithm>
#include <pango/pangocairo.h>
#include <string>

namespace minihost::preview {

namespace {

// What is laid out of a name; more could not be read on a layer.
constexpr glong longest = 80;
constexpr double widest = 100000;

PangoFontDescription* font(PangoWeight weight) {
    PangoFontDescription* description = pango_font_description_from_string("Inter, sans-serif");
    pango_font_description_set_weight(description, weight);
    pango_font_description_set_absolute_size(description, Lettering::size * PANGO_SCALE);
    return description;
}

Outline outline_of(cairo_t* context) {
    Outline outline;
    cairo_path_t* path = cairo_copy_path(context);
    for (int i = 0; i < path->num_data; i += path->data[i].header.length) {
        const cairo_path_data_t* data = &path->data[i];
        const auto point = [data](int n) { return Point{data[n].point.x, data[n].point.y}; };
        switch (data->header.type) {
        case CAIRO_PATH_MOVE_TO:
            outline.move(point(1));
            break;
        case CAIRO_PATH_LINE_TO:
            outline.line(point(1));
            break;
        case CAIRO_PATH_CURVE_TO:
            outline.curve(point(1), point(2), point(3));
            break;
        case CAIRO_PATH_CLOSE_PATH:
            outline.close();
            break;
        }
    }
    cairo_path_destroy(path);
    return outline;
}

} // namespace

struct Lettering::Tools {
    // Without bounds: glyphs far outside of a surface are left out of paths.
    cairo_surface_t* surface = cairo_recording_surface_create(CAIRO_CONTENT_ALPHA, nullptr);
    cairo_t* context = cairo_create(surface);
    PangoFontDescription* regular = font(PANGO_WEIGHT_MEDIUM);
    PangoFontDescription* bold = font(PANGO_WEIGHT_BOLD);
    PangoLayout* layout = nullptr;

    Tools() {
        layout = pango_cairo_create_layout(context);
        cairo_font_options_t* options = cairo_font_options_create();
        cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
        cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
        pango_cairo_context_set_font_options(pango_layout_get_context(layout), options);
        cairo_font_options_destroy(options);
        pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
        pango_layout_set_single_paragraph_mode(layout, TRUE);
    }
    ~Tools() {
        g_object_unref(layout);
        pango_font_description_free(regular);
        pango_font_description_free(bold);
        cairo_destroy(context);
        cairo_surface_destroy(surface);
    }
    Tools(const Tools&) = delete;
    Tools& operator=(const Tools&) = delete;
};

Lettering::Lettering() : _tools(std::make_unique<Tools>()) {}
Lettering::~Lettering() = default;

TextLine Lettering::line(std::string_view text, double room, bool bold) const {
    std::string plain = plain_text(text);
    if (g_utf8_strlen(plain.data(), -1) > longest) {
        plain.erase(g_utf8_offset_to_pointer(plain.data(), longest - 1) - plain.data());
        plain += "\u2026";
    }
    PangoLayout* layout = _tools->layout;
    pango_layout_set_font_description(layout, bold ? _tools->bold : _tools->regular);
    pango_layout_set_text(layout, plain.data(), static_cast<int>(plain.size()));
    pango_layout_set_width(layout, static_cast<int>(std::clamp(room, 1.0, widest) * PANGO_SCALE));

    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    cairo_new_path(_tools->context);
    cairo_move_to(_tools->context, 0, 0);
    pango_cairo_layout_path(_tools->context, layout);
    TextLine line;
    line.outline = outline_of(_tools->context);
    line.width = pango_units_to_double(logical.width);
    line.height = pango_units_to_double(logical.height);
    cairo_new_path(_tools->context);
    return line;
}

} // namespace minihost::preview
