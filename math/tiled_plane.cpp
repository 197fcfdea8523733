// The walk over the cells of a tiled plane.

#include "math/tiled_plane.h"

#include <algorithm>

namespace math {

namespace {

// Each tile counts as smaller by this on every side, so that neighbours may touch.
constexpr double shrink = 1e-12;

// The centre of a tile at the lower end (0), middle (1) or upper end (2) of a range around 0.
double aligned(int place, double tile, double whole) {
    return place == 0 ? tile / 2 - whole / 2 : place == 1 ? 0 : whole / 2 - tile / 2;
}

} // namespace

TiledPlane::TiledPlane(double width, double height, int anchor, int cols, int rows)
    : _xmin(-width / 2),
      _ymin(-height / 2),
      _xmax(width / 2),
      _ymax(height / 2),
      _cols(std::max(cols, 0)),
      _rows(std::max(rows, 0)),
      _anchor(anchor < 0 || anchor > 8 ? 0 : anchor),
      _cells(static_cast<std::size_t>(_cols) * static_cast<std::size_t>(_rows), true),
      _next_cell(start_cell()) {}

std::int64_t TiledPlane::start_cell() const {
    const std::int64_t cols = _cols, rows = _rows;
    const std::int64_t row = _anchor / 3 == 0 ? 0 : _anchor / 3 == 1 ? rows / 2 : rows - 1;
    const std::int64_t column = _anchor % 3 == 0 ? 0 : _anchor % 3 == 1 ? cols / 2 : cols - 1;
    return row * cols + column;
}

FPoint TiledPlane::get_tile_pos(double w, double h, std::int64_t cell) const {
    const double width = _xmax - _xmin, height = _ymax - _ymin;
    if (_cells.empty()) return {};
    if (_cols == 1 && _rows == 1)
        return {aligned(_anchor % 3, w, width), aligned(_anchor / 3, h, height)};
    const double cw = width / _cols, ch = height / _rows;
    const auto column = cell % _cols, row = cell / _cols;
    return {column * cw - width / 2 + cw / 2, row * ch - height / 2 + ch / 2};
}

bool TiledPlane::has_room(const FRect& tile) const {
    const bool within =
        _xmin <= tile.left && tile.right <= _xmax && _ymin <= tile.top && tile.bottom <= _ymax;
    return within && std::none_of(_placed.begin(), _placed.end(), [&](const FRect& r) {
               return r.right >= tile.left && tile.right >= r.left && r.bottom >= tile.top &&
                      tile.bottom >= r.top;
           });
}

bool TiledPlane::put_tile(double w, double h, FPoint& center) {
    while (!is_full()) {
        const FPoint p = get_tile_pos(w, h, _next_cell);
        const FRect tile{p.x - w / 2 + shrink, p.y - h / 2 + shrink, p.x + w / 2 - shrink,
                         p.y + h / 2 - shrink};
        const bool fits = has_room(tile);
        _cells[static_cast<std::size_t>(_next_cell)] = false;
        if (++_next_cell == static_cast<std::int64_t>(_cells.size())) _next_cell = 0;
        if (fits) {
            _placed.push_back(tile);
            center = p;
            return true;
        }
    }
    return false;
}

} // namespace math
