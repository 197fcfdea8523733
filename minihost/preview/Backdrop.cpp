// Sky, ground, grid and shadows.

#include "minihost/preview/Backdrop.h"

#include "minihost/preview/PreviewColors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace minihost::preview {

namespace {

// The world's upward direction in the axes of the lens.
Vector upward(const Lens& lens) {
    return {-lens.body.x.y, -lens.body.y.y, -lens.body.z.y};
}

Outline whole_picture(const Plan& plan) {
    const double w = plan.width, h = plan.height;
    return polygon_outline({{0, 0}, {w, 0}, {w, h}, {0, h}});
}

// Sky above the horizon and ground below it, whichever way the lens is tilted.
void paint_backdrop(Canvas& canvas, const Plan& plan) {
    const Vector up = upward(plan.lens);
    const double level = std::hypot(up.x, up.y);
    if (level < 0.05) {
        canvas.fill(whole_picture(plan), up.z < 0 ? ground : sky_top);
        return;
    }
    const Point g{up.x / level, up.y / level};
    const double unit = plan.lens.unit, reach = plan.lens.centre.y * 2.2 * unit;
    const double horizon = std::clamp(-up.z / level * plan.lens.zoom * unit, -1e5, 1e5);
    const Point middle{(plan.lens.centre.x + plan.lens.shift.x) * unit,
                       (plan.lens.centre.y + plan.lens.shift.y) * unit};
    const auto along = [&](double t) {
        return Point{middle.x + g.x * (horizon + t), middle.y + g.y * (horizon + t)};
    };
    const Colour soft = mix(haze, ground, 0.25);
    canvas.fill(whole_picture(plan), Shade(Shade::Kind::along, along(reach), along(-reach),
                                           {{0, sky_top},
                                            {0.30, mix(sky_top, haze, 0.42)},
                                            {0.495, haze},
                                            {0.52, soft},
                                            {0.70, mix(ground, haze, 0.28)},
                                            {1, ground}}));
}

// The lines of one strength, gathered so that the grid is few paths however many lines it has.
class Grid {
  public:
    explicit Grid(const Plan& plan) : _plan(plan) {}

    void line(Vector a, Vector b, double alpha) {
        const int bin = static_cast<int>(std::lround(alpha * bins));
        if (bin <= 0) return;
        a = _plan.lens.view(a);
        b = _plan.lens.view(b);
        const double near = _plan.lens.near() * 20;
        if (!is_finite(a) || !is_finite(b)) return;
        if (a.z < near && b.z < near) return;
        if (a.z < near) a = a + (b - a) * ((near - a.z) / (b.z - a.z));
        if (b.z < near) b = b + (a - b) * ((near - b.z) / (a.z - b.z));
        const Point p = _plan.lens.project(a), q = _plan.lens.project(b);
        if (outside(p, q)) return;
        Outline& outline = _lines[std::size_t(std::min(bin, bins))];
        outline.move(p);
        outline.line(q);
    }

    void paint(Canvas& canvas) const {
        for (int bin = 1; bin <= bins; ++bin) {
            const Outline& outline = _lines[std::size_t(bin)];
            if (outline.empty()) continue;
            canvas.stroke(outline, with_alpha(grid_line, 0.30 * bin / bins), 0.6 * _plan.point);
        }
    }

  private:
    static constexpr int bins = 8;

    bool outside(const Point& p, const Point& q) const {
        return std::max(p.x, q.x) < 0 || std::max(p.y, q.y) < 0 ||
               std::min(p.x, q.x) > _plan.width || std::min(p.y, q.y) > _plan.height;
    }

    const Plan& _plan;
    std::array<Outline, bins + 1> _lines;
};

void paint_grid(Canvas& canvas, const Plan& plan) {
    constexpr int lines = 16;
    const double step = plan.comp_width / 12, reach = lines * step;
    // Lines stand at whole multiples, so that the grid does not swim with what is on it.
    const double x0 = std::round(plan.middle.x / step) * step;
    const double z0 = std::round(plan.middle.z / step) * step;
    const auto strength = [&](double x, double z) {
        const double r = std::hypot(x, z) / reach;
        return std::pow(std::max(0.0, 1 - r), 1.6);
    };
    Grid grid(plan);
    for (int i = -lines; i <= lines; ++i) {
        for (int j = -lines; j < lines; ++j) {
            const double a = i * step, b = j * step, c = b + step, m = b + step / 2;
            grid.line({x0 + a, plan.floor, z0 + b}, {x0 + a, plan.floor, z0 + c}, strength(a, m));
            grid.line({x0 + b, plan.floor, z0 + a}, {x0 + c, plan.floor, z0 + a}, strength(m, a));
        }
    }
    grid.paint(canvas);
}

// An ellipse on the floor with the half axes a and b; empty where some of it is behind the lens.
Outline ellipse(const Plan& plan, const Vector& middle, const Vector& a, const Vector& b) {
    constexpr int corners = 20;
    std::vector<Point> points;
    for (int i = 0; i < corners; ++i) {
        const double t = i * (6.283185307179586 / corners);
        const Vector p = plan.lens.view(middle + a * std::cos(t) + b * std::sin(t));
        if (!is_finite(p) || p.z < plan.lens.near() * 20) return {};
        points.push_back(plan.lens.project(p));
    }
    return polygon_outline(points);
}

void paint_shadow(Canvas& canvas, const Plan& plan, const Item& item, double strength) {
    const double height = plan.floor - item.middle.y;
    const double fade = 1 / (1 + std::abs(height) / (0.35 * plan.comp_width));
    Vector a{item.half_across.x, 0, item.half_across.z}, b{item.half_down.x, 0, item.half_down.z};
    if (length(b) > length(a)) std::swap(a, b);
    const double longer = length(a);
    if (!(longer > 1e-6) || longer > 4 * plan.comp_width) return;
    const double breadth = std::max(length(b), 0.3 * longer);
    const Vector across = Vector{-a.z, 0, a.x} * (breadth / longer);
    const Vector place{item.middle.x, plan.floor, item.middle.z};
    // Softer the higher it hangs: the rim spreads while the core stays.
    for (const double size : {1.25, 1.0, 0.7}) {
        const Outline outline = ellipse(plan, place, a * size, across * size);
        if (!outline.empty()) canvas.fill(outline, Colour{0, 0, 0, strength * fade});
    }
}

} // namespace

void paint_stage(Canvas& canvas, const Plan& plan) {
    constexpr std::size_t most_shadows = 500;
    paint_backdrop(canvas, plan);
    paint_grid(canvas, plan);
    if (plan.items.size() > most_shadows) return;
    const double strength = 0.15 / (1 + double(plan.items.size()) / 60); // of many, a faint sum
    for (const Item& item : plan.items) {
        const bool card = item.kind != Item::Kind::light && item.kind != Item::Kind::camera;
        if (card && !item.flat) paint_shadow(canvas, plan, item, strength);
    }
}

} // namespace minihost::preview
