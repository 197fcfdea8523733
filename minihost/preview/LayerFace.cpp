// Faces of layers.

#include "minihost/preview/LayerFace.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace minihost::preview {

namespace {

constexpr double least_type = 5.2;     // points; smaller is not read
constexpr double least_squeezed = 2.4; // points across the way it is turned from the viewer
constexpr double least_detail = 12;    // points of the smaller side

// Light and land of a photograph.
struct Mood {
    Colour high, low, sun, hill, front;
};

constexpr std::array<Mood, 8> moods{{
    // morning, noon, dusk, desert, snow, autumn, night, sea
    {{0.45, 0.62, 0.86},
     {1.00, 0.82, 0.70},
     {1.00, 0.95, 0.84},
     {0.44, 0.48, 0.66},
     {0.22, 0.26, 0.44}},
    {{0.25, 0.58, 0.90},
     {0.80, 0.93, 0.98},
     {1.00, 1.00, 0.94},
     {0.36, 0.62, 0.38},
     {0.17, 0.42, 0.30}},
    {{0.30, 0.20, 0.48},
     {0.98, 0.52, 0.42},
     {1.00, 0.86, 0.60},
     {0.38, 0.20, 0.42},
     {0.18, 0.11, 0.27}},
    {{0.30, 0.66, 0.74},
     {0.99, 0.88, 0.66},
     {1.00, 0.98, 0.88},
     {0.87, 0.56, 0.32},
     {0.62, 0.32, 0.20}},
    {{0.54, 0.70, 0.88},
     {0.93, 0.96, 1.00},
     {1.00, 1.00, 1.00},
     {0.62, 0.74, 0.86},
     {0.36, 0.50, 0.66}},
    {{0.60, 0.72, 0.80},
     {0.99, 0.90, 0.74},
     {1.00, 0.97, 0.86},
     {0.85, 0.42, 0.20},
     {0.48, 0.19, 0.14}},
    {{0.07, 0.10, 0.26},
     {0.26, 0.36, 0.62},
     {0.92, 0.94, 1.00},
     {0.14, 0.21, 0.40},
     {0.06, 0.10, 0.22}},
    {{0.38, 0.72, 0.88},
     {0.92, 0.96, 0.90},
     {1.00, 0.97, 0.82},
     {0.12, 0.55, 0.64},
     {0.07, 0.34, 0.46}},
}};

// A skyline of gentle hills from the left edge to the right one, filled down to the lower edge.
Outline ridge(const Face& face, int first, double base, double rise) {
    constexpr int peaks = 5;
    std::array<double, peaks + 1> v{};
    for (int i = 0; i <= peaks; ++i) {
        v[std::size_t(i)] = base - rise * chance(face.item.seed, first + i);
    }
    Outline outline;
    outline.move(face.at(0, v[0]));
    for (std::size_t i = 1; i < v.size(); ++i) {
        const double u0 = (double(i) - 1) / peaks, u1 = double(i) / peaks, m = (u0 + u1) / 2;
        outline.curve(face.at(m, v[i - 1]), face.at(m, v[i]), face.at(u1, v[i]));
    }
    outline.line(face.at(1, 1));
    outline.line(face.at(0, 1));
    outline.close();
    return outline;
}

// Corners on an ellipse that fills the layer; every other one drawn in to `inner` of it.
Outline star(const Face& face, int corners, double inner) {
    std::vector<Point> points;
    for (int i = 0; i < corners; ++i) {
        const double t = i * 6.283185307179586 / corners;
        const double r = 0.5 * (i % 2 ? inner : 1.0);
        points.push_back(face.at(0.5 + r * std::sin(t), 0.5 - r * std::cos(t)));
    }
    return polygon_outline(points);
}

Outline rounded(const Face& face) {
    const double side = std::min(face.item.facet.width(), face.item.facet.height());
    const double u = 0.22 * side / face.item.facet.width();
    const double v = 0.22 * side / face.item.facet.height();
    constexpr double k = 0.45; // what is left of the corner beyond a quarter circle's handles
    Outline o;
    o.move(face.at(u, 0));
    o.line(face.at(1 - u, 0));
    o.curve(face.at(1 - u * k, 0), face.at(1, v * k), face.at(1, v));
    o.line(face.at(1, 1 - v));
    o.curve(face.at(1, 1 - v * k), face.at(1 - u * k, 1), face.at(1 - u, 1));
    o.line(face.at(u, 1));
    o.curve(face.at(u * k, 1), face.at(0, 1 - v * k), face.at(0, 1 - v));
    o.line(face.at(0, v));
    o.curve(face.at(0, v * k), face.at(u * k, 0), face.at(u, 0));
    o.close();
    return o;
}

Outline shape(const Face& face) {
    switch (face.item.seed % 4) {
    case 0:
        return face.ellipse(0.5, 0.5, 0.5, 0.5);
    case 1:
        return rounded(face);
    case 2:
        return star(face, 6, 1.0);
    default:
        return star(face, 10, 0.48);
    }
}

} // namespace

Face::Face(Canvas& canvas_, const Plan& plan_, const Item& item_)
    : canvas(canvas_), plan(plan_), item(item_), tone(plan_, item_) {
    const Facet& facet = item.facet;
    const double side = std::min(facet.width(), facet.height());
    extent = facet.stretch(0.5, 0.5)[0] * side / plan.point;
    if (!std::isfinite(extent)) extent = 0;
}

Outline Face::rectangle(double u0, double v0, double u1, double v1) const {
    return polygon_outline({at(u0, v0), at(u1, v0), at(u1, v1), at(u0, v1)});
}

Outline Face::ellipse(double u, double v, double a, double d) const {
    constexpr double k = 0.5522847498; // handles of a quarter circle
    Outline o;
    o.move(at(u + a, v));
    o.curve(at(u + a, v + d * k), at(u + a * k, v + d), at(u, v + d));
    o.curve(at(u - a * k, v + d), at(u - a, v + d * k), at(u - a, v));
    o.curve(at(u - a, v - d * k), at(u - a * k, v - d), at(u, v - d));
    o.curve(at(u + a * k, v - d), at(u + a, v - d * k), at(u + a, v));
    o.close();
    return o;
}

Shade Face::blend(double v0, const Colour& c0, double v1, const Colour& c1) const {
    return {Shade::Kind::along, at(0.5, v0), at(0.5, v1), {{0, c0}, {1, c1}}};
}

bool Face::readable(double height, double u, double v) const {
    const auto [small, large] = item.facet.stretch(u, v);
    return large * height >= least_type * plan.point &&
           small * height >= least_squeezed * plan.point;
}

Outline Face::text(const TextLine& line, double x, double y, double scale) const {
    const double w = item.facet.width(), h = item.facet.height();
    return mapped(line.outline,
                  [&](const Point& p) { return at((x + p.x * scale) / w, (y + p.y * scale) / h); });
}

void paint_card(const Face& face) {
    const Colour& c = face.item.colour;
    if (face.extent < least_detail) {
        face.canvas.fill(face.whole(), face.tone(c));
        return;
    }
    const Colour top = face.tone(mix(c, white, 0.12)), low = face.tone(mix(c, ink, 0.16));
    face.canvas.fill(face.whole(), face.blend(0, top, 1, low));
}

void paint_photo(const Face& face) {
    const std::uint32_t seed = face.item.seed;
    const Tone& tone = face.tone;
    const Mood& mood = moods[std::size_t(chance(seed, 0) * moods.size())];
    // A layer with a colour of its own keeps it in its sky.
    const Colour high = face.item.coloured ? face.item.colour : mood.high;
    const Colour low = face.item.coloured ? mix(high, white, 0.5) : mood.low;
    if (face.extent < least_detail) {
        face.canvas.fill(face.whole(), tone(mix(high, low, 0.4)));
        return;
    }
    face.canvas.fill(face.whole(), face.blend(0, tone(high), 0.75, tone(low)));
    const double ratio = face.item.facet.width() / face.item.facet.height();
    const double sun = 0.06 + 0.06 * chance(seed, 3), wide = std::min(1.0, 1 / ratio);
    const double u = 0.2 + 0.6 * chance(seed, 4), v = 0.24 + 0.22 * chance(seed, 5);
    face.canvas.fill(face.ellipse(u, v, sun * wide, sun * wide * ratio), tone(mood.sun));
    face.canvas.fill(ridge(face, 10, 0.72, 0.22), tone(mix(mood.hill, low, 0.52)));
    face.canvas.fill(ridge(face, 20, 0.86, 0.20), tone(mood.hill));
    face.canvas.fill(ridge(face, 30, 1.00, 0.16), tone(mood.front));
}

void paint_shape(const Face& face) {
    const Colour& c = face.item.colour;
    const Outline outline = face.item.facet.whole() ? shape(face) : face.whole();
    face.canvas.fill(outline, face.tone(c));
    if (face.extent < least_detail) return;
    face.canvas.stroke(outline, face.tone(mix(c, white, 0.5)), 1.2 * face.plan.point);
}

void paint_letters(const Face& face, const Lettering& lettering) {
    const Colour& c = face.item.colour;
    const double w = face.item.facet.width(), h = face.item.facet.height();
    if (face.extent < 3 || !face.item.facet.whole()) {
        face.canvas.fill(face.whole(), with_alpha(face.tone(c), 0.45));
        return;
    }
    const TextLine line = lettering.line(face.item.name, 1e6, true);
    if (!(line.width > 0) || !(line.height > 0)) return;
    const double scale = std::min(w / line.width, h / line.height);
    const Point from{(w - line.width * scale) / 2, (h - line.height * scale) / 2};
    face.canvas.fill(face.text(line, from.x, from.y, scale), face.tone(c));
    if (face.extent < least_detail) return;
    face.canvas.stroke(face.whole(), with_alpha(face.tone(c), 0.35), 0.6 * face.plan.point,
                       3 * face.plan.point);
}

void paint_back(const Face& face) {
    const Colour base = mix(face.item.colour, Colour{0.30, 0.32, 0.38}, 0.40);
    face.canvas.fill(face.whole(), face.tone(base));
    if (face.extent < least_detail) return;
    const double w = face.item.facet.width(), h = face.item.facet.height();
    constexpr int lines = 18;
    const double step = (w + h) / lines;
    Outline hatch;
    for (int i = 1; i < lines; ++i) {
        const double s = i * step, x = std::min(s, w), y = std::min(s, h);
        hatch.move(face.at(x / w, (s - x) / h));
        hatch.line(face.at((s - y) / w, y / h));
    }
    face.canvas.stroke(hatch, with_alpha(face.tone(mix(base, white, 0.45)), 0.5),
                       0.6 * face.plan.point);
}

} // namespace minihost::preview
