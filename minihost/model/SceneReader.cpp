#include "minihost/model/SceneReader.h"

#include "minihost/model/FieldReader.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <optional>

namespace minihost {

namespace {

// Which fields a layer's object has. Some defaults depend on the composition, which may follow in
// the file.
struct GivenFields {
    bool source = false, size = false;
    bool anchor_point = false, point_of_interest = false, position = false;
};
struct LayerDraft {
    std::unique_ptr<Layer> layer = std::make_unique<Layer>();
    GivenFields given;
};

// Fields of a struct, for the tables.
template <auto Read, auto Member>
void read_member(auto& it, const JsonValue& value, const FieldPath& path) {
    it.*Member = Read(value, path);
}
template <auto Read, auto Member>
void read_layer_member(LayerDraft& draft, const JsonValue& value, const FieldPath& path) {
    (*draft.layer).*Member = Read(value, path);
}
int read_pixels(const JsonValue& value, const FieldPath& path) {
    return read_integer(value, path, 1, max_size);
}
double read_seconds(const JsonValue& value, const FieldPath& path) {
    return read_number(value, path, -max_seconds, max_seconds);
}
double read_duration(const JsonValue& value, const FieldPath& path) {
    return read_number(value, path, 0, max_seconds);
}
double read_frame_rate(const JsonValue& value, const FieldPath& path) {
    return read_number(value, path, 0.01, 10000);
}

Size read_size(const JsonValue& value, const FieldPath& path) {
    static constexpr Field<Size> table[] = {
        {"width", read_member<read_pixels, &Size::width>, true},
        {"height", read_member<read_pixels, &Size::height>, true}};
    Size size;
    read_fields<Size>(size, value, path, table);
    return size;
}

template <bool GivenFields::*Field>
void read_layer_size(LayerDraft& draft, const JsonValue& value, const FieldPath& path) {
    draft.layer->size = read_size(value, path);
    draft.given.*Field = true;
}

void read_transform(LayerDraft& draft, const JsonValue& value, const FieldPath& path) {
    static constexpr Field<Transform> table[] = {
        {"anchor_point", read_member<read_vector, &Transform::anchor_point>},
        {"point_of_interest", read_member<read_vector, &Transform::anchor_point>},
        {"position", read_member<read_vector, &Transform::position>},
        {"scale", read_member<read_vector, &Transform::scale>},
        {"orientation", read_member<read_vector, &Transform::orientation>},
        {"rotation", read_member<read_vector, &Transform::rotation>}};
    const std::uint32_t seen = read_fields<Transform>(draft.layer->transform, value, path, table);
    draft.given.anchor_point = seen & 1;
    draft.given.point_of_interest = seen & 2;
    draft.given.position = seen & 4;
}

Vec3 read_rotation(const JsonValue& value, const FieldPath& path) {
    return {read_number(value, path), 0, 0};
}

Keyframe read_key(const JsonValue& value, const FieldPath& path, int dimensions) {
    static constexpr Field<Keyframe> of_three[] = {
        {"time", read_member<read_seconds, &Keyframe::time>, true},
        {"value", read_member<read_vector, &Keyframe::value>, true}};
    static constexpr Field<Keyframe> of_one[] = {
        of_three[0], {"value", read_member<read_rotation, &Keyframe::value>, true}};
    Keyframe key;
    read_fields<Keyframe>(key, value, path, dimensions == 3 ? of_three : of_one);
    return key;
}

// One function for each row of keyed_streams, as the table needs them.
template <std::size_t Row>
void read_keys(LayerDraft& draft, const JsonValue& value, const FieldPath& path) {
    require_array(value, path);
    Keyframes& keys = draft.layer->keys[Row];
    for (const JsonValue& element : value.items) {
        const FieldPath at = element_of(path, keys.size());
        const Keyframe key = read_key(element, at, dimensions(keyed_streams[Row].stream));
        if (!keys.empty() && key.time <= keys.back().time)
            reject({&at, "time"}, "must be later than that of the key before");
        keys.push_back(key);
    }
}

void read_keyframes(LayerDraft& draft, const JsonValue& value, const FieldPath& path) {
    static constexpr Field<LayerDraft> table[] = {
        {keyed_streams[0].name, read_keys<0>}, {keyed_streams[1].name, read_keys<1>},
        {keyed_streams[2].name, read_keys<2>}, {keyed_streams[3].name, read_keys<3>},
        {keyed_streams[4].name, read_keys<4>}, {keyed_streams[5].name, read_keys<5>}};
    read_fields<LayerDraft>(draft, value, path, table);
}

LayerKind read_kind(const JsonValue& value, const FieldPath& path) {
    const auto kind = layer_kind(read_text(value, path));
    if (!kind)
        reject(path, "unknown kind \"" + value.text +
                         "\" (footage, solid, text, shape, camera and light are known)");
    return *kind;
}

constexpr Field<LayerDraft> layer_fields[] = {
    {"name", read_layer_member<read_text, &Layer::name>, true},
    {"kind", read_layer_member<read_kind, &Layer::kind>, true},
    {"three_d", read_layer_member<read_boolean, &Layer::three_d>},
    {"color", read_layer_member<read_color, &Layer::color>},
    {"source", read_layer_size<&GivenFields::source>},
    {"size", read_layer_size<&GivenFields::size>},
    {"start", read_layer_member<read_seconds, &Layer::start>},
    {"transform", read_transform},
    {"keyframes", read_keyframes}};

// Checks the fields that only some kinds of layers may or must have.
void check_kind(const LayerDraft& draft, const FieldPath& path) {
    const LayerKind kind = draft.layer->kind;
    const std::string of_kind = " a " + std::string(name_of(kind)) + " layer";
    if (draft.layer->has_source() && !draft.given.source)
        reject({&path, "source"}, "missing," + of_kind + " must have one");
    if (!draft.layer->has_source() && draft.given.source)
        reject({&path, "source"}, "only footage and solids have one, not" + of_kind);
    if (draft.given.size && kind != LayerKind::Text && kind != LayerKind::Shape)
        reject({&path, "size"}, "only text and shapes have one, not" + of_kind);
    const FieldPath transform{&path, "transform"};
    if (draft.given.point_of_interest && kind != LayerKind::Camera)
        reject({&transform, "point_of_interest"}, "only cameras have one, not" + of_kind);
    if (draft.given.anchor_point && kind == LayerKind::Camera)
        reject({&transform, "anchor_point"}, "a camera has a point_of_interest instead");
}

void read_composition(Composition& composition, const JsonValue& value, const FieldPath& path) {
    static constexpr Field<Composition> table[] = {
        {"name", read_member<read_text, &Composition::name>},
        {"width", read_member<read_pixels, &Composition::width>},
        {"height", read_member<read_pixels, &Composition::height>},
        {"frame_rate", read_member<read_frame_rate, &Composition::frame_rate>},
        {"duration", read_member<read_duration, &Composition::duration>},
        {"time", read_member<read_seconds, &Composition::time>}};
    read_fields<Composition>(composition, value, path, table);
}

// Collects the parts of a file and builds the scene from them at the end.
class SceneBuilder : public SceneJsonHandler {
  public:
    explicit SceneBuilder(const ReadProgress& progress) : _progress(progress) {}

    void on_key(const std::string& key) override {
        const FieldPath path{nullptr, key};
        const auto name = std::find(std::begin(names), std::end(names), key);
        if (name == std::end(names)) reject(path, "unknown field");
        bool& seen = _seen[name - std::begin(names)];
        if (seen) reject(path, "given twice");
        seen = true;
    }

    void on_member(const std::string& key, const JsonValue& value) override {
        const FieldPath path{nullptr, key};
        if (key == "format") read_format(value, path);
        if (key == "composition") read_composition(_scene.composition, value, path);
        if (key == "active") read_active(value, path);
        if (key == "selection") read_selection(value, path);
        if (key == "undo") read_undo(value, path);
    }

    void on_layer(const JsonValue& value) override {
        const FieldPath layers{nullptr, "layers"};
        const FieldPath path = element_of(layers, _drafts.size());
        LayerDraft draft;
        read_fields<LayerDraft>(draft, value, path, layer_fields);
        check_kind(draft, path);
        _drafts.push_back(std::move(draft));
        if (_progress) _progress(_drafts.size());
    }

    void on_wrong_type(const std::string& key) override {
        reject({nullptr, key}, key.empty() ? "a scene must be an object" : "must be an array");
    }

    Scene scene() {
        if (!_seen[0]) reject({nullptr, "format"}, "missing");
        const Vec3 middle = _scene.composition.middle();
        for (auto& [layer, given] : _drafts) {
            if (!given.position) layer->transform.position = middle;
            if (layer->kind == LayerKind::Camera && !given.point_of_interest)
                layer->transform.anchor_point = middle;
            if (layer->has_source() && !given.anchor_point)
                layer->transform.anchor_point = {layer->size.width / 2.0, layer->size.height / 2.0,
                                                 0};
            _scene.insert(std::move(layer), _scene.layer_count());
        }
        select();
        return std::move(_scene);
    }

  private:
    static constexpr const char* names[] = {"format", "composition", "active",
                                            "layers", "selection",   "undo"};

    static void read_format(const JsonValue& value, const FieldPath& path) {
        if (read_text(value, path) != "minihost scene 1")
            reject(path, "must be \"minihost scene 1\", not \"" + value.text + "\"");
    }

    void read_active(const JsonValue& value, const FieldPath& path) {
        const auto item = active_item(read_text(value, path));
        if (!item)
            reject(path,
                   "must be \"composition\", \"footage\" or \"none\", not \"" + value.text + "\"");
        _scene.active = *item;
    }

    void read_selection(const JsonValue& value, const FieldPath& path) {
        require_array(value, path);
        for (const JsonValue& entry : value.items) {
            if (entry.is(JsonValue::Type::Number))
                _selection.emplace_back(entry.number);
            else if (entry.is(JsonValue::Type::String) && entry.text == "other")
                _selection.emplace_back(std::nullopt);
            else
                reject(element_of(path, _selection.size()),
                       "must be the index of a layer or \"other\"");
        }
    }

    void read_undo(const JsonValue& value, const FieldPath& path) {
        require_array(value, path);
        for (const JsonValue& name : value.items)
            _scene.undo_names.push_back(
                read_text(name, element_of(path, _scene.undo_names.size())));
    }

    void select() {
        const FieldPath path{nullptr, "selection"};
        const std::vector<const Layer*> layers = _scene.layers();
        const double count = static_cast<double>(layers.size());
        Selection selection;
        for (const std::optional<double>& index : _selection) {
            if (index && !(*index >= 0 && *index < count && *index == std::floor(*index)))
                reject(element_of(path, selection.size()),
                       "no such layer (there are " + std::to_string(layers.size()) + ")");
            selection.push_back(index ? layers[static_cast<std::size_t>(*index)]->id : 0);
        }
        _scene.select(std::move(selection));
    }

    const ReadProgress& _progress;
    Scene _scene;
    std::vector<LayerDraft> _drafts;
    std::vector<std::optional<double>> _selection; // indices; none for "other"
    bool _seen[std::size(names)] = {};
};

} // namespace

Scene parse_scene(std::string_view text, const std::string& file, const ReadProgress& progress) {
    try {
        SceneBuilder builder(progress);
        parse_scene_json(text, builder);
        return builder.scene();
    } catch (const JsonSyntaxError& error) {
        throw SceneError(
            file, "line " + std::to_string(error.line) + ", column " + std::to_string(error.column),
            error.cause);
    } catch (const FieldError& error) {
        throw SceneError(file, error.path, error.cause);
    }
}

std::string read_file(const std::string& path) {
    const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file) throw SceneError(path, "", std::string("cannot be read: ") + std::strerror(errno));
    std::string text;
    char buffer[1 << 16];
    while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file.get()))
        text.append(buffer, count);
    if (std::ferror(file.get()))
        throw SceneError(path, "", std::string("cannot be read: ") + std::strerror(errno));
    return text;
}

Scene read_scene(const std::string& path, const ReadProgress& progress) {
    return parse_scene(read_file(path), path, progress);
}

} // namespace minihost
