#include "bench/BarePanel.h"

#include <memory>
#include <numbers>
#include <pango/pangocairo.h>
#include <utility>

namespace bench {

namespace {

using minihost::Control;

struct Freed {
    void operator()(cairo_t* it) const { cairo_destroy(it); }
    void operator()(cairo_surface_t* it) const { cairo_surface_destroy(it); }
    void operator()(cairo_pattern_t* it) const { cairo_pattern_destroy(it); }
    void operator()(PangoLayout* it) const { g_object_unref(it); }
    void operator()(PangoFontDescription* it) const { pango_font_description_free(it); }
};
template <typename Type>
using Owned = std::unique_ptr<Type, Freed>;

struct Rect {
    double x, y, width, height;
    Rect inset(double by) const { return {x + by, y + by, width - 2 * by, height - 2 * by}; }
};

class Painter {
  public:
    Painter(cairo_surface_t* surface, double scale)
        : _cairo(cairo_create(surface)), _font(pango_font_description_from_string("Inter")) {
        cairo_scale(_cairo.get(), scale, scale);
        cairo_set_line_width(_cairo.get(), 1);
        pango_font_description_set_absolute_size(_font.get(), 9 * PANGO_SCALE);
    }

    void background(Rect r) { fill(r, 0.2); }

    void control(const Control& it) {
        const Rect r{it.left, it.top, it.right - it.left, it.bottom - it.top};
        const bool on = std::holds_alternative<bool>(it.value) && std::get<bool>(it.value);
        if (it.kind == "button") {
            button(r, it.enabled);
            text(r, it.text, it.enabled, true);
        } else if (it.kind == "check box") {
            check_box(r, it.enabled, on);
        } else if (it.kind == "radio button") {
            radio_button(r, it.enabled, on);
        } else if (it.kind == "pop-up") {
            popup(r, it.text, it.enabled);
        } else if (it.kind == "edit") {
            fill(r, 0.78);
            outline(r.inset(0.5), 0.5, 1);
            text({r.x + 2, r.y, r.width - 4, r.height}, it.text, it.enabled, false);
        } else if (it.kind == "text") {
            text(r, it.text, it.enabled, false);
        } else if (it.kind == "box") {
            rounded(r.inset(2), 3);
            paint_line(0.4, 1);
        }
    }

  private:
    void gray(double white, double alpha) {
        cairo_set_source_rgba(_cairo.get(), white, white, white, alpha);
    }
    void fill(Rect r, double white) {
        gray(white, 1);
        cairo_rectangle(_cairo.get(), r.x, r.y, r.width, r.height);
        cairo_fill(_cairo.get());
    }
    void paint_line(double white, double alpha) {
        gray(white, alpha);
        cairo_stroke(_cairo.get());
    }
    void outline(Rect r, double white, double alpha) {
        cairo_rectangle(_cairo.get(), r.x, r.y, r.width, r.height);
        paint_line(white, alpha);
    }
    void line(double x1, double y1, double x2, double y2, double white) {
        cairo_move_to(_cairo.get(), x1, y1);
        cairo_line_to(_cairo.get(), x2, y2);
        paint_line(white, 1);
    }
    void rounded(Rect r, double radius) {
        using std::numbers::pi;
        cairo_t* const c = _cairo.get();
        cairo_new_sub_path(c);
        cairo_arc(c, r.x + r.width - radius, r.y + radius, radius, -pi / 2, 0);
        cairo_arc(c, r.x + r.width - radius, r.y + r.height - radius, radius, 0, pi / 2);
        cairo_arc(c, r.x + radius, r.y + r.height - radius, radius, pi / 2, pi);
        cairo_arc(c, r.x + radius, r.y + radius, radius, pi, 3 * pi / 2);
        cairo_close_path(c);
    }
    // Fills the path with a gradient from top to bottom.
    void shade(Rect r, double from_white, double from_alpha, double to_white, double to_alpha) {
        const Owned<cairo_pattern_t> pattern(
            cairo_pattern_create_linear(0, r.y, 0, r.y + r.height));
        cairo_pattern_add_color_stop_rgba(pattern.get(), 0, from_white, from_white, from_white,
                                          from_alpha);
        cairo_pattern_add_color_stop_rgba(pattern.get(), 1, to_white, to_white, to_white, to_alpha);
        cairo_set_source(_cairo.get(), pattern.get());
        cairo_fill(_cairo.get());
    }
    void shade_rect(Rect r, double from_white, double from_alpha, double to_white,
                    double to_alpha) {
        cairo_rectangle(_cairo.get(), r.x, r.y, r.width, r.height);
        shade(r, from_white, from_alpha, to_white, to_alpha);
    }

    // Face, sheen, lower edge, shaded sides, outline and inner light.
    void button(Rect r, bool enabled) {
        const Rect face = r.inset(1);
        fill(face, 0.3);
        if (enabled) shade_rect(face, 1, 0.1, 0, 0.1);
        cairo_set_antialias(_cairo.get(), CAIRO_ANTIALIAS_NONE);
        line(r.x, r.y + r.height, r.x + r.width, r.y + r.height, 0.1);
        shade_rect({r.x, r.y, 1, r.height}, 0.1, 0.2, 0.1, 1);
        shade_rect({r.x + r.width - 1, r.y, 1, r.height}, 0.1, 0.2, 0.1, 1);
        outline(face, 0.12, 1);
        outline({r.x + 2, r.y + 2, r.width - 4, r.height - 3}, 0.8, 0.05);
        cairo_set_antialias(_cairo.get(), CAIRO_ANTIALIAS_DEFAULT);
    }
    void check_box(Rect r, bool enabled, bool on) {
        const double x = r.x + (r.width - 12) / 2, y = r.y + (r.height - 16) / 2;
        button({x, y, 12, 12}, enabled);
        if (!on) return;
        cairo_move_to(_cairo.get(), x + 4, y + 4);
        cairo_line_to(_cairo.get(), x + 6, y + 8);
        cairo_line_to(_cairo.get(), x + 16, y - 4);
        paint_line(1, 1);
    }
    void radio_button(Rect r, bool enabled, bool on) {
        const double x = r.x + r.width / 2, y = r.y + r.height / 2;
        circle(x, y, 5);
        gray(0.3, 1);
        cairo_fill_preserve(_cairo.get());
        if (enabled)
            shade({x - 5, y - 5, 10, 10}, 1, 0.1, 0, 0.1);
        else
            cairo_new_path(_cairo.get());
        circle(x, y, 5);
        paint_line(0.1, 1);
        if (!on) return;
        circle(x, y, 2);
        gray(1, 1);
        cairo_fill(_cairo.get());
    }
    void circle(double x, double y, double radius) {
        cairo_new_sub_path(_cairo.get());
        cairo_arc(_cairo.get(), x, y, radius, 0, 2 * std::numbers::pi);
    }
    void popup(Rect r, const std::string& title, bool enabled) {
        button(r, enabled);
        text({r.x + 7, r.y, r.width - r.height - 7, r.height}, title, enabled, false);
        const double left = r.x + r.width - r.height;
        cairo_move_to(_cairo.get(), left + 6, r.y + 7);
        cairo_line_to(_cairo.get(), left + r.height - 6, r.y + 7);
        cairo_line_to(_cairo.get(), left + r.height / 2, r.y + r.height - 7);
        cairo_close_path(_cairo.get());
        gray(0.8, 1);
        cairo_fill(_cairo.get());
        cairo_set_antialias(_cairo.get(), CAIRO_ANTIALIAS_NONE);
        line(left - 2, r.y + 3, left - 2, r.y + r.height - 3, 0.1);
        cairo_set_antialias(_cairo.get(), CAIRO_ANTIALIAS_DEFAULT);
    }

    // In the middle of the height; clipped, as every view is.
    void text(Rect r, const std::string& utf8, bool enabled, bool centered) {
        const Owned<PangoLayout> layout(pango_cairo_create_layout(_cairo.get()));
        pango_layout_set_font_description(layout.get(), _font.get());
        pango_layout_set_text(layout.get(), utf8.data(), static_cast<int>(utf8.size()));
        if (centered) {
            pango_layout_set_width(layout.get(), static_cast<int>(r.width * PANGO_SCALE));
            pango_layout_set_alignment(layout.get(), PANGO_ALIGN_CENTER);
        }
        int width = 0, height = 0;
        pango_layout_get_pixel_size(layout.get(), &width, &height);
        cairo_save(_cairo.get());
        cairo_rectangle(_cairo.get(), r.x, r.y, r.width, r.height);
        cairo_clip(_cairo.get());
        gray(0.85, enabled ? 1 : 0.5);
        cairo_move_to(_cairo.get(), r.x, r.y + (r.height - height) / 2);
        pango_cairo_show_layout(_cairo.get(), layout.get());
        cairo_restore(_cairo.get());
    }

    Owned<cairo_t> _cairo;
    Owned<PangoFontDescription> _font;
};

} // namespace

minihost::Picture draw_bare_panel(const std::vector<Control>& controls, double width, double height,
                                  double scale) {
    minihost::Picture picture{
        static_cast<int>(width * scale), static_cast<int>(height * scale), {}};
    picture.rgba.resize(static_cast<std::size_t>(picture.width) * picture.height * 4);
    const Owned<cairo_surface_t> surface(
        cairo_image_surface_create_for_data(picture.rgba.data(), CAIRO_FORMAT_ARGB32, picture.width,
                                            picture.height, picture.width * 4));
    Painter painter(surface.get(), scale);
    painter.background({0, 0, width, height});
    for (const Control& it : controls) painter.control(it);
    cairo_surface_flush(surface.get());
    return picture;
}

} // namespace bench
