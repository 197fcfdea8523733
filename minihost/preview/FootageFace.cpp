// Footage: a small landscape, drawn from the layer's name.

#include "minihost/preview/LayerFace.h"

#include <algorithm>
#include <array>

namespace minihost::preview {

namespace {

// The colours of a landscape.
struct Landscape {
    Rgba sky_top, horizon, sun, hill, front;
};

constexpr std::array<Landscape, 8> landscapes{{
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

// A skyline of gentle hills from edge to edge, closed along the lower edge. `first` is the first
// random number that it uses.
Path ridge(const LayerFace& face, int first, double base, double rise) {
    constexpr int peaks = 5;
    std::array<double, peaks + 1> v{};
    for (int i = 0; i <= peaks; ++i) {
        v[std::size_t(i)] = base - rise * face.item.random(first + i);
    }
    Path path;
    path.move(face.at(0, v[0]));
    for (std::size_t i = 1; i < v.size(); ++i) {
        const double u0 = (double(i) - 1) / peaks, u1 = double(i) / peaks, m = (u0 + u1) / 2;
        path.curve(face.at(m, v[i - 1]), face.at(m, v[i]), face.at(u1, v[i]));
    }
    path.line(face.at(1, 1));
    path.line(face.at(0, 1));
    path.close();
    return path;
}

} // namespace

void paint_footage(const LayerFace& face) {
    const DrawItem& item = face.item;
    const Shading& shaded = face.shading;
    const Landscape& landscape = landscapes[std::size_t(item.random(0) * landscapes.size())];
    // A layer with a colour of its own keeps it in its sky.
    const Rgba high = item.has_own_color ? item.color : landscape.sky_top;
    const Rgba low = item.has_own_color ? mix(high, white, 0.5) : landscape.horizon;
    if (!face.has_detail()) {
        face.canvas.fill(face.outline(), shaded(mix(high, low, 0.4)));
        return;
    }
    face.canvas.fill(face.outline(), face.gradient(0, shaded(high), 0.75, shaded(low)));
    const double ratio = item.quad.width() / item.quad.height();
    const double sun = 0.06 + 0.06 * item.random(3), wide = std::min(1.0, 1 / ratio);
    const double u = 0.2 + 0.6 * item.random(4), v = 0.24 + 0.22 * item.random(5);
    face.canvas.fill(face.ellipse(u, v, sun * wide, sun * wide * ratio), shaded(landscape.sun));
    face.canvas.fill(ridge(face, 10, 0.72, 0.22), shaded(mix(landscape.hill, low, 0.52)));
    face.canvas.fill(ridge(face, 20, 0.86, 0.20), shaded(landscape.hill));
    face.canvas.fill(ridge(face, 30, 1.00, 0.16), shaded(landscape.front));
}

} // namespace minihost::preview
