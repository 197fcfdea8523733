// Reads the scene into a plan: what each layer looks like, what is seen of it, and the order.

#include "minihost/preview/DrawList.h"

#include "minihost/preview/OcclusionGrid.h"
#include "minihost/preview/PreviewColors.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_set>

namespace minihost::preview {

namespace {

constexpr double longer_side = 960; // points
constexpr Size unsized{300, 100};   // of a text or shape layer of which the scene tells no size
constexpr int cell = 8;             // pixels of the cells in which hidden layers are found

Vector vector_of(const Vec3& v) {
    return {v[0], v[1], v[2]};
}

Pose pose_of(const Layer& layer, double time) {
    const auto value = [&](Stream stream) { return value_of(layer, stream, time); };
    Pose pose;
    pose.anchor_point = vector_of(value(Stream::AnchorPoint));
    pose.position = vector_of(value(Stream::Position));
    pose.scale = vector_of(value(Stream::Scale));
    pose.orientation = vector_of(value(Stream::Orientation));
    pose.rotation = {value(Stream::RotationX)[0], value(Stream::RotationY)[0],
                     value(Stream::RotationZ)[0]};
    return pose;
}

Colour colour_of(const Color& color) {
    return {color.red / 255.0, color.green / 255.0, color.blue / 255.0};
}

Item::Kind kind_of(const Layer& l) {
    switch (l.kind) {
    case LayerKind::Footage:
        return Item::Kind::photo;
    case LayerKind::Solid:
        return Item::Kind::solid;
    case LayerKind::Text:
        return Item::Kind::text;
    case LayerKind::Shape:
        return Item::Kind::shape;
    case LayerKind::Light:
        return Item::Kind::light;
    case LayerKind::Camera:
        break;
    }
    return Item::Kind::camera;
}

// Solids always have their colour; the others one that suits them unless the scene gives it.
Colour colour_of(const Item& item, const Layer& layer) {
    if (item.coloured) return colour_of(layer.color);
    switch (item.kind) {
    case Item::Kind::photo:
        return hsv(0.52 + 0.16 * chance(item.seed, 0), 0.42, 0.88);
    case Item::Kind::text:
        return {0.95, 0.96, 0.98};
    default:
        return default_colour(item.index);
    }
}

// Left, top, width and height in the layer's own pixels.
std::array<double, 4> rectangle(const Layer& layer) {
    const bool told = layer.size.width > 0 && layer.size.height > 0;
    const double w = told ? layer.size.width : unsized.width;
    const double h = told ? layer.size.height : unsized.height;
    if (layer.has_source()) return {0, 0, w, h};
    return {-w / 2, -h / 2, w, h}; // what has no source is drawn about its origin
}

double area(const std::vector<Point>& p) {
    double twice = 0;
    for (std::size_t i = 0; i < p.size(); ++i) {
        const Point &a = p[i], &b = p[(i + 1) % p.size()];
        twice += a.x * b.y - b.x * a.y;
    }
    return std::abs(twice) / 2;
}

// Whether an item is a mark on the picture and not a rectangle in the scene.
bool is_mark(const Item& item) {
    return item.kind == Item::Kind::light || item.kind == Item::Kind::camera;
}

// Solids and footage hide what is behind all of their rectangle.
bool is_sheet(const Item& item) {
    return item.kind == Item::Kind::solid || item.kind == Item::Kind::photo;
}

// The same text for polygons that are the same to a hundredth of a pixel.
std::string corners(const Item& item) {
    std::string text;
    for (const Point& p : item.polygon) {
        text += std::to_string(std::lround(p.x * 100)) + ' ';
        text += std::to_string(std::lround(p.y * 100)) + ' ';
    }
    return text;
}

// The topmost one; null when there is none.
const Layer* first_camera(const std::vector<const Layer*>& layers) {
    const auto found = std::find_if(layers.begin(), layers.end(), [](const Layer* layer) {
        return layer->kind == LayerKind::Camera;
    });
    return found == layers.end() ? nullptr : *found;
}

// Null stands for the default camera.
Lens lens_of(const Layer* camera, const Composition& composition) {
    const double w = composition.width, h = composition.height;
    if (!camera) return default_lens(w, h);
    const Pose pose = pose_of(*camera, composition.time);
    return look(pose, pose.anchor_point, w, h);
}

std::string name_of(const Layer* camera) {
    return camera ? plain_text(camera->name) : "Default camera";
}

class Planner {
  public:
    Planner(const Scene& scene, double scale) : _scene(scene), _layers(scene.layers()) {
        const double w = scene.composition.width, h = scene.composition.height;
        const PictureSize size = picture_size(w, h, scale);
        _plan.width = size.width;
        _plan.height = size.height;
        _plan.point = scale;
        _plan.comp_width = w;
        _camera = first_camera(_layers);
        _plan.lens = lens_of(_camera, scene.composition);
        _plan.lens.unit = size.width >= size.height ? size.width / w : size.height / h;
    }

    Planner(const Scene& scene, const Framing& framing)
        : _scene(scene), _layers(scene.layers()), _framing(&framing) {
        _plan.width = framing.width;
        _plan.height = framing.height;
        _plan.point = framing.point;
        _plan.comp_width = scene.composition.width;
        _plan.lens = framing.lens;
        _plan.caption = framing.caption;
        if (framing.through_camera) _camera = first_camera(_layers);
    }

    Plan make() {
        gather();
        survey();
        drop_hidden();
        if (!_framing) write_caption();
        return std::move(_plan);
    }

  private:
    // All items from the bottom layer to the top one. 3D layers between two that are not are
    // sorted among themselves, as hosts do: a 2D layer divides what is below from what is above.
    void gather() {
        const Selection& selection = _scene.selection();
        const std::unordered_set<LayerId> chosen(selection.begin(), selection.end());
        std::vector<Item> group, marks;
        for (std::size_t i = _layers.size(); i-- > 0;) {
            if (_layers[i] == _camera) continue;
            Item item = item_of(i);
            item.selected = !_framing && chosen.contains(_layers[i]->id);
            if (is_mark(item)) {
                if (mark(item)) marks.push_back(std::move(item));
                continue;
            }
            if (item.flat) flush(group);
            if (!item.facet.visible()) continue;
            item.polygon = item.facet.polygon();
            if (is_edge(item)) {
                _plan.edges.push_back(std::move(item));
                continue;
            }
            if (area(item.polygon) < least_area) continue;
            (item.flat ? _plan.items : group).push_back(std::move(item));
        }
        flush(group);
        std::move(marks.begin(), marks.end(), std::back_inserter(_plan.items));
    }

    Item item_of(std::size_t i) const {
        const Layer& layer = *_layers[i];
        Item item;
        item.id = layer.id;
        item.index = static_cast<int>(i);
        item.kind = kind_of(layer);
        item.name = layer.name;
        item.seed = seed_of(layer.name);
        item.coloured = item.kind == Item::Kind::solid || layer.color != Color{};
        item.colour = colour_of(item, layer);
        const Pose pose = pose_of(layer, _scene.composition.time);
        if (is_mark(item)) {
            item.middle = pose.position;
            return item;
        }
        item.flat = !layer.is_3d();
        const std::array<double, 4> box = rectangle(layer);
        const Placement p = item.flat ? place_flat(pose) : place(pose);
        const bool on_picture = item.flat && (!_framing || _framing->through_camera);
        item.facet = on_picture ? Facet::flat(_plan.lens, p, box) : Facet(_plan.lens, p, box);
        item.depth = item.facet.depth();
        item.half_across = p.x * (box[2] / 2);
        item.half_down = p.y * (box[3] / 2);
        item.middle = p.point({box[0] + box[2] / 2, box[1] + box[3] / 2, 0});
        return item;
    }

    // Thinner than a point: as a surface it would hardly be seen, or not at all.
    bool is_edge(const Item& item) const {
        if (!_framing || _framing->through_camera || item.polygon.empty()) return false;
        double length = 0;
        for (const Point& p : item.polygon)
            length = std::max(length, std::hypot(p.x - item.polygon[0].x, p.y - item.polygon[0].y));
        return length > 2 * _plan.point && area(item.polygon) < length * _plan.point;
    }

    // Where a light or a camera is marked; false where it is not in the picture.
    bool mark(Item& item) const {
        const Vector v = _plan.lens.view(item.middle);
        if (!is_finite(v) || v.z < _plan.lens.near()) return false;
        item.depth = v.z;
        item.spot = _plan.lens.project(v);
        return item.spot.x >= 0 && item.spot.y >= 0 && item.spot.x <= _plan.width &&
               item.spot.y <= _plan.height;
    }

    void flush(std::vector<Item>& group) {
        // Farthest first; of those equally far the upper layer comes last, as they stand already.
        std::stable_sort(group.begin(), group.end(),
                         [](const Item& a, const Item& b) { return a.depth > b.depth; });
        std::move(group.begin(), group.end(), std::back_inserter(_plan.items));
        group.clear();
    }

    // Where the floor lies, how deep the scene is, and around what it stands.
    void survey() {
        const double w = _scene.composition.width, h = _scene.composition.height;
        double low = -std::numeric_limits<double>::infinity();
        double near = std::numeric_limits<double>::infinity(), far = 0;
        Vector sum;
        int count = 0;
        for (const Item& item : _plan.items) {
            if (item.flat || is_mark(item)) continue;
            near = std::min(near, std::max(item.depth, 0.0));
            far = std::max(far, item.depth);
            const double bottom =
                item.middle.y + std::abs(item.half_across.y) + std::abs(item.half_down.y);
            if (bottom < 3 * h) low = std::max(low, bottom);
            sum = sum + item.middle;
            ++count;
        }
        _plan.near = count ? near : 0;
        _plan.far = count ? far : 0;
        _plan.middle = count ? sum * (1.0 / count) : Vector{w / 2, h / 2, 0};
        if (length(_plan.middle - Vector{w / 2, h / 2, 0}) > 20 * w)
            _plan.middle = {w / 2, h / 2, 0};
        _plan.floor = std::max(low + 0.05 * h, h * 0.86);
    }

    // Walks from what is painted last to what is painted first.
    void drop_hidden() {
        Cover cover(_plan.width, _plan.height, cell);
        std::unordered_set<std::string> outlines; // of opaque items: a pile shows its top alone
        std::vector<Item>& items = _plan.items;
        std::vector<char> seen(items.size(), 1);
        for (std::size_t i = items.size(); i-- > 0;) {
            const Item& item = items[i];
            if (is_mark(item)) continue;
            seen[i] = !cover.full() && cover.shows(item.polygon);
            if (!seen[i] || !is_sheet(item)) {
                seen[i] = seen[i] && !outlines.contains(corners(item));
                continue;
            }
            seen[i] = outlines.insert(corners(item)).second;
            if (seen[i]) cover.add(item.polygon);
        }
        std::size_t kept = 0;
        for (std::size_t i = 0; i < items.size(); ++i) {
            if (!seen[i]) {
                if (_framing) _plan.hidden.push_back(std::move(items[i]));
                continue;
            }
            if (kept != i) items[kept] = std::move(items[i]);
            ++kept;
        }
        items.erase(items.begin() + static_cast<std::ptrdiff_t>(kept), items.end());
    }

    void write_caption() {
        const std::size_t count = _layers.size();
        _plan.caption = plain_text(_scene.composition.name) + "   \u00b7   " + name_of(_camera) +
                        "   \u00b7   " + std::to_string(count) +
                        (count == 1 ? " layer" : " layers");
    }

    // Pixels; less leaves no mark.
    static constexpr double least_area = 0.02;

    const Scene& _scene;
    std::vector<const Layer*> _layers; // top first
    const Framing* _framing = nullptr;
    Plan _plan;
    const Layer* _camera = nullptr;
};

} // namespace

PictureSize picture_size(double comp_width, double comp_height, double scale) {
    const double unit = longer_side * scale / std::max(comp_width, comp_height);
    const auto pixels = [unit](double a) {
        return std::max(1, static_cast<int>(std::lround(a * unit)));
    };
    return {pixels(comp_width), pixels(comp_height)};
}

Plan make_plan(const Scene& scene, double scale) {
    return Planner(scene, scale).make();
}

Plan make_plan(const Scene& scene, const Framing& framing) {
    return Planner(scene, framing).make();
}

Lens camera_lens(const Scene& scene) {
    return lens_of(first_camera(scene.layers()), scene.composition);
}

std::string camera_name(const Scene& scene) {
    return name_of(first_camera(scene.layers()));
}

} // namespace minihost::preview
