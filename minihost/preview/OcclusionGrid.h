// Finds what is wholly hidden: the picture in cells, each of which is covered once an opaque
// shape drawn later fills all of it. Thousands of layers in one place cost no more than one.

#pragma once

#include "minihost/preview/Camera.h"

#include <vector>

namespace minihost::preview {

class Cover {
  public:
    // Width and height of the picture and the side of a cell, in pixels.
    Cover(int width, int height, int cell);

    // Whether a convex polygon shows in any cell that is not covered. Never false for a shape
    // of which something can be seen.
    bool shows(const std::vector<Point>& convex) const;
    // Covers the cells that lie wholly in a convex polygon.
    void add(const std::vector<Point>& convex);
    // Whether nothing can show any more.
    bool full() const { return _open == 0; }

  private:
    struct Rows {
        int first, last;
    };
    Rows rows(const std::vector<Point>& convex) const;

    int _cell, _columns, _rows, _open;
    std::vector<char> _covered;
    std::vector<int> _open_in_row;
};

} // namespace minihost::preview
