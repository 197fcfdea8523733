#include "minihost/preview/LayerFace.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace minihost::preview {

namespace {

constexpr double min_type = 5.2;          // points; smaller cannot be read
constexpr double min_foreshortened = 2.4; // points of its smaller dimension, seen at an angle

// Corners on the ellipse in the layer; every other one at `inner` of its radius.
Path star(const LayerFace& face, int corners, double inner) {
    std::vector<Point> points;
    for (int i = 0; i < corners; ++i) {
        const double t = i * 2 * std::numbers::pi / corners;
        const double r = 0.5 * (i % 2 ? inner : 1.0);
        points.push_back(face.at(0.5 + r * std::sin(t), 0.5 - r * std::cos(t)));
    }
    return polygon_path(points);
}

Path rounded(const LayerFace& face) {
    const double side = std::min(face.item.quad.width(), face.item.quad.height());
    const double u = 0.22 * side / face.item.quad.width();
    const double v = 0.22 * side / face.item.quad.height();
    constexpr double k = 0.45; // from the corner to the handle, as a share of the radius
    Path o;
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

Path shape(const LayerFace& face) {
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

LayerFace::LayerFace(Canvas& target, const DrawList& list, const DrawItem& drawn)
    : canvas(target), item(drawn), point(list.point), shading(list, drawn) {
    const double side = std::min(item.quad.width(), item.quad.height());
    extent = item.quad.stretch(0.5, 0.5).smallest * side / point;
    if (!std::isfinite(extent)) extent = 0;
}

Path LayerFace::ellipse(double u, double v, double half_width, double half_height) const {
    return mapped(unit_circle(),
                  [&](const Point& p) { return at(u + half_width * p.x, v + half_height * p.y); });
}

Brush LayerFace::gradient(double v0, const Rgba& color0, double v1, const Rgba& color1) const {
    return {Brush::Kind::Linear, at(0.5, v0), at(0.5, v1), {{0, color0}, {1, color1}}};
}

bool LayerFace::is_readable(double height, double u, double v) const {
    const Stretch stretch = item.quad.stretch(u, v);
    return stretch.largest * height >= min_type * point &&
           stretch.smallest * height >= min_foreshortened * point;
}

Path LayerFace::text(const TextLine& line, double x, double y, double scale) const {
    const double w = item.quad.width(), h = item.quad.height();
    return mapped(line.path,
                  [&](const Point& p) { return at((x + p.x * scale) / w, (y + p.y * scale) / h); });
}

void paint_solid(const LayerFace& face) {
    const Rgba& c = face.item.color;
    if (!face.has_detail()) {
        face.canvas.fill(face.outline(), face.shading(c));
        return;
    }
    const Rgba top = face.shading(mix(c, white, 0.12)), low = face.shading(mix(c, ink, 0.16));
    face.canvas.fill(face.outline(), face.gradient(0, top, 1, low));
}

void paint_shape(const LayerFace& face) {
    const Rgba& c = face.item.color;
    const Path path = face.item.quad.is_in_front() ? shape(face) : face.outline();
    face.canvas.fill(path, face.shading(c));
    if (!face.has_detail()) return;
    face.canvas.stroke(path, face.shading(mix(c, white, 0.5)), 1.2 * face.point);
}

void paint_text(const LayerFace& face, const Typesetter& typesetter) {
    const Rgba& c = face.item.color;
    const double w = face.item.quad.width(), h = face.item.quad.height();
    if (face.extent < 3 || !face.item.quad.is_in_front()) {
        face.canvas.fill(face.outline(), with_alpha(face.shading(c), 0.45));
        return;
    }
    const TextLine line = typesetter.line(face.item.name, 1e6, true);
    if (!(line.width > 0) || !(line.height > 0)) return;
    const double scale = std::min(w / line.width, h / line.height);
    const Point from{(w - line.width * scale) / 2, (h - line.height * scale) / 2};
    face.canvas.fill(face.text(line, from.x, from.y, scale), face.shading(c));
    if (!face.has_detail()) return;
    face.canvas.stroke(face.outline(), with_alpha(face.shading(c), 0.35), 0.6 * face.point,
                       3 * face.point);
}

void paint_back(const LayerFace& face) {
    const Rgba base = mix(face.item.color, Rgba{0.30, 0.32, 0.38}, 0.40);
    face.canvas.fill(face.outline(), face.shading(base));
    if (!face.has_detail()) return;
    const double w = face.item.quad.width(), h = face.item.quad.height();
    constexpr int lines = 18;
    const double step = (w + h) / lines;
    Path hatch;
    for (int i = 1; i < lines; ++i) {
        const double s = i * step, x = std::min(s, w), y = std::min(s, h);
        hatch.move(face.at(x / w, (s - x) / h));
        hatch.line(face.at((s - y) / w, y / h));
    }
    face.canvas.stroke(hatch, with_alpha(face.shading(mix(base, white, 0.45)), 0.5),
                       0.6 * face.point);
}

} // namespace minihost::preview
