#include "minihost/model/SceneWriter.h"

#include <cstdio>

namespace minihost {

namespace {

void write(JsonWriter& json, const char* name, const Size& size) {
    json.key(name).begin_object();
    json.member("width", size.width).member("height", size.height).end_object();
}

void write(JsonWriter& json, const char* name, const Color& color) {
    char text[10];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", color.red, color.green, color.blue);
    json.member(name, text);
}

void write_keys(JsonWriter& json, const Keyframes& keys, int numbers) {
    json.begin_array();
    for (const Keyframe& key : keys) {
        json.begin_object().member("time", key.time);
        if (numbers == 1)
            json.member("value", key.value[0]);
        else
            json.key("value").array(key.value);
        json.end_object();
    }
    json.end_array();
}

void write(JsonWriter& json, const Layer& layer) {
    json.begin_object().member("name", layer.name).member("kind", name_of(layer.kind));
    json.member("three_d", layer.three_d);
    write(json, "color", layer.color);
    if (layer.has_source())
        write(json, "source", layer.size);
    else if (layer.size != Size{})
        write(json, "size", layer.size);
    const bool is_camera = layer.kind == LayerKind::Camera;
    json.member("start", layer.start).line(5).key("transform").begin_object();
    json.key(is_camera ? "point_of_interest" : "anchor_point").array(layer.transform.anchor_point);
    json.key("position").array(layer.transform.position);
    json.key("scale").array(layer.transform.scale);
    json.key("orientation").array(layer.transform.orientation);
    json.key("rotation").array(layer.transform.rotation);
    json.end_object().line(5).key("keyframes").begin_object();
    for (std::size_t row = 0; row < keyed_streams.size(); ++row) {
        if (layer.keys[row].empty()) continue;
        json.key(keyed_streams[row].name);
        write_keys(json, layer.keys[row], dimensions(keyed_streams[row].stream));
    }
    json.end_object().end_object();
}

void write(JsonWriter& json, const Composition& composition) {
    json.key("composition").begin_object().member("name", composition.name);
    json.member("width", composition.width).member("height", composition.height);
    json.member("frame_rate", composition.frame_rate).member("duration", composition.duration);
    json.member("time", composition.time).end_object();
}

} // namespace

void write_selection(JsonWriter& json, const Scene& scene) {
    json.key("selection").begin_array();
    for (const LayerId id : scene.selection()) {
        if (id == 0)
            json.value("other");
        else
            json.value(scene.index_of(id));
    }
    json.end_array();
}

std::string scene_text(const Document& document) {
    const Scene& scene = document.scene();
    std::string text;
    JsonWriter json(text);
    json.begin_object().line(2).member("format", "minihost scene 1").line(2);
    write(json, scene.composition);
    json.line(2).member("active", name_of(scene.active)).line(2).key("layers").begin_array();
    for (const Layer* layer : scene.layers()) write(json.line(4), *layer);
    json.end_array().line(2);
    write_selection(json, scene);
    json.line(2).key("undo").array(document.undo_names());
    text += "\n}\n";
    return text;
}

} // namespace minihost
