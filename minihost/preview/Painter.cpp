#include "minihost/preview/Painter.h"

#include "minihost/preview/Backdrop.h"
#include "minihost/preview/LayerFace.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace minihost::preview {

namespace {

constexpr std::size_t max_names = 4000; // on the nearest layers; more could not be told apart
constexpr double max_type = 20;         // points of a name on a large layer
// A layer that covers a larger part of the picture, across and down, is shown without its name.
constexpr double max_named_share = 0.7;

class Painter {
  public:
    Painter(Canvas& canvas, const DrawList& list) : _canvas(canvas), _list(list) {}

    void paint_layers() {
        const std::size_t count = _list.items.size();
        for (std::size_t i = 0; i < count; ++i) {
            const DrawItem& item = _list.items[i];
            _canvas.begin_group(item.name);
            if (item.kind == LayerKind::Light)
                paint_light(item);
            else if (item.kind == LayerKind::Camera)
                paint_camera(item);
            else
                paint_layer(item, count - i <= max_names);
            _canvas.end_group();
        }
    }

    // In the lower left corner, if the picture has room for it.
    void paint_caption() {
        const double size = 9.5 * _list.point, pad = 5 * _list.point, margin = 10 * _list.point;
        const double room = _list.width - 2 * (margin + pad);
        if (_list.caption.empty() || room < 60 * _list.point || _list.height < 90 * _list.point)
            return;
        const double scale = size / Typesetter::size;
        const TextLine line = _typesetter.line(_list.caption, room / scale);
        const double height = line.height * scale + pad, width = line.width * scale + 2 * pad;
        const Point from{margin, _list.height - margin - height};
        _canvas.begin_group(_list.caption);
        _canvas.fill(pill(from, width, height), with_alpha(ink, 0.55));
        _canvas.fill(flat_text(line, {from.x + pad, from.y + pad / 2}, scale),
                     Rgba{0.86, 0.89, 0.95, 0.92});
        _canvas.end_group();
    }

  private:
    static Path flat_text(const TextLine& line, Point from, double scale) {
        return mapped(line.path, [&](const Point& p) {
            return Point{from.x + p.x * scale, from.y + p.y * scale};
        });
    }

    static Path circle(Point c, double r) {
        return mapped(unit_circle(), [&](const Point& p) {
            return Point{c.x + r * p.x, c.y + r * p.y};
        });
    }

    static Path pill(Point p, double w, double h) {
        const double r = h / 2, k = r * 0.4477152502;
        Path o;
        o.move({p.x + r, p.y});
        o.line({p.x + w - r, p.y});
        o.curve({p.x + w - k, p.y}, {p.x + w, p.y + k}, {p.x + w, p.y + r});
        o.curve({p.x + w, p.y + h - k}, {p.x + w - k, p.y + h}, {p.x + w - r, p.y + h});
        o.line({p.x + r, p.y + h});
        o.curve({p.x + k, p.y + h}, {p.x, p.y + h - k}, {p.x, p.y + r});
        o.curve({p.x, p.y + k}, {p.x + k, p.y}, {p.x + r, p.y});
        o.close();
        return o;
    }

    void paint_layer(const DrawItem& item, bool named) {
        const LayerFace face(_canvas, _list, item);
        const bool front = item.flat || item.quad.faces_camera();
        if (item.kind == LayerKind::Text)
            paint_text(face, _typesetter);
        else if (item.kind == LayerKind::Shape)
            paint_shape(face);
        else if (!front)
            paint_back(face);
        else if (item.kind == LayerKind::Footage)
            paint_footage(face);
        else
            paint_solid(face);
        if (item.is_opaque()) {
            paint_edge(face);
            if (front && named && face.has_detail() && !nearly_fills_picture(item))
                paint_name(face);
        }
        if (item.selected) paint_selection(face);
    }

    bool nearly_fills_picture(const DrawItem& item) const {
        const auto [left, right] = std::minmax({item.quad.at(0, 0).x, item.quad.at(1, 0).x,
                                                item.quad.at(1, 1).x, item.quad.at(0, 1).x});
        const auto [top, bottom] = std::minmax({item.quad.at(0, 0).y, item.quad.at(1, 0).y,
                                                item.quad.at(1, 1).y, item.quad.at(0, 1).y});
        return right - left > max_named_share * _list.width &&
               bottom - top > max_named_share * _list.height;
    }

    void paint_edge(const LayerFace& face) {
        if (face.extent < 3) return;
        const double width = std::min(0.8, 0.05 * face.extent) * _list.point;
        _canvas.stroke(face.outline(),
                       with_alpha(face.shading(mix(face.item.color, white, 0.55)), 0.8), width);
    }

    void paint_selection(const LayerFace& face) {
        const double size = std::clamp(face.extent * 0.04, 0.2, 1.0);
        _canvas.stroke(face.outline(),
                       with_alpha(highlight, 0.85 - 0.85 * face.shading.haze_share()),
                       size * _list.point);
    }

    // The name in the lower left corner and the layer's number in the upper one.
    void paint_name(const LayerFace& face) {
        const DrawItem& item = face.item;
        const double w = item.quad.width(), h = item.quad.height(), side = std::min(w, h);
        const double pad = 0.08 * side, room = w - 2 * pad;
        const double stretch = item.quad.stretch(0.5, 0.9).largest;
        double type = std::min(0.17 * side, max_type * _list.point / stretch);
        if (!face.is_readable(type, 0.5, 0.9)) return;
        const bool photo = item.kind == LayerKind::Footage;
        TextLine line = _typesetter.line(item.name, 1e6, !photo);
        const double full = line.width * type / Typesetter::size;
        if (full > room) type *= std::max(0.6, room / full);
        if (!face.is_readable(type, 0.5, 0.9)) return;
        const double scale = type / Typesetter::size;
        if (line.width * scale > room * 1.001) {
            line = _typesetter.line(item.name, room / scale, !photo);
        }
        const Rgba color = !photo && luminance(item.color) > 0.62 ? ink : white;
        if (photo) { // darkened behind the name
            const Path lower_third =
                polygon_path({face.at(0, 0.66), face.at(1, 0.66), face.at(1, 1), face.at(0, 1)});
            _canvas.fill(lower_third, face.gradient(0.66, {0, 0, 0, 0}, 1, {0, 0, 0, 0.55}));
        }
        const double top = h - 0.8 * pad - line.height * scale;
        _canvas.fill(face.text(line, pad, top, scale), with_alpha(face.shading(color), 0.95));
        paint_number(face, pad, color);
    }

    void paint_number(const LayerFace& face, double pad, const Rgba& color) {
        const LayerQuad& quad = face.item.quad;
        const double type = std::min(0.125 * std::min(quad.width(), quad.height()),
                                     0.7 * max_type * _list.point / quad.stretch(0, 0).largest);
        if (!face.is_readable(type, 0.1, 0.1)) return;
        const TextLine line = _typesetter.line(std::to_string(face.item.index + 1), 1e6);
        _canvas.fill(face.text(line, pad, 0.6 * pad, type / Typesetter::size),
                     with_alpha(face.shading(color), 0.6));
    }

    void paint_light(const DrawItem& item) {
        const double p = _list.point;
        const Point s = item.mark;
        const Rgba warm{1.0, 0.88, 0.58};
        const double glow = 46 * p;
        _canvas.fill(circle(s, glow), Brush(Brush::Kind::Radial, s, {s.x + glow, s.y},
                                            {{0, with_alpha(warm, 0.34)},
                                             {0.35, with_alpha(warm, 0.10)},
                                             {1, with_alpha(warm, 0)}}));
        _canvas.fill(circle(s, 4.2 * p), warm);
        Path rays;
        for (int i = 0; i < 8; ++i) {
            const double t = i * std::numbers::pi / 4, c = std::cos(t), d = std::sin(t);
            rays.move({s.x + 6.5 * p * c, s.y + 6.5 * p * d});
            rays.line({s.x + 9.5 * p * c, s.y + 9.5 * p * d});
        }
        _canvas.stroke(rays, warm, 1.1 * p);
        paint_label(item, 14);
    }

    void paint_camera(const DrawItem& item) {
        const double p = _list.point;
        const Point s = item.mark;
        const auto box = [&](double x0, double y0, double x1, double y1, double taper) {
            return polygon_path({{s.x + x0 * p, s.y + y0 * p},
                                 {s.x + x1 * p, s.y + (y0 - taper) * p},
                                 {s.x + x1 * p, s.y + (y1 + taper) * p},
                                 {s.x + x0 * p, s.y + y1 * p}});
        };
        const Rgba body{0.80, 0.85, 0.94};
        for (const Path& o : {box(-9, -5.5, 4, 5.5, 0), box(5.5, -1.5, 10.5, 1.5, 3)}) {
            _canvas.fill(o, body);
            _canvas.stroke(o, with_alpha(item.selected ? highlight : ink, 0.9), p);
        }
        paint_label(item, 13);
    }

    void paint_label(const DrawItem& item, double below) {
        const double p = _list.point, scale = 8.5 * p / Typesetter::size;
        const TextLine line = _typesetter.line(item.name, 140 * p / scale);
        const Point from{item.mark.x - line.width * scale / 2, item.mark.y + below * p};
        const Path text = flat_text(line, from, scale);
        _canvas.stroke(text, with_alpha(ink, 0.6), 2 * p);
        _canvas.fill(text, Rgba{0.92, 0.94, 0.98});
    }

    Canvas& _canvas;
    const DrawList& _list;
    Typesetter _typesetter;
};

} // namespace

void paint(Canvas& canvas, const DrawList& list) {
    paint_backdrop(canvas, list);
    Painter painter(canvas, list);
    painter.paint_layers();
    painter.paint_caption();
}

} // namespace minihost::preview
