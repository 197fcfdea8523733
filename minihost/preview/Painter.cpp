// Layers in their order, names on them, marks of lights and cameras, the caption.

#include "minihost/preview/Painter.h"

#include "minihost/preview/Backdrop.h"
#include "minihost/preview/LayerFace.h"

#include <algorithm>
#include <cmath>

namespace minihost::preview {

namespace {

// Of the nearest layers; beyond that a picture is a texture, not a text.
constexpr std::size_t most_names = 4000;
constexpr double largest_type = 20; // points of a name on a large layer
constexpr double backdrop = 0.7;    // of the picture: what fills more of it goes without a name

class Painter {
  public:
    Painter(Canvas& canvas, const Plan& plan) : _canvas(canvas), _plan(plan) {}

    void layers() {
        const std::size_t count = _plan.items.size();
        for (std::size_t i = 0; i < count; ++i) {
            const Item& item = _plan.items[i];
            _canvas.begin_group(item.name);
            if (item.kind == Item::Kind::light) {
                light(item);
            } else if (item.kind == Item::Kind::camera) {
                camera(item);
            } else {
                layer(item, count - i <= most_names);
            }
            _canvas.end_group();
        }
    }

    // What is shown, in the lower left corner, where the picture has room for it.
    void caption() {
        const double size = 9.5 * _plan.point, pad = 5 * _plan.point, margin = 10 * _plan.point;
        const double room = _plan.width - 2 * (margin + pad);
        if (_plan.caption.empty() || room < 60 * _plan.point || _plan.height < 90 * _plan.point)
            return;
        const double scale = size / Lettering::size;
        const TextLine line = _lettering.line(_plan.caption, room / scale);
        const double height = line.height * scale + pad, width = line.width * scale + 2 * pad;
        const Point from{margin, _plan.height - margin - height};
        _canvas.begin_group(_plan.caption);
        _canvas.fill(pill(from, width, height), with_alpha(ink, 0.55));
        _canvas.fill(screen_text(line, {from.x + pad, from.y + pad / 2}, scale),
                     Colour{0.86, 0.89, 0.95, 0.92});
        _canvas.end_group();
    }

  private:
    static Outline screen_text(const TextLine& line, Point from, double scale) {
        return mapped(line.outline, [&](const Point& p) {
            return Point{from.x + p.x * scale, from.y + p.y * scale};
        });
    }

    static Outline circle(Point c, double r) {
        constexpr double k = 0.5522847498; // handles of a quarter circle
        Outline o;
        o.move({c.x + r, c.y});
        o.curve({c.x + r, c.y + r * k}, {c.x + r * k, c.y + r}, {c.x, c.y + r});
        o.curve({c.x - r * k, c.y + r}, {c.x - r, c.y + r * k}, {c.x - r, c.y});
        o.curve({c.x - r, c.y - r * k}, {c.x - r * k, c.y - r}, {c.x, c.y - r});
        o.curve({c.x + r * k, c.y - r}, {c.x + r, c.y - r * k}, {c.x + r, c.y});
        o.close();
        return o;
    }

    static Outline pill(Point p, double w, double h) {
        const double r = h / 2, k = r * 0.4477152502;
        Outline o;
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

    void layer(const Item& item, bool named) {
        const Face face(_canvas, _plan, item);
        const bool sheet = item.kind == Item::Kind::solid || item.kind == Item::Kind::photo;
        const bool front = item.flat || item.facet.faces_lens();
        if (!sheet) {
            if (item.kind == Item::Kind::text) {
                paint_letters(face, _lettering);
            } else {
                paint_shape(face);
            }
        } else if (!front) {
            paint_back(face);
        } else if (item.kind == Item::Kind::photo) {
            paint_photo(face);
        } else {
            paint_card(face);
        }
        if (sheet) edge(face);
        if (sheet && front && named && face.extent >= 12 && !is_backdrop(item)) name(face);
        if (item.selected) selection(face);
    }

    bool is_backdrop(const Item& item) const {
        const auto [left, right] = std::minmax({item.facet.at(0, 0).x, item.facet.at(1, 0).x,
                                                item.facet.at(1, 1).x, item.facet.at(0, 1).x});
        const auto [top, bottom] = std::minmax({item.facet.at(0, 0).y, item.facet.at(1, 0).y,
                                                item.facet.at(1, 1).y, item.facet.at(0, 1).y});
        return right - left > backdrop * _plan.width && bottom - top > backdrop * _plan.height;
    }

    void edge(const Face& face) {
        if (face.extent < 3) return;
        const double width = std::min(0.8, 0.05 * face.extent) * _plan.point;
        _canvas.stroke(face.whole(), with_alpha(face.tone(mix(face.item.colour, white, 0.55)), 0.8),
                       width);
    }

    void selection(const Face& face) {
        const double size = std::clamp(face.extent * 0.04, 0.2, 1.0);
        _canvas.stroke(face.whole(), with_alpha(highlight, 0.85 - 0.85 * face.tone.distance()),
                       size * _plan.point);
    }

    // The name in the lower left corner and the layer's number in the upper one.
    void name(const Face& face) {
        const Item& item = face.item;
        const double w = item.facet.width(), h = item.facet.height(), side = std::min(w, h);
        const double pad = 0.08 * side, room = w - 2 * pad;
        const double stretch = item.facet.stretch(0.5, 0.9)[1];
        double type = std::min(0.17 * side, largest_type * _plan.point / stretch);
        if (!face.readable(type, 0.5, 0.9)) return;
        const bool photo = item.kind == Item::Kind::photo;
        TextLine line = _lettering.line(item.name, 1e6, !photo);
        const double full = line.width * type / Lettering::size;
        if (full > room) type *= std::max(0.6, room / full);
        if (!face.readable(type, 0.5, 0.9)) return;
        const double scale = type / Lettering::size;
        if (line.width * scale > room * 1.001) {
            line = _lettering.line(item.name, room / scale, !photo);
        }
        const bool dark = !photo && luminance(item.colour) > 0.62;
        const Colour paint = face.tone(dark ? ink : white);
        if (photo) {
            _canvas.fill(face.rectangle(0, 0.66, 1, 1),
                         face.blend(0.66, {0, 0, 0, 0}, 1, {0, 0, 0, 0.55}));
        }
        const double top = h - 0.8 * pad - line.height * scale;
        _canvas.fill(face.text(line, pad, top, scale), with_alpha(paint, 0.95));
        number(face, pad, photo ? white : dark ? ink : white);
    }

    void number(const Face& face, double pad, const Colour& paint) {
        const Facet& facet = face.item.facet;
        const double type = std::min(0.125 * std::min(facet.width(), facet.height()),
                                     0.7 * largest_type * _plan.point / facet.stretch(0, 0)[1]);
        if (!face.readable(type, 0.1, 0.1)) return;
        const TextLine line = _lettering.line(std::to_string(face.item.index + 1), 1e6);
        _canvas.fill(face.text(line, pad, 0.6 * pad, type / Lettering::size),
                     with_alpha(face.tone(paint), 0.6));
    }

    void light(const Item& item) {
        const double p = _plan.point;
        const Point s = item.spot;
        const Colour warm{1.0, 0.88, 0.58};
        const double glow = 46 * p;
        _canvas.fill(circle(s, glow), Shade(Shade::Kind::around, s, {s.x + glow, s.y},
                                            {{0, with_alpha(warm, 0.34)},
                                             {0.35, with_alpha(warm, 0.10)},
                                             {1, with_alpha(warm, 0)}}));
        _canvas.fill(circle(s, 4.2 * p), warm);
        Outline rays;
        for (int i = 0; i < 8; ++i) {
            const double t = i * 0.7853981633974483, c = std::cos(t), d = std::sin(t);
            rays.move({s.x + 6.5 * p * c, s.y + 6.5 * p * d});
            rays.line({s.x + 9.5 * p * c, s.y + 9.5 * p * d});
        }
        _canvas.stroke(rays, warm, 1.1 * p);
        label(item, 14);
    }

    void camera(const Item& item) {
        const double p = _plan.point;
        const Point s = item.spot;
        const auto box = [&](double x0, double y0, double x1, double y1, double taper) {
            return polygon_outline({{s.x + x0 * p, s.y + y0 * p},
                                    {s.x + x1 * p, s.y + (y0 - taper) * p},
                                    {s.x + x1 * p, s.y + (y1 + taper) * p},
                                    {s.x + x0 * p, s.y + y1 * p}});
        };
        const Colour body{0.80, 0.85, 0.94};
        for (const Outline& o : {box(-9, -5.5, 4, 5.5, 0), box(5.5, -1.5, 10.5, 1.5, 3)}) {
            _canvas.fill(o, body);
            _canvas.stroke(o, with_alpha(item.selected ? highlight : ink, 0.9), p);
        }
        label(item, 13);
    }

    void label(const Item& item, double below) {
        const double p = _plan.point, scale = 8.5 * p / Lettering::size;
        const TextLine line = _lettering.line(item.name, 140 * p / scale);
        const Point from{item.spot.x - line.width * scale / 2, item.spot.y + below * p};
        const Outline text = screen_text(line, from, scale);
        _canvas.stroke(text, with_alpha(ink, 0.6), 2 * p);
        _canvas.fill(text, Colour{0.92, 0.94, 0.98});
    }

    Canvas& _canvas;
    const Plan& _plan;
    Lettering _lettering;
};

} // namespace

void paint(Canvas& canvas, const Plan& plan) {
    paint_stage(canvas, plan);
    Painter painter(canvas, plan);
    painter.layers();
    painter.caption();
}

} // namespace minihost::preview
