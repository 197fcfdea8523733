#include "minihost/preview/Backdrop.h"

#include "minihost/preview/PreviewColors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace minihost::preview {

namespace {

Path whole_picture(const DrawList& list) {
    const double w = list.width, h = list.height;
    return polygon_path({{0, 0}, {w, 0}, {w, h}, {0, h}});
}

// Sky above the horizon and ground below it, whichever way the camera is tilted.
void paint_sky_and_ground(Canvas& canvas, const DrawList& list) {
    const Camera& camera = list.camera;
    // The world's upward direction in the axes of the camera.
    const Vector up{-camera.axes.x.y, -camera.axes.y.y, -camera.axes.z.y};
    const double level = std::hypot(up.x, up.y);
    if (level < 0.05) {
        canvas.fill(whole_picture(list), up.z < 0 ? ground : sky_top);
        return;
    }
    const Point direction{up.x / level, up.y / level};
    const double unit = camera.unit, reach = camera.center.y * 2.2 * unit;
    const double horizon = std::clamp(-up.z / level * camera.zoom * unit, -1e5, 1e5);
    const Point middle{(camera.center.x + camera.shift.x) * unit,
                       (camera.center.y + camera.shift.y) * unit};
    const auto above_horizon = [&](double distance) {
        const double t = horizon + distance;
        return Point{middle.x + direction.x * t, middle.y + direction.y * t};
    };
    canvas.fill(whole_picture(list),
                Brush(Brush::Kind::Linear, above_horizon(reach), above_horizon(-reach),
                      {{0, sky_top},
                       {0.30, mix(sky_top, haze, 0.42)},
                       {0.495, haze},
                       {0.52, mix(haze, ground, 0.25)},
                       {0.70, mix(ground, haze, 0.28)},
                       {1, ground}}));
}

// Collects lines by opacity, so that the grid is few paths however many lines it has.
class Grid {
  public:
    explicit Grid(const DrawList& list) : _list(list) {}

    void line(Vector a, Vector b, double alpha) {
        const int bin = static_cast<int>(std::lround(alpha * bins));
        if (bin <= 0) return;
        a = _list.camera.to_view(a);
        b = _list.camera.to_view(b);
        const double near = _list.camera.near_distance() * 20;
        if (!is_finite(a) || !is_finite(b)) return;
        if (a.z < near && b.z < near) return;
        if (a.z < near) a = a + (b - a) * ((near - a.z) / (b.z - a.z));
        if (b.z < near) b = b + (a - b) * ((near - b.z) / (a.z - b.z));
        const Point p = _list.camera.project(a), q = _list.camera.project(b);
        if (outside(p, q)) return;
        Path& path = _lines[std::size_t(std::min(bin, bins))];
        path.move(p);
        path.line(q);
    }

    void paint(Canvas& canvas) const {
        for (int bin = 1; bin <= bins; ++bin) {
            const Path& path = _lines[std::size_t(bin)];
            if (path.is_empty()) continue;
            canvas.stroke(path, with_alpha(grid_line, 0.30 * bin / bins), 0.6 * _list.point);
        }
    }

  private:
    static constexpr int bins = 8;

    bool outside(const Point& p, const Point& q) const {
        return std::max(p.x, q.x) < 0 || std::max(p.y, q.y) < 0 ||
               std::min(p.x, q.x) > _list.width || std::min(p.y, q.y) > _list.height;
    }

    const DrawList& _list;
    std::array<Path, bins + 1> _lines;
};

void paint_grid(Canvas& canvas, const DrawList& list) {
    constexpr int lines = 16;
    const double step = list.comp_width / 12, reach = lines * step;
    // At whole multiples, so that the grid does not move along with what stands on it.
    const double x0 = std::round(list.center.x / step) * step;
    const double z0 = std::round(list.center.z / step) * step;
    const auto opacity = [&](double x, double z) {
        const double r = std::hypot(x, z) / reach;
        return std::pow(std::max(0.0, 1 - r), 1.6);
    };
    Grid grid(list);
    for (int i = -lines; i <= lines; ++i) {
        for (int j = -lines; j < lines; ++j) {
            const double a = i * step, b = j * step, c = b + step, m = b + step / 2;
            grid.line({x0 + a, list.floor, z0 + b}, {x0 + a, list.floor, z0 + c}, opacity(a, m));
            grid.line({x0 + b, list.floor, z0 + a}, {x0 + c, list.floor, z0 + a}, opacity(m, a));
        }
    }
    grid.paint(canvas);
}

// An ellipse on the floor with the half axes a and b; empty if some of it is behind the camera.
Path floor_ellipse(const DrawList& list, const Vector& center, const Vector& a, const Vector& b) {
    constexpr int corners = 20;
    std::vector<Point> points;
    for (int i = 0; i < corners; ++i) {
        const double t = i * (2 * std::numbers::pi / corners);
        const Vector p = list.camera.to_view(center + a * std::cos(t) + b * std::sin(t));
        if (!is_finite(p) || p.z < list.camera.near_distance() * 20) return {};
        points.push_back(list.camera.project(p));
    }
    return polygon_path(points);
}

void paint_shadow(Canvas& canvas, const DrawList& list, const DrawItem& item, double strength) {
    const double height = list.floor - item.center.y;
    const double fade = 1 / (1 + std::abs(height) / (0.35 * list.comp_width));
    Vector a{item.half_across.x, 0, item.half_across.z}, b{item.half_down.x, 0, item.half_down.z};
    if (length(b) > length(a)) std::swap(a, b);
    const double longer = length(a);
    if (!(longer > 1e-6) || longer > 4 * list.comp_width) return;
    const double breadth = std::max(length(b), 0.3 * longer);
    const Vector across = Vector{-a.z, 0, a.x} * (breadth / longer);
    const Vector below{item.center.x, list.floor, item.center.z};
    // Three on each other, so that its rim is soft.
    for (const double size : {1.25, 1.0, 0.7}) {
        const Path outline = floor_ellipse(list, below, a * size, across * size);
        if (!outline.is_empty()) canvas.fill(outline, Rgba{0, 0, 0, strength * fade});
    }
}

} // namespace

void paint_backdrop(Canvas& canvas, const DrawList& list) {
    constexpr std::size_t max_shadows = 500;
    paint_sky_and_ground(canvas, list);
    paint_grid(canvas, list);
    if (list.items.size() > max_shadows) return;
    const double strength = 0.15 / (1 + double(list.items.size()) / 60); // many add up
    for (const DrawItem& item : list.items) {
        if (!item.is_mark() && !item.flat) paint_shadow(canvas, list, item, strength);
    }
}

} // namespace minihost::preview
