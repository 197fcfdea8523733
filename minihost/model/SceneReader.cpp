#include "minihost/model/SceneReader.h"

#include "minihost/model/FieldReader.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace minihost {

namespace {

// What a file tells of a layer, before the composition's size, which may come later in the file,
// gives the rest.
struct LayerDraft {
    std::unique_ptr<Layer> layer = std::make_unique<Layer>();
    bool has_source = false, has_size = false;
    bool has_anchor = false, has_interest = false, has_position = false;
};

void read_size(Size& size, const JsonValue& value, const FieldPath& path) {
    static constexpr Field<Size> table[] = {
        {"width",
         [](Size& it, const JsonValue& value, const FieldPath& path) {
             it.width = read_integer(value, path, 1, max_size);
         },
         true},
        {"height",
         [](Size& it, const JsonValue& value, const FieldPath& path) {
             it.height = read_integer(value, path, 1, max_size);
         },
         true}};
    read_fields<Size>(size, value, path, table);
}

template <Vec3 Transform::*Member>
void read_part(Transform& transform, const JsonValue& value, const FieldPath& path) {
    transform.*Member = read_vector(value, path);
}

void read_transform(LayerDraft& draft, const JsonValue& value, const FieldPath& path) {
    static constexpr Field<Transform> table[] = {
        {"anchor_point", read_part<&Transform::anchor_point>},
        {"point_of_interest", read_part<&Transform::anchor_point>},
        {"position", read_part<&Transform::position>},
        {"scale", read_part<&Transform::scale>},
        {"orientation", read_part<&Transform::orientation>},
        {"rotation", read_part<&Transform::rotation>}};
    const std::uint32_t seen = read_fields<Transform>(draft.layer->transform, value, path, table);
    draft.has_anchor = seen & 1;
    draft.has_interest = seen & 2;
    draft.has_position = seen & 4;
}

struct KeyDraft {
    Keyframe key;
    int dimensions;
};

Keyframe read_key(const JsonValue& value, const FieldPath& path, int dimensions) {
    static constexpr Field<KeyDraft> table[] = {
        {"time",
         [](KeyDraft& it, const JsonValue& value, const FieldPath& path) {
             it.key.time = read_number(value, path, -max_seconds, max_seconds);
         },
         true},
        {"value",
         [](KeyDraft& it, const JsonValue& value, const FieldPath& path) {
             if (it.dimensions == 3)
                 it.key.value = read_vector(value, path);
             else
                 it.key.value[0] = read_number(value, path);
         },
         true}};
    KeyDraft draft{{}, dimensions};
    read_fields<KeyDraft>(draft, value, path, table);
    return draft.key;
}

// One function for each row of keyed_streams, for the table's sake.
template <std::size_t Row>
void read_keys(Layer& layer, const JsonValue& value, const FieldPath& path) {
    require_array(value, path);
    Keyframes& keys = layer.keys[Row];
    for (const JsonValue element : value) {
        const FieldPath place{&path, "", static_cast<long>(keys.size())};
        const Keyframe key = read_key(element, place, dimensions(keyed_streams[Row].stream));
        if (!keys.empty() && key.time <= keys.back().time)
            refuse({&place, "time", -1}, "must be later than that of the key before");
        keys.push_back(key);
    }
}

void read_keyframes(LayerDraft& draft, const JsonValue& value, const FieldPath& path) {
    static constexpr Field<Layer> table[] = {
        {keyed_streams[0].name, read_keys<0>}, {keyed_streams[1].name, read_keys<1>},
        {keyed_streams[2].name, read_keys<2>}, {keyed_streams[3].name, read_keys<3>},
        {keyed_streams[4].name, read_keys<4>}, {keyed_streams[5].name, read_keys<5>}};
    read_fields<Layer>(*draft.layer, value, path, table);
}

void read_kind(LayerDraft& draft, const JsonValue& value, const FieldPath& path) {
    const auto kind = layer_kind(read_text(value, path));
    if (!kind)
        refuse(path, "unknown kind \"" + value.text() +
                         "\" (footage, solid, text, shape, camera and light are known)");
    draft.layer->kind = *kind;
}

constexpr Field<LayerDraft> layer_fields[] = {
    {"name",
     [](LayerDraft& it, const JsonValue& value, const FieldPath& path) {
         it.layer->name = read_text(value, path);
     },
     true},
    {"kind", read_kind, true},
    {"three_d", [](LayerDraft& it, const JsonValue& value,
                   const FieldPath& path) { it.layer->three_d = read_boolean(value, path); }},
    {"color", [](LayerDraft& it, const JsonValue& value,
                 const FieldPath& path) { it.layer->color = read_color(value, path); }},
    {"source",
     [](LayerDraft& it, const JsonValue& value, const FieldPath& path) {
         read_size(it.layer->size, value, path);
         it.has_source = true;
     }},
    {"size",
     [](LayerDraft& it, const JsonValue& value, const FieldPath& path) {
         read_size(it.layer->size, value, path);
         it.has_size = true;
     }},
    {"start",
     [](LayerDraft& it, const JsonValue& value, const FieldPath& path) {
         it.layer->start = read_number(value, path, -max_seconds, max_seconds);
     }},
    {"transform", read_transform},
    {"keyframes", read_keyframes}};

// What only some kinds of layer may have, or must.
void check_kind(const LayerDraft& draft, const FieldPath& path) {
    const LayerKind kind = draft.layer->kind;
    const std::string of_kind = " a " + std::string(name_of(kind)) + " layer";
    if (draft.layer->has_source() && !draft.has_source)
        refuse({&path, "source", -1}, "missing," + of_kind + " must have one");
    if (!draft.layer->has_source() && draft.has_source)
        refuse({&path, "source", -1}, "only footage and solids have one, not" + of_kind);
    if (draft.has_size && kind != LayerKind::Text && kind != LayerKind::Shape)
        refuse({&path, "size", -1}, "only text and shapes have one, not" + of_kind);
    const FieldPath transform{&path, "transform", -1};
    if (draft.has_interest && kind != LayerKind::Camera)
        refuse({&transform, "point_of_interest", -1}, "only cameras have one, not" + of_kind);
    if (draft.has_anchor && kind == LayerKind::Camera)
        refuse({&transform, "anchor_point", -1}, "a camera has a point_of_interest instead");
}

void read_composition(Composition& composition, const JsonValue& value, const FieldPath& path) {
    using C = Composition;
    static constexpr Field<C> table[] = {
        {"name", [](C& it, const JsonValue& value,
                    const FieldPath& path) { it.name = read_text(value, path); }},
        {"width", [](C& it, const JsonValue& value,
                     const FieldPath& path) { it.width = read_integer(value, path, 1, max_size); }},
        {"height",
         [](C& it, const JsonValue& value, const FieldPath& path) {
             it.height = read_integer(value, path, 1, max_size);
         }},
        {"frame_rate",
         [](C& it, const JsonValue& value, const FieldPath& path) {
             it.frame_rate = read_number(value, path, 0.01, 10000);
         }},
        {"duration",
         [](C& it, const JsonValue& value, const FieldPath& path) {
             it.duration = read_number(value, path, 0, max_seconds);
         }},
        {"time", [](C& it, const JsonValue& value, const FieldPath& path) {
             it.time = read_number(value, path, -max_seconds, max_seconds);
         }}};
    read_fields<C>(composition, value, path, table);
}

struct SelectionEntry {
    bool is_layer;
    double index;
};

// Gathers the pieces of a file and makes the scene of them at its end.
class Reader : public SceneJsonSink {
  public:
    explicit Reader(const ReadProgress& progress) : _progress(progress) {}

    void member(const std::string& key) override {
        const FieldPath path{nullptr, key, -1};
        const auto name = std::find(std::begin(_names), std::end(_names), key);
        if (name == std::end(_names)) refuse(path, "unknown field");
        bool& seen = _seen[name - std::begin(_names)];
        if (seen) refuse(path, "given twice");
        seen = true;
    }

    void value(const std::string& key, const JsonValue& value) override {
        const FieldPath path{nullptr, key, -1};
        if (key == "format") read_format(value, path);
        if (key == "composition") read_composition(_scene.composition, value, path);
        if (key == "active") read_active(value, path);
        if (key == "selection") read_selection(value, path);
        if (key == "undo") read_undo(value, path);
    }

    void layer(std::size_t index, const JsonValue& value) override {
        const FieldPath layers{nullptr, "layers", -1};
        const FieldPath path{&layers, "", static_cast<long>(index)};
        LayerDraft draft;
        read_fields<LayerDraft>(draft, value, path, layer_fields);
        check_kind(draft, path);
        _drafts.push_back(std::move(draft));
        if (_progress) _progress(_drafts.size());
    }

    void misshapen(const std::string& key) override {
        refuse({nullptr, key, -1}, key.empty() ? "a scene must be an object" : "must be an array");
    }

    Scene scene() {
        if (!_seen[0]) refuse({nullptr, "format", -1}, "missing");
        const Vec3 middle = _scene.composition.middle();
        for (LayerDraft& draft : _drafts) {
            Layer& layer = *draft.layer;
            if (!draft.has_position) layer.transform.position = middle;
            if (layer.kind == LayerKind::Camera && !draft.has_interest)
                layer.transform.anchor_point = middle;
            if (layer.has_source() && !draft.has_anchor)
                layer.transform.anchor_point = {layer.size.width / 2.0, layer.size.height / 2.0, 0};
            _scene.insert(std::move(draft.layer), _scene.layer_count());
        }
        select();
        return std::move(_scene);
    }

  private:
    static constexpr const char* _names[] = {"format", "composition", "active",
                                             "layers", "selection",   "undo"};

    static void read_format(const JsonValue& value, const FieldPath& path) {
        if (read_text(value, path) != "minihost scene 1")
            refuse(path, "must be \"minihost scene 1\", not \"" + value.text() + "\"");
    }

    void read_active(const JsonValue& value, const FieldPath& path) {
        const auto item = active_item(read_text(value, path));
        if (!item)
            refuse(path, "must be \"composition\", \"footage\" or \"none\", not \"" + value.text() +
                             "\"");
        _scene.active = *item;
    }

    void read_selection(const JsonValue& value, const FieldPath& path) {
        require_array(value, path);
        for (const JsonValue entry : value) {
            const FieldPath place{&path, "", static_cast<long>(_selection.size())};
            if (entry.is(JsonValue::Type::Number))
                _selection.push_back({true, entry.number()});
            else if (entry.is(JsonValue::Type::String) && entry.text() == "other")
                _selection.push_back({false, 0});
            else
                refuse(place, "must be the index of a layer or \"other\"");
        }
    }

    void read_undo(const JsonValue& value, const FieldPath& path) {
        require_array(value, path);
        for (const JsonValue name : value) {
            const FieldPath place{&path, "", static_cast<long>(_scene.undo_names.size())};
            _scene.undo_names.push_back(read_text(name, place));
        }
    }

    void select() {
        const FieldPath path{nullptr, "selection", -1};
        const double count = static_cast<double>(_scene.layer_count());
        const std::vector<const Layer*> layers = _scene.layers();
        Selection selection;
        for (const SelectionEntry& entry : _selection) {
            const FieldPath place{&path, "", static_cast<long>(selection.size())};
            const bool in_range =
                entry.index >= 0 && entry.index < count &&
                entry.index == static_cast<double>(static_cast<std::size_t>(entry.index));
            if (entry.is_layer && !in_range)
                refuse(place, "no such layer (there are " + std::to_string(layers.size()) + ")");
            selection.push_back(entry.is_layer ? layers[static_cast<std::size_t>(entry.index)]->id
                                               : 0);
        }
        _scene.select(std::move(selection));
    }

    const ReadProgress& _progress;
    Scene _scene;
    std::vector<LayerDraft> _drafts;
    std::vector<SelectionEntry> _selection;
    bool _seen[std::size(_names)] = {};
};

} // namespace

Scene parse_scene(std::string_view text, const std::string& file, const ReadProgress& progress) {
    try {
        Reader reader(progress);
        parse_scene_json(text, reader);
        return reader.scene();
    } catch (const JsonSyntaxError& error) {
        throw SceneError(
            file, "line " + std::to_string(error.line) + ", column " + std::to_string(error.column),
            error.cause);
    } catch (const FieldError& error) {
        throw SceneError(file, error.place, error.cause);
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
