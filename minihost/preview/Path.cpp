#include "minihost/preview/Path.h"

namespace minihost::preview {

void Path::move(Point p) {
    steps.push_back(Step::Move);
    points.push_back(p);
}

void Path::line(Point p) {
    steps.push_back(Step::Line);
    points.push_back(p);
}

void Path::curve(Point a, Point b, Point p) {
    steps.push_back(Step::Curve);
    points.insert(points.end(), {a, b, p});
}

void Path::close() {
    steps.push_back(Step::Close);
}

Path polygon_path(const std::vector<Point>& corners) {
    Path path;
    for (const Point& p : corners) {
        if (path.is_empty())
            path.move(p);
        else
            path.line(p);
    }
    if (!path.is_empty()) path.close();
    return path;
}

Path unit_circle() {
    constexpr double k = 0.5522847498; // handles of a quarter circle
    Path path;
    path.move({1, 0});
    path.curve({1, k}, {k, 1}, {0, 1});
    path.curve({-k, 1}, {-1, k}, {-1, 0});
    path.curve({-1, -k}, {-k, -1}, {0, -1});
    path.curve({k, -1}, {1, -k}, {1, 0});
    path.close();
    return path;
}

} // namespace minihost::preview
