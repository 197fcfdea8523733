// The canvas that writes SVG: short numbers, one titled group for each layer.

#include "minihost/preview/Canvas.h"
#include "minihost/preview/PrintableText.h"

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
    for (const char c : printable_text(text)) {
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

void append_hex(std::string& to, const Rgba& c) {
    static constexpr char hex[] = "0123456789abcdef";
    to += '#';
    for (const double part : {c.r, c.g, c.b}) {
        const int n = std::clamp(static_cast<int>(std::lround(part * 255)), 0, 255);
        to += hex[n / 16];
        to += hex[n % 16];
    }
}

// name="#rrggbb" and, if it is not opaque, its opacity.
void append_color(std::string& to, const char* name, const char* opacity, const Rgba& c) {
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

    void fill(const Path& path, const Brush& brush) override {
        const bool plain = brush.kind == Brush::Kind::Color;
        if (!plain) write_gradient(brush);
        write_path(path);
        if (plain) {
            append_color(_text, "fill", "fill-opacity", brush.stops.front().color);
        } else {
            _text += " fill=\"url(#s" + std::to_string(_gradients) + ")\"";
        }
        _text += "/>\n";
    }

    void stroke(const Path& path, const Rgba& color, double width, double dash) override {
        write_path(path);
        _text += " fill=\"none\"";
        append_color(_text, "stroke", "stroke-opacity", color);
        attribute("stroke-width", width);
        if (dash > 0) attribute("stroke-dasharray", dash);
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
    void attribute(const char* name, double value) {
        _text.append(" ").append(name).append("=\"");
        append_number(_text, value);
        _text += '"';
    }

    void write_path(const Path& path) {
        _text += "<path d=\"";
        const Point* p = path.points.data();
        for (const Path::Step step : path.steps) {
            if (step == Path::Step::Close) {
                _text += 'Z';
                continue;
            }
            const int count = step == Path::Step::Curve ? 3 : 1;
            _text += step == Path::Step::Move ? 'M' : step == Path::Step::Line ? 'L' : 'C';
            for (int i = 0; i < count; ++i) {
                if (i > 0) _text += ' ';
                append_point(_text, *p++);
            }
        }
        _text += '"';
    }

    // Right before the path that uses it: readers accept gradients anywhere.
    void write_gradient(const Brush& brush) {
        const bool linear = brush.kind == Brush::Kind::Linear;
        const char* element = linear ? "linearGradient" : "radialGradient";
        _text.append("<").append(element).append(" id=\"s").append(std::to_string(++_gradients));
        _text += "\" gradientUnits=\"userSpaceOnUse\"";
        attribute(linear ? "x1" : "cx", brush.from.x);
        attribute(linear ? "y1" : "cy", brush.from.y);
        if (linear) {
            attribute("x2", brush.to.x);
            attribute("y2", brush.to.y);
        } else {
            attribute("r", std::hypot(brush.to.x - brush.from.x, brush.to.y - brush.from.y));
        }
        _text += '>';
        for (const Brush::Stop& stop : brush.stops) {
            _text += "<stop";
            attribute("offset", stop.offset);
            append_color(_text, "stop-color", "stop-opacity", stop.color);
            _text += "/>";
        }
        _text.append("</").append(element).append(">\n");
    }

    std::string _text;
    int _gradients = 0;
};

} // namespace

std::unique_ptr<Canvas> make_svg_canvas(int width, int height, std::string_view title) {
    return std::make_unique<SvgCanvas>(width, height, title);
}

} // namespace minihost::preview
