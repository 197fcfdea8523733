// Packs rectangular tiles onto a rectangle around the origin: its grid of cells is visited once,
// from an anchor cell onward, and each tile goes to the first visited cell where it has room.
// Lengths are in any one unit; y points down, so that "top" is the smaller y.

#pragma once

#include "math/matrix.h"

#include <cstdint>
#include <vector>

namespace math {

struct FPoint {
    double x = 0, y = 0;
};

struct FRect {
    double left = 0, top = 0, right = 0, bottom = 0;
};

class TiledPlane {
  public:
    // The anchor is the first cell: 0..8, row by row from the top left (0) over the centre (4) to
    // the bottom right (8); any other counts as 0. Without columns or rows the plane is full at
    // once. Throws std::bad_alloc or std::length_error when the grid does not fit into memory.
    TiledPlane(double width, double height, int anchor, int cols, int rows);

    // The centre of a tile of w x h in a cell (a row-major index): that of the cell. In a plane of
    // a single cell the tile is aligned within the whole rectangle, as the anchor says.
    FPoint get_tile_pos(double w, double h, std::int64_t cell) const;

    // Whether every cell was visited. They are visited in turn, so the next one shows it.
    bool is_full() const { return _cells.empty() || !_cells[static_cast<std::size_t>(_next_cell)]; }

    // Puts a tile of w x h into the next cell where it lies within the rectangle and overlaps no
    // tile (touching is allowed), and returns its centre in `center`. False, with the centre
    // untouched, when the cells run out; cells where it had no room count as visited.
    bool put_tile(double w, double h, FPoint& center);

    // The tiles placed so far, in order, each smaller by 1e-12 on every side.
    const std::vector<FRect>& placed() const { return _placed; }

    // For the caller; the plane only copies it.
    TMatrix3D<double> matrix;

  private:
    std::int64_t start_cell() const;
    bool has_room(const FRect& tile) const;

    double _xmin, _ymin, _xmax, _ymax;
    std::int32_t _cols, _rows;
    std::int32_t _anchor;
    std::vector<bool> _cells; // true: not yet visited
    std::int64_t _next_cell;
    std::vector<FRect> _placed;
};

} // namespace math
