// Finds what is wholly hidden: the picture in square cells, each of which is covered once an opaque
// shape in front fills it. Thousands of layers in one place cost no more than one.

#pragma once

#include "minihost/preview/Geometry.h"

#include <vector>

namespace minihost::preview {

class OcclusionGrid {
  public:
    // Width and height of the picture and the side of a cell, in pixels.
    OcclusionGrid(int width, int height, int cell);

    // Whether a convex polygon touches any cell that is not covered. Never false for a shape of
    // which something can be seen.
    bool is_visible(const std::vector<Point>& convex) const;
    // Covers the cells that lie wholly in a convex polygon.
    void cover(const std::vector<Point>& convex);
    // Whether all cells are covered.
    bool is_full() const { return _uncovered == 0; }

  private:
    struct Rows {
        int first, last;
    };
    Rows rows_of(const std::vector<Point>& convex) const;

    int _cell, _columns, _rows, _uncovered;
    std::vector<char> _covered;
};

} // namespace minihost::preview
