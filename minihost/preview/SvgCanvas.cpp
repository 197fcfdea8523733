// The canvas that writes SVG: compact numbers, one group with a title for each layer.

#include "minihost/preview/Canvas.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace minihost::preview {

namespace {

void append_number(std::string& to, double value) {
    char digits[40];
    value = std::round(value * 100) / 100 + 0.0; // no -0
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    to.append(digits, end);
}

void append_point(std::string& to, const Point& p) {
    append_number(to, p.x);
    to += ' ';
    append_number(to, p.y);
}

void append_escaped(std::string& to, std::string_view text) {
    for (const char c : plain_text(text)) {
        switch (c) {
        case '&':
            to += "&amp;";
            break;
        case '<':
            to += "&lt;";
            break;
        case '>':
            to += "&gt;";
            break;
        default:
            to += c;
        }
    }
}

void append_hex(std::string& to, const Colour& c) {
    static constexpr char hex[] = "0123456789abcdef";
    to += '#';
    for (const double part : {c.r, c.g, c.b}) {
        const int n = std::clamp(static_cast<int>(std::lround(part * 255)), 0, 255);
        to += hex[n / 16];
        to += hex[n % 16];
    }
}

// colour="#..." and, where it is not opaque, its opacity.
void append_colour(std::string& to, const char* name, const char* opacity, const Colour& c) {
    to.append(" ").append(name).append("=\"");
    append_hex(to, c);
    to += '"';
    if (c.a < 1) {
        to.append(" ").append(opacity).append("=\"");
        append_number(to, c.a);
        to += '"';
    }
}

class SvgCanvas : public Canvas {
  public:
    SvgCanvas(int width, int height, std::string_view title) {
        const std::string w = std::to_string(width), h = std::to_string(height);
        _text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
                w + "\" height=\"" + h + "\" viewBox=\"0 0 " + w + " " + h +
                "\" stroke-linejoin=\"round\" stroke-linecap=\"round\">\n<title>";
        append_escaped(_text, title);
        _text += "</title>\n";
    }

    void fill(const Outline& outline, const Shade& shade) override {
        const bool plain = shade.kind == Shade::Kind::plain;
        if (!plain) define(shade);
        path(outline);
        if (plain) {
            append_colour(_text, "fill", "fill-opacity", shade.stops.front().colour);
        } else {
            _text += " fill=\"url(#s" + std::to_string(_shades) + ")\"";
        }
        _text += "/>\n";
    }

    void stroke(const Outline& outline, const Colour& colour, double width, double dash) override {
        path(outline);
        _text += " fill=\"none\"";
        append_colour(_text, "stroke", "stroke-opacity", colour);
        attribute(" stroke-width=\"", width);
        if (dash > 0) attribute(" stroke-dasharray=\"", dash);
        _text += "/>\n";
    }

    void begin_group(std::string_view title) override {
        _text += "<g><title>";
        append_escaped(_text, title);
        _text += "</title>\n";
    }
    void end_group() override { _text += "</g>\n"; }

    std::string encode() override { return _text + "</svg>\n"; }

  private:
    void attribute(const char* start, double value) {
        _text += start;
        append_number(_text, value);
        _text += '"';
    }

    void path(const Outline& outline) {
        _text += "<path d=\"";
        const Point* p = outline.points.data();
        for (const Outline::Step step : outline.steps) {
            if (step == Outline::Step::close) {
                _text += 'Z';
                continue;
            }
            const int count = step == Outline::Step::curve ? 3 : 1;
            _text += step == Outline::Step::move ? 'M' : step == Outline::Step::line ? 'L' : 'C';
            for (int i = 0; i < count; ++i) {
                if (i > 0) _text += ' ';
                append_point(_text, *p++);
            }
        }
        _text += '"';
    }

    // Shades are written where they are first used: readers take them anywhere before.
    void define(const Shade& shade) {
        const bool along = shade.kind == Shade::Kind::along;
        const char* element = along ? "linearGradient" : "radialGradient";
        _text.append("<").append(element).append(" id=\"s").append(std::to_string(++_shades));
        _text += "\" gradientUnits=\"userSpaceOnUse\"";
        attribute(along ? " x1=\"" : " cx=\"", shade.from.x);
        attribute(along ? " y1=\"" : " cy=\"", shade.from.y);
        if (along) {
            attribute(" x2=\"", shade.to.x);
            attribute(" y2=\"", shade.to.y);
        } else {
            attribute(" r=\"", std::hypot(shade.to.x - shade.from.x, shade.to.y - shade.from.y));
        }
        _text += '>';
        for (const Shade::Stop& stop : shade.stops) {
            attribute("<stop offset=\"", stop.at);
            append_colour(_text, "stop-color", "stop-opacity", stop.colour);
            _text += "/>";
        }
        _text.append("</").append(element).append(">\n");
    }

    std::string _text;
    int _shades = 0;
};

} // namespace

std::unique_ptr<Canvas> svg_canvas(int width, int height, std::string_view title) {
    return std::make_unique<SvgCanvas>(width, height, title);
}

} // namespace minihost::preview
