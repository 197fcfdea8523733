#include "minihost/window/Picking.h"

#include <algorithm>

namespace minihost {

namespace {

using preview::DrawItem;
using preview::DrawList;
using preview::Point;

constexpr double mark_reach = 11; // points around a camera's or a light's mark
constexpr double edge_reach = 3;  // points beside a layer that is seen edge-on

using Polygon = std::vector<Point>;

Polygon square(const Point& center, double reach) {
    return {{center.x - reach, center.y - reach},
            {center.x + reach, center.y - reach},
            {center.x + reach, center.y + reach},
            {center.x - reach, center.y + reach}};
}

Polygon outline(const DrawList& list, const DrawItem& item) {
    return item.is_mark() ? square(item.mark, mark_reach * list.point) : item.polygon;
}

// The least and greatest coordinate of a polygon along a direction.
std::pair<double, double> extent(const Polygon& polygon, double x, double y) {
    double least = polygon[0].x * x + polygon[0].y * y, greatest = least;
    for (const Point& p : polygon) {
        least = std::min(least, p.x * x + p.y * y);
        greatest = std::max(greatest, p.x * x + p.y * y);
    }
    return {least, greatest};
}

// Whether a line along an edge of `a` separates the two.
bool separated_by_edge(const Polygon& a, const Polygon& b) {
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

// Of convex polygons.
bool touch(const Polygon& a, const Polygon& b) {
    return !a.empty() && !b.empty() && !separated_by_edge(a, b) && !separated_by_edge(b, a);
}

} // namespace

LayerId layer_at(const DrawList& list, const Point& point) {
    const Polygon near = square(point, edge_reach * list.point);
    for (auto edge = list.edges.rbegin(); edge != list.edges.rend(); ++edge)
        if (touch(edge->polygon, near)) return edge->id;
    for (auto item = list.items.rbegin(); item != list.items.rend(); ++item)
        if (touch(outline(list, *item), {point})) return item->id;
    return 0;
}

std::vector<LayerId> layers_touched(const DrawList& list, const Point& corner,
                                    const Point& opposite) {
    const auto [left, right] = std::minmax(corner.x, opposite.x);
    const auto [top, bottom] = std::minmax(corner.y, opposite.y);
    const Polygon band{{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    std::vector<const DrawItem*> found;
    for (const auto* items : {&list.items, &list.edges, &list.hidden})
        for (const DrawItem& item : *items)
            if (touch(outline(list, item), band)) found.push_back(&item);
    std::sort(found.begin(), found.end(),
              [](const DrawItem* a, const DrawItem* b) { return a->index < b->index; });
    std::vector<LayerId> layers;
    for (const DrawItem* item : found) layers.push_back(item->id);
    return layers;
}

} // namespace minihost
