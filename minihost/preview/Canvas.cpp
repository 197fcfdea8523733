// Outlines, colours, and the canvas of pixels.

#include "minihost/preview/Canvas.h"

#include <cairo.h>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <glib.h>
#include <stdexcept>

namespace minihost::preview {

Colour mix(const Colour& from, const Colour& to, double t) {
    const auto blend = [t](double a, double b) { return a + (b - a) * t; };
    return {blend(from.r, to.r), blend(from.g, to.g), blend(from.b, to.b), blend(from.a, to.a)};
}

Colour with_alpha(const Colour& colour, double alpha) {
    return {colour.r, colour.g, colour.b, alpha};
}

void Outline::move(Point p) {
    steps.push_back(Step::move);
    points.push_back(p);
}

void Outline::line(Point p) {
    steps.push_back(Step::line);
    points.push_back(p);
}

void Outline::curve(Point a, Point b, Point p) {
    steps.push_back(Step::curve);
    points.insert(points.end(), {a, b, p});
}

void Outline::close() {
    steps.push_back(Step::close);
}

Outline polygon_outline(const std::vector<Point>& corners) {
    Outline outline;
    for (const Point& p : corners) {
        if (outline.empty()) {
            outline.move(p);
        } else {
            outline.line(p);
        }
    }
    if (!outline.empty()) outline.close();
    return outline;
}

std::string plain_text(std::string_view text) {
    char* valid = g_utf8_make_valid(text.data(), static_cast<gssize>(text.size()));
    std::string plain(valid);
    g_free(valid);
    for (char& c : plain) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) c = ' ';
    }
    // U+FFFE and U+FFFF stand in no XML; the replacement character is as long.
    for (std::size_t at = 0; (at = plain.find("\xef\xbf", at)) != std::string::npos; at += 3) {
        if (at + 2 < plain.size() && static_cast<unsigned char>(plain[at + 2]) >= 0xbe) {
            plain[at + 2] = '\xbd';
        }
    }
    return plain;
}

namespace {

class PixelCanvas : public Canvas {
  public:
    PixelCanvas(int width, int height)
        : _surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height)),
          _context(cairo_create(_surface)) {
        cairo_set_line_join(_context, CAIRO_LINE_JOIN_ROUND);
        cairo_set_line_cap(_context, CAIRO_LINE_CAP_ROUND);
    }
    ~PixelCanvas() override {
        cairo_destroy(_context);
        cairo_surface_destroy(_surface);
    }
    PixelCanvas(const PixelCanvas&) = delete;
    PixelCanvas& operator=(const PixelCanvas&) = delete;

    void fill(const Outline& outline, const Shade& shade) override {
        trace(outline);
        if (shade.kind == Shade::Kind::plain) {
            set(shade.stops.front().colour);
            cairo_fill(_context);
            return;
        }
        cairo_pattern_t* pattern = blend(shade);
        cairo_set_source(_context, pattern);
        cairo_fill(_context);
        cairo_pattern_destroy(pattern);
    }

    void stroke(const Outline& outline, const Colour& colour, double width, double dash) override {
        trace(outline);
        set(colour);
        cairo_set_line_width(_context, width);
        cairo_set_dash(_context, &dash, dash > 0 ? 1 : 0, 0);
        cairo_stroke(_context);
    }

    std::string encode() override {
        std::string file;
        const cairo_status_t status = cairo_surface_write_to_png_stream(
            _surface,
            [](void* to, const unsigned char* data, unsigned int size) {
                static_cast<std::string*>(to)->append(reinterpret_cast<const char*>(data), size);
                return CAIRO_STATUS_SUCCESS;
            },
            &file);
        if (status != CAIRO_STATUS_SUCCESS) {
            throw std::runtime_error(std::string("the picture could not be made: ") +
                                     cairo_status_to_string(status));
        }
        return file;
    }

    std::vector<unsigned char> pixels() {
        cairo_surface_flush(_surface);
        const unsigned char* data = cairo_image_surface_get_data(_surface);
        if (!data) throw std::runtime_error("the picture could not be made: no memory");
        const int width = cairo_image_surface_get_width(_surface);
        const int height = cairo_image_surface_get_height(_surface);
        const int stride = cairo_image_surface_get_stride(_surface);
        std::vector<unsigned char> rgba(static_cast<std::size_t>(width) * height * 4);
        unsigned char* to = rgba.data();
        for (int y = 0; y < height; ++y) {
            const unsigned char* row = data + static_cast<std::size_t>(y) * stride;
            for (int x = 0; x < width; ++x, to += 4) {
                std::uint32_t pixel = 0;
                std::memcpy(&pixel, row + 4 * x, 4);
                to[0] = static_cast<unsigned char>(pixel >> 16);
                to[1] = static_cast<unsigned char>(pixel >> 8);
                to[2] = static_cast<unsigned char>(pixel);
                to[3] = 0xff;
            }
        }
        return rgba;
    }

  private:
    void set(const Colour& c) { cairo_set_source_rgba(_context, c.r, c.g, c.b, c.a); }

    void trace(const Outline& outline) {
        cairo_new_path(_context);
        const Point* p = outline.points.data();
        for (const Outline::Step step : outline.steps) {
            switch (step) {
            case Outline::Step::move:
                cairo_move_to(_context, p->x, p->y);
                p += 1;
                break;
            case Outline::Step::line:
                cairo_line_to(_context, p->x, p->y);
                p += 1;
                break;
            case Outline::Step::curve:
                cairo_curve_to(_context, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
                p += 3;
                break;
            case Outline::Step::close:
                cairo_close_path(_context);
                break;
            }
        }
    }

    static cairo_pattern_t* blend(const Shade& shade) {
        const Point a = shade.from, b = shade.to;
        cairo_pattern_t* pattern =
            shade.kind == Shade::Kind::along
                ? cairo_pattern_create_linear(a.x, a.y, b.x, b.y)
                : cairo_pattern_create_radial(a.x, a.y, 0, a.x, a.y,
                                              std::hypot(b.x - a.x, b.y - a.y));
        for (const Shade::Stop& stop : shade.stops) {
            const Colour& c = stop.colour;
            cairo_pattern_add_color_stop_rgba(pattern, stop.at, c.r, c.g, c.b, c.a);
        }
        return pattern;
    }

    cairo_surface_t* _surface;
    cairo_t* _context;
};

} // namespace

std::vector<unsigned char> paint_pixels(int width, int height,
                                        const std::function<void(Canvas&)>& paint) {
    PixelCanvas canvas(width, height);
    paint(canvas);
    return canvas.pixels();
}

std::unique_ptr<Canvas> png_canvas(int width, int height) {
    return std::make_unique<PixelCanvas>(width, height);
}

} // namespace minihost::preview
