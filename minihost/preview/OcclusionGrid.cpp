#include "minihost/preview/OcclusionGrid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace minihost::preview {

namespace {

// Of x; left > right if empty.
struct Span {
    double left = std::numeric_limits<double>::max();
    double right = std::numeric_limits<double>::lowest();
    void include(double x) {
        left = std::min(left, x);
        right = std::max(right, x);
    }
};

// Where the polygon crosses the height y.
Span span_at(const std::vector<Point>& p, double y) {
    Span span;
    for (std::size_t i = 0; i < p.size(); ++i) {
        const Point &a = p[i], &b = p[(i + 1) % p.size()];
        if ((a.y <= y) != (b.y <= y)) span.include(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
    }
    return span;
}

// All of the polygon between two heights.
Span span_between(const std::vector<Point>& p, double top, double bottom) {
    Span span = span_at(p, top);
    const Span low = span_at(p, bottom);
    span.left = std::min(span.left, low.left);
    span.right = std::max(span.right, low.right);
    for (const Point& a : p) {
        if (a.y >= top && a.y <= bottom) span.include(a.x);
    }
    return span;
}

int cell_of(double coordinate, int cell, int count) {
    return static_cast<int>(std::clamp(std::floor(coordinate / cell), -1.0, double(count)));
}

} // namespace

OcclusionGrid::OcclusionGrid(int width, int height, int cell)
    : _cell(cell),
      _columns((width + cell - 1) / cell),
      _rows((height + cell - 1) / cell),
      _uncovered(_columns * _rows),
      _covered(static_cast<std::size_t>(_uncovered), 0) {}

OcclusionGrid::Rows OcclusionGrid::rows_of(const std::vector<Point>& p) const {
    if (p.empty()) return {0, -1};
    const auto by_y = [](const Point& a, const Point& b) { return a.y < b.y; };
    const auto [top, bottom] = std::minmax_element(p.begin(), p.end(), by_y);
    return {std::max(cell_of(top->y, _cell, _rows), 0),
            std::min(cell_of(bottom->y, _cell, _rows), _rows - 1)};
}

bool OcclusionGrid::is_visible(const std::vector<Point>& p) const {
    const Rows r = rows_of(p);
    for (int row = r.first; row <= r.last; ++row) {
        const Span span = span_between(p, double(row) * _cell, double(row + 1) * _cell);
        if (span.left > span.right) continue;
        const int first = std::max(cell_of(span.left, _cell, _columns), 0);
        const int last = std::min(cell_of(span.right, _cell, _columns), _columns - 1);
        for (int column = first; column <= last; ++column) {
            if (!_covered[std::size_t(row) * _columns + column]) return true;
        }
    }
    return false;
}

void OcclusionGrid::cover(const std::vector<Point>& p) {
    const Rows r = rows_of(p);
    for (int row = r.first; row <= r.last; ++row) {
        const Span high = span_at(p, double(row) * _cell);
        const Span low = span_at(p, double(row + 1) * _cell);
        if (high.left > high.right || low.left > low.right) continue;
        const double left = std::max(high.left, low.left);
        const double right = std::min(high.right, low.right);
        const int first = std::max(static_cast<int>(std::ceil(std::max(left, 0.0) / _cell)), 0);
        const int end = std::min(cell_of(right, _cell, _columns), _columns);
        for (int column = first; column < end; ++column) {
            char& covered = _covered[std::size_t(row) * _columns + column];
            if (covered) continue;
            covered = 1;
            --_uncovered;
        }
    }
}

} // namespace minihost::preview
