// The canvas of pixels.

#include "minihost/preview/Canvas.h"

#include <cairo.h>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <stdexcept>

namespace minihost::preview {

namespace {

class CairoCanvas : public Canvas {
  public:
    CairoCanvas(int width, int height)
        : _surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, width, height)),
          _context(cairo_create(_surface)) {
        cairo_set_line_join(_context, CAIRO_LINE_JOIN_ROUND);
        cairo_set_line_cap(_context, CAIRO_LINE_CAP_ROUND);
    }
    ~CairoCanvas() override {
        cairo_destroy(_context);
        cairo_surface_destroy(_surface);
    }
    CairoCanvas(const CairoCanvas&) = delete;
    CairoCanvas& operator=(const CairoCanvas&) = delete;

    void fill(const Path& path, const Brush& brush) override {
        trace(path);
        if (brush.kind == Brush::Kind::Color) {
            set_color(brush.stops.front().color);
            cairo_fill(_context);
            return;
        }
        cairo_pattern_t* pattern = gradient(brush);
        cairo_set_source(_context, pattern);
        cairo_fill(_context);
        cairo_pattern_destroy(pattern);
    }

    void stroke(const Path& path, const Rgba& color, double width, double dash) override {
        trace(path);
        set_color(color);
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
    void set_color(const Rgba& c) { cairo_set_source_rgba(_context, c.r, c.g, c.b, c.a); }

    void trace(const Path& path) {
        cairo_new_path(_context);
        const Point* p = path.points.data();
        for (const Path::Step step : path.steps) {
            switch (step) {
            case Path::Step::Move:
                cairo_move_to(_context, p->x, p->y);
                p += 1;
                break;
            case Path::Step::Line:
                cairo_line_to(_context, p->x, p->y);
                p += 1;
                break;
            case Path::Step::Curve:
                cairo_curve_to(_context, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
                p += 3;
                break;
            case Path::Step::Close:
                cairo_close_path(_context);
                break;
            }
        }
    }

    static cairo_pattern_t* gradient(const Brush& brush) {
        const Point a = brush.from, b = brush.to;
        cairo_pattern_t* pattern =
            brush.kind == Brush::Kind::Linear
                ? cairo_pattern_create_linear(a.x, a.y, b.x, b.y)
                : cairo_pattern_create_radial(a.x, a.y, 0, a.x, a.y,
                                              std::hypot(b.x - a.x, b.y - a.y));
        for (const Brush::Stop& stop : brush.stops) {
            const Rgba& c = stop.color;
            cairo_pattern_add_color_stop_rgba(pattern, stop.offset, c.r, c.g, c.b, c.a);
        }
        return pattern;
    }

    cairo_surface_t* _surface;
    cairo_t* _context;
};

} // namespace

std::vector<unsigned char> paint_pixels(int width, int height,
                                        const std::function<void(Canvas&)>& paint) {
    CairoCanvas canvas(width, height);
    paint(canvas);
    return canvas.pixels();
}

std::unique_ptr<Canvas> make_png_canvas(int width, int height) {
    return std::make_unique<CairoCanvas>(width, height);
}

} // namespace minihost::preview
