// What the preview is painted on: filled and stroked outlines with plain or blended colours, on a
// pixel picture (cairo) or as SVG. Coordinates are pixels of the picture.

#pragma once

#include "minihost/preview/Camera.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace minihost::preview {

// Not premultiplied, each 0 to 1.
struct Colour {
    double r = 0, g = 0, b = 0, a = 1;
};

Colour mix(const Colour& from, const Colour& to, double t);
Colour with_alpha(const Colour& colour, double alpha);

// A path of lines and curves. `points` holds one point for a move or a line, three for a curve.
struct Outline {
    enum class Step : unsigned char { move, line, curve, close };
    std::vector<Step> steps;
    std::vector<Point> points;

    void move(Point p);
    void line(Point p);
    void curve(Point a, Point b, Point p);
    void close();
    bool empty() const { return steps.empty(); }
};

Outline polygon_outline(const std::vector<Point>& corners);

// What an outline is filled with: one colour, or colours blended along a line or out of a point.
struct Shade {
    struct Stop {
        double at;
        Colour colour;
    };
    enum class Kind { plain, along, around };
    Kind kind = Kind::plain;
    Point from, to; // around: `from` is the middle, `to` a point of the rim
    std::vector<Stop> stops;

    Shade(const Colour& colour) : stops{{0, colour}} {}
    Shade(Kind kind_, Point from_, Point to_, std::vector<Stop> stops_)
        : kind(kind_), from(from_), to(to_), stops(std::move(stops_)) {}
};

class Canvas {
  public:
    virtual ~Canvas() = default;
    virtual void fill(const Outline& outline, const Shade& shade) = 0;
    // `dash`: length of dashes and gaps, 0 for a full line. Joins and ends are round.
    virtual void stroke(const Outline& outline, const Colour& colour, double width,
                        double dash = 0) = 0;
    // What is drawn up to end_group is one thing with this name (SVG: a titled group).
    virtual void begin_group(std::string_view /*title*/) {}
    virtual void end_group() {}
    // The whole file. Throws std::runtime_error where the picture cannot be made.
    virtual std::string encode() = 0;
};

// What is painted, as pixels: RGBA, 8 bits each, opaque, rows from the top. Throws
// std::runtime_error when memory does not suffice.
std::vector<unsigned char> paint_pixels(int width, int height,
                                        const std::function<void(Canvas&)>& paint);

// Width and height in pixels, 1 to 32000 each.
std::unique_ptr<Canvas> png_canvas(int width, int height);
std::unique_ptr<Canvas> svg_canvas(int width, int height, std::string_view title);

// Valid UTF-8 without control characters, whatever the text is.
std::string plain_text(std::string_view text);

} // namespace minihost::preview
