#include "minihost/window/Picking.h"

#include <algorithm>

namespace minihost {

namespace {

using preview::Item;
using preview::Plan;
using preview::Point;

constexpr double mark_reach = 11; // points around the middle of a camera's or a light's mark
constexpr double edge_reach = 3;  // points beside a sheet that is seen edge-on

using Polygon = std::vector<Point>;

Polygon outline(const Plan& plan, const Item& item) {
    if (item.kind != Item::Kind::light && item.kind != Item::Kind::camera) return item.polygon;
    const double r = mark_reach * plan.point;
    const Point s = item.spot;
    return {{s.x - r, s.y - r}, {s.x + r, s.y - r}, {s.x + r, s.y + r}, {s.x - r, s.y + r}};
}

// How far a polygon reaches along a direction.
std::pair<double, double> extent(const Polygon& polygon, double x, double y) {
    double least = polygon[0].x * x + polygon[0].y * y, greatest = least;
    for (const Point& p : polygon) {
        least = std::min(least, p.x * x + p.y * y);
        greatest = std::max(greatest, p.x * x + p.y * y);
    }
    return {least, greatest};
}

// Whether some line along an edge of `a` has the one on one side and the other on the other.
bool parted_by_edge(const Polygon& a, const Polygon& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        const Point &p = a[i], &q = a[(i + 1) % a.size()];
        const double x = p.y - q.y, y = q.x - p.x;
        if (x == 0 && y == 0) continue;
        const auto [a_least, a_greatest] = extent(a, x, y);
        const auto [b_least, b_greatest] = extent(b, x, y);
        if (a_greatest < b_least || b_greatest < a_least) return true;
    }
    return false;
}

// Convex both.
bool touch(const Polygon& a, const Polygon& b) {
    return !a.empty() && !b.empty() && !parted_by_edge(a, b) && !parted_by_edge(b, a);
}

} // namespace

LayerId layer_at(const Plan& plan, const Point& point) {
    const Polygon there{point};
    const double r = edge_reach * plan.point;
    const Polygon near{{point.x - r, point.y - r},
                       {point.x + r, point.y - r},
                       {point.x + r, point.y + r},
                       {point.x - r, point.y + r}};
    for (auto edge = plan.edges.rbegin(); edge != plan.edges.rend(); ++edge)
        if (touch(edge->polygon, near)) return edge->id;
    for (auto item = plan.items.rbegin(); item != plan.items.rend(); ++item)
        if (touch(outline(plan, *item), there)) return item->id;
    return 0;
}

std::vector<LayerId> layers_touched(const Plan& plan, const Point& corner, const Point& opposite) {
    const auto [left, right] = std::minmax(corner.x, opposite.x);
    const auto [top, bottom] = std::minmax(corner.y, opposite.y);
    const Polygon band{{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    std::vector<const Item*> found;
    for (const auto* items : {&plan.items, &plan.edges, &plan.hidden})
        for (const Item& item : *items)
            if (touch(outline(plan, item), band)) found.push_back(&item);
    std::sort(found.begin(), found.end(),
              [](const Item* a, const Item* b) { return a->index < b->index; });
    std::vector<LayerId> layers;
    for (const Item* item : found) layers.push_back(item->id);
    return layers;
}

} // namespace minihost
