#include "minihost/preview/DrawList.h"

#include "minihost/model/Numbers.h"
#include "minihost/preview/OcclusionGrid.h"
#include "minihost/preview/PreviewColors.h"
#include "minihost/preview/PrintableText.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_set>

namespace minihost::preview {

namespace {

constexpr double longer_side = 960;    // points
constexpr Size default_size{300, 100}; // of a text or shape layer without a size in the scene
constexpr int occlusion_cell = 8;      // pixels
constexpr double min_area = 0.02;      // pixels; less leaves no trace

std::uint32_t seed_of(const std::string& name) {
    std::uint32_t h = 2166136261u; // FNV-1a
    for (const char c : name) h = (h ^ static_cast<unsigned char>(c)) * 16777619u;
    return h;
}

Transform transform_at(const Layer& layer, double time) {
    const auto value = [&](Stream stream) { return value_of(layer, stream, time); };
    Transform transform;
    transform.anchor_point = value(Stream::AnchorPoint);
    transform.position = value(Stream::Position);
    transform.scale = value(Stream::Scale);
    transform.orientation = value(Stream::Orientation);
    transform.rotation = {value(Stream::RotationX)[0], value(Stream::RotationY)[0],
                          value(Stream::RotationZ)[0]};
    return transform;
}

// The scene's colour if it has one, else one that suits the kind.
Rgba color_of(const DrawItem& item, const Color& color) {
    if (item.has_own_color) return {color.red / 255.0, color.green / 255.0, color.blue / 255.0};
    if (item.kind == LayerKind::Footage) return hsv(0.52 + 0.16 * item.random(0), 0.42, 0.88);
    if (item.kind == LayerKind::Text) return {0.95, 0.96, 0.98};
    return default_color(item.index);
}

// In the layer's own pixels.
Rectangle rectangle_of(const Layer& layer) {
    const bool has_size = layer.size.width > 0 && layer.size.height > 0;
    const Size size = has_size ? layer.size : default_size;
    const double w = size.width, h = size.height;
    if (layer.has_source()) return {0, 0, w, h};
    return {-w / 2, -h / 2, w, h}; // around its origin
}

double area(const std::vector<Point>& p) {
    double twice = 0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        const Point &a = p[i], &b = p[(i + 1) % p.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return std::abs(twice) / 2;
}

// The same for polygons that are the same to a hundredth of a pixel.
std::string polygon_key(const std::vector<Point>& polygon) {
    std::string key;
    for (const Point& p : polygon) {
        key += std::to_string(std::lround(p.x * 100)) + ' ';
        key += std::to_string(std::lround(p.y * 100)) + ' ';
    }
    return key;
}

// The topmost camera; null if there is none.
const Layer* camera_layer(const Scene& scene) {
    for (const Layer* layer : scene.layers())
        if (layer->kind == LayerKind::Camera) return layer;
    return nullptr;
}

class Builder {
  public:
    Builder(const Scene& scene, const Framing& framing, bool is_window)
        : _scene(scene),
          _layers(scene.layers()),
          _through_scene_camera(framing.through_scene_camera),
          _is_window(is_window) {
        _list.camera = framing.camera;
        _list.width = framing.width;
        _list.height = framing.height;
        _list.point = framing.point;
        _list.comp_width = scene.composition.width;
    }

    DrawList build() {
        collect_items();
        measure();
        drop_hidden();
        return std::move(_list);
    }

  private:
    // All items from the bottom layer to the top one. 3D layers between two that are not are
    // sorted among themselves, as hosts do: a 2D layer divides what is below from what is above.
    void collect_items() {
        const Layer* through = _through_scene_camera ? camera_layer(_scene) : nullptr;
        const Selection& selection = _scene.selection();
        const std::unordered_set<LayerId> selected(selection.begin(), selection.end());
        std::vector<DrawItem> group, marks;
        for (std::size_t i = _layers.size(); i-- > 0;) {
            if (_layers[i] == through) continue;
            DrawItem item = item_of(i);
            item.selected = !_is_window && selected.contains(item.id);
            if (item.is_mark()) {
                if (project_mark(item)) marks.push_back(std::move(item));
                continue;
            }
            if (item.flat) append_sorted(group);
            if (!item.quad.is_visible()) continue;
            item.polygon = item.quad.polygon();
            if (is_edge(item)) {
                _list.edges.push_back(std::move(item));
                continue;
            }
            if (area(item.polygon) < min_area) continue;
            (item.flat ? _list.items : group).push_back(std::move(item));
        }
        append_sorted(group);
        std::move(marks.begin(), marks.end(), std::back_inserter(_list.items));
    }

    DrawItem item_of(std::size_t i) const {
        const Layer& layer = *_layers[i];
        DrawItem item;
        item.kind = layer.kind;
        item.id = layer.id;
        item.index = static_cast<int>(i);
        item.name = layer.name;
        item.seed = seed_of(layer.name);
        item.has_own_color = layer.kind == LayerKind::Solid || layer.color != Color{};
        item.color = color_of(item, layer.color);
        const Transform transform = transform_at(layer, _scene.composition.time);
        if (item.is_mark()) {
            item.center = to_vector(transform.position);
            return item;
        }
        item.flat = !layer.is_3d();
        const Rectangle box = rectangle_of(layer);
        const Affine to_world =
            item.flat ? flat_layer_to_world(transform) : layer_to_world(transform);
        item.quad = item.flat && _through_scene_camera
                        ? LayerQuad::flat(_list.camera, to_world, box)
                        : LayerQuad(_list.camera, to_world, box);
        item.depth = item.quad.depth();
        item.half_across = to_world.x * (box.width / 2);
        item.half_down = to_world.y * (box.height / 2);
        item.center = to_world.point({box.left + box.width / 2, box.top + box.height / 2, 0});
        return item;
    }

    // Thinner than a point: as a surface it would hardly be seen, or not at all.
    bool is_edge(const DrawItem& item) const {
        if (_through_scene_camera || item.polygon.empty()) return false;
        double length = 0;
        for (const Point& p : item.polygon)
            length = std::max(length, std::hypot(p.x - item.polygon[0].x, p.y - item.polygon[0].y));
        return length > 2 * _list.point && area(item.polygon) < length * _list.point;
    }

    // False if the light or camera is not in the picture.
    bool project_mark(DrawItem& item) const {
        const Vector v = _list.camera.to_view(item.center);
        if (!is_finite(v) || v.z < _list.camera.near_distance()) return false;
        item.depth = v.z;
        item.mark = _list.camera.project(v);
        return item.mark.x >= 0 && item.mark.y >= 0 && item.mark.x <= _list.width &&
               item.mark.y <= _list.height;
    }

    void append_sorted(std::vector<DrawItem>& group) {
        // Farthest first; of those equally far the upper layer stays last.
        std::stable_sort(group.begin(), group.end(),
                         [](const DrawItem& a, const DrawItem& b) { return a.depth > b.depth; });
        std::move(group.begin(), group.end(), std::back_inserter(_list.items));
        group.clear();
    }

    // Where the floor lies, how deep the scene is, and what it is centred on.
    void measure() {
        const double w = _scene.composition.width, h = _scene.composition.height;
        const Vector comp_center{w / 2, h / 2, 0};
        double lowest = -std::numeric_limits<double>::infinity();
        double near = std::numeric_limits<double>::infinity(), far = 0;
        Vector sum;
        int count = 0;
        for (const DrawItem& item : _list.items) {
            if (item.flat || item.is_mark()) continue;
            near = std::min(near, std::max(item.depth, 0.0));
            far = std::max(far, item.depth);
            const double bottom =
                item.center.y + std::abs(item.half_across.y) + std::abs(item.half_down.y);
            if (bottom < 3 * h) lowest = std::max(lowest, bottom);
            sum = sum + item.center;
            ++count;
        }
        _list.near = count ? near : 0;
        _list.far = count ? far : 0;
        _list.center = count ? sum * (1.0 / count) : comp_center;
        if (length(_list.center - comp_center) > 20 * w) _list.center = comp_center;
        _list.floor = std::max(lowest + 0.05 * h, h * 0.86);
    }

    // From what is painted last to what is painted first.
    void drop_hidden() {
        OcclusionGrid grid(_list.width, _list.height, occlusion_cell);
        std::unordered_set<std::string> outlines; // of opaque items: only the top of a pile is seen
        std::vector<DrawItem> kept;
        std::vector<DrawItem>& items = _list.items;
        for (; !items.empty(); items.pop_back()) {
            DrawItem& item = items.back();
            if (item.is_mark() || is_seen(item, grid, outlines))
                kept.push_back(std::move(item));
            else if (_is_window)
                _list.hidden.push_back(std::move(item));
        }
        std::reverse(kept.begin(), kept.end());
        std::reverse(_list.hidden.begin(), _list.hidden.end());
        items = std::move(kept);
    }

    static bool is_seen(const DrawItem& item, OcclusionGrid& grid,
                        std::unordered_set<std::string>& outlines) {
        if (grid.is_full() || !grid.is_visible(item.polygon)) return false;
        std::string key = polygon_key(item.polygon);
        if (!item.is_opaque()) return !outlines.contains(key);
        if (!outlines.insert(std::move(key)).second) return false;
        grid.cover(item.polygon);
        return true;
    }

    const Scene& _scene;
    const std::vector<const Layer*> _layers; // top first
    const bool _through_scene_camera, _is_window;
    DrawList _list;
};

} // namespace

double DrawItem::random(int n) const {
    std::uint32_t h = seed + 0x9e3779b9u * static_cast<std::uint32_t>(n + 1);
    h = (h ^ (h >> 16)) * 0x85ebca6bu;
    h = (h ^ (h >> 13)) * 0xc2b2ae35u;
    return (h ^ (h >> 16)) / 4294967296.0;
}

Camera scene_camera(const Scene& scene) {
    const double w = scene.composition.width, h = scene.composition.height;
    const Layer* layer = camera_layer(scene);
    return layer ? camera_from_transform(transform_at(*layer, scene.composition.time), w, h)
                 : default_camera(w, h);
}

std::string scene_camera_name(const Scene& scene) {
    const Layer* layer = camera_layer(scene);
    return layer ? printable_text(layer->name) : "Default camera";
}

DrawList make_draw_list(const Scene& scene, double scale) {
    const double w = scene.composition.width, h = scene.composition.height;
    const auto pixels = [unit = longer_side * scale / std::max(w, h)](double length) {
        return std::max(1, static_cast<int>(std::lround(length * unit)));
    };
    Framing framing{pixels(w), pixels(h), scale, scene_camera(scene)};
    framing.camera.unit = framing.width >= framing.height ? framing.width / w : framing.height / h;
    DrawList list = Builder(scene, framing, false).build();
    list.caption = printable_text(scene.composition.name) + "   \u00b7   " +
                   scene_camera_name(scene) + "   \u00b7   " +
                   counted(scene.layer_count(), "layer");
    return list;
}

DrawList make_draw_list(const Scene& scene, const Framing& framing) {
    return Builder(scene, framing, true).build();
}

} // namespace minihost::preview
