// What a preview is painted on: paths filled and stroked with colours and gradients, as pixels
// (cairo) or as SVG. Coordinates are pixels of the picture.

#pragma once

#include "minihost/preview/Path.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace minihost::preview {

// Not premultiplied, each 0 to 1.
struct Rgba {
    double r = 0, g = 0, b = 0, a = 1;
};

// What a path is filled with: one colour, or a gradient along a line or out of a point.
struct Brush {
    enum class Kind { Color, Linear, Radial };
    struct Stop {
        double offset; // 0 to 1
        Rgba color;
    };
    Kind kind = Kind::Color;
    Point from, to; // radial: `from` is the center, `to` a point of the rim
    std::vector<Stop> stops;

    Brush(const Rgba& color) : stops{{0, color}} {}
    Brush(Kind brush_kind, Point start, Point end, std::vector<Stop> color_stops)
        : kind(brush_kind), from(start), to(end), stops(std::move(color_stops)) {}
};

class Canvas {
  public:
    virtual ~Canvas() = default;
    virtual void fill(const Path& path, const Brush& brush) = 0;
    // `dash`: length of dashes and gaps, 0 for a solid line. Joins and caps are round.
    virtual void stroke(const Path& path, const Rgba& color, double width, double dash = 0) = 0;
    // What is drawn up to end_group is one thing with this title (SVG: a titled group).
    virtual void begin_group(std::string_view /*title*/) {}
    virtual void end_group() {}
    // The whole file. Throws std::runtime_error if the picture cannot be made.
    virtual std::string encode() = 0;
};

// Width and height in pixels, 1 to 32000 each.
std::unique_ptr<Canvas> make_png_canvas(int width, int height);
std::unique_ptr<Canvas> make_svg_canvas(int width, int height, std::string_view title);

// What `paint` paints, as pixels: RGBA, 8 bits each, opaque, rows from the top. Throws
// std::runtime_error if memory runs out.
std::vector<unsigned char> paint_pixels(int width, int height,
                                        const std::function<void(Canvas&)>& paint);

} // namespace minihost::preview
