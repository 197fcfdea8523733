// Paths of lines and curves in the pixels of the picture.

#pragma once

#include "minihost/preview/Geometry.h"

#include <vector>

namespace minihost::preview {

// `points` holds one point for a move or a line, three for a curve.
struct Path {
    enum class Step : unsigned char { Move, Line, Curve, Close };
    std::vector<Step> steps;
    std::vector<Point> points;

    void move(Point p);
    void line(Point p);
    void curve(Point a, Point b, Point p);
    void close();
    bool is_empty() const { return steps.empty(); }
};

Path polygon_path(const std::vector<Point>& corners);
// Of radius 1 around (0, 0).
Path unit_circle();

// The path with every point p moved to map(p).
template <typename Map>
Path mapped(Path path, Map map) {
    for (Point& p : path.points) p = map(p);
    return path;
}

} // namespace minihost::preview
