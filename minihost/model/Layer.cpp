#include "minihost/model/Layer.h"

#include <algorithm>
#include <cmath>

namespace minihost {

namespace {

struct KindName {
    LayerKind kind;
    std::string_view name;
};
constexpr std::array<KindName, 6> kind_names{{{LayerKind::Footage, "footage"},
                                              {LayerKind::Solid, "solid"},
                                              {LayerKind::Text, "text"},
                                              {LayerKind::Shape, "shape"},
                                              {LayerKind::Camera, "camera"},
                                              {LayerKind::Light, "light"}}};

// The component of `rotation`; -1 for other streams.
int rotation_axis(Stream stream) {
    switch (stream) {
    case Stream::RotationX:
        return 0;
    case Stream::RotationY:
        return 1;
    case Stream::RotationZ:
        return 2;
    default:
        return -1;
    }
}

// The member for a stream, of a const or non-const transform.
template <typename Transform>
auto& numbers_of(Transform& transform, Stream stream) {
    switch (stream) {
    case Stream::AnchorPoint:
        return transform.anchor_point;
    case Stream::Position:
        return transform.position;
    case Stream::Scale:
        return transform.scale;
    case Stream::Orientation:
        return transform.orientation;
    default:
        return transform.rotation;
    }
}

template <typename Layer>
auto* keys_in(Layer& layer, Stream stream) {
    for (std::size_t i = 0; i < keyed_streams.size(); ++i)
        if (keyed_streams[i].stream == stream) return &layer.keys[i];
    return static_cast<decltype(&layer.keys[0])>(nullptr);
}

} // namespace

std::string_view name_of(LayerKind kind) {
    for (const KindName& entry : kind_names)
        if (entry.kind == kind) return entry.name;
    return "";
}

std::optional<LayerKind> layer_kind(std::string_view name) {
    for (const KindName& entry : kind_names)
        if (entry.name == name) return entry.kind;
    return std::nullopt;
}

std::optional<Stream> stream_of_number(int number) {
    for (const KeyedStream& it : keyed_streams)
        if (static_cast<int>(it.stream) == number) return it.stream;
    if (number == static_cast<int>(Stream::AnchorPoint)) return Stream::AnchorPoint;
    return std::nullopt;
}

int dimensions(Stream stream) {
    return rotation_axis(stream) < 0 ? 3 : 1;
}

bool Layer::has_stream(Stream stream) const {
    switch (stream) {
    case Stream::Scale:
        return kind != LayerKind::Camera && kind != LayerKind::Light;
    case Stream::Orientation:
    case Stream::RotationX:
    case Stream::RotationY:
        return is_3d();
    default:
        return true;
    }
}

Keyframes* Layer::keys_of(Stream stream) {
    return keys_in(*this, stream);
}
const Keyframes* Layer::keys_of(Stream stream) const {
    return keys_in(*this, stream);
}

Vec3 static_value(const Layer& layer, Stream stream) {
    const Vec3& numbers = numbers_of(layer.transform, stream);
    const int axis = rotation_axis(stream);
    return axis < 0 ? numbers : Vec3{numbers[static_cast<std::size_t>(axis)], 0, 0};
}

void set_static_value(Layer& layer, Stream stream, const Vec3& value) {
    Vec3& numbers = numbers_of(layer.transform, stream);
    const int axis = rotation_axis(stream);
    if (axis < 0)
        numbers = value;
    else
        numbers[static_cast<std::size_t>(axis)] = value[0];
}

Vec3 value_of(const Layer& layer, Stream stream, double seconds) {
    const Keyframes* keys = layer.keys_of(stream);
    if (!keys || keys->empty()) return static_value(layer, stream);
    const auto after =
        std::lower_bound(keys->begin(), keys->end(), seconds,
                         [](const Keyframe& key, double time) { return key.time < time; });
    if (after == keys->end()) return keys->back().value;
    if (after == keys->begin() || after->time == seconds) return after->value;
    const Keyframe& before = *(after - 1);
    const double part = (seconds - before.time) / (after->time - before.time);
    Vec3 value;
    for (std::size_t i = 0; i < 3; ++i)
        value[i] = std::lerp(before.value[i], after->value[i], part);
    return value;
}

std::int32_t to_ticks(double seconds) {
    const double bounded = std::clamp(seconds, -max_seconds, max_seconds);
    return static_cast<std::int32_t>(std::llround(bounded * ticks_per_second));
}

KeyPosition find_key(const Keyframes& keys, std::int32_t tick) {
    const auto found = std::lower_bound(
        keys.begin(), keys.end(), tick,
        [](const Keyframe& key, std::int32_t wanted) { return to_ticks(key.time) < wanted; });
    return {static_cast<std::size_t>(found - keys.begin()),
            found != keys.end() && to_ticks(found->time) == tick};
}

} // namespace minihost
