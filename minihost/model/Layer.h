// A layer of a composition as plain values.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace minihost {

using Vec3 = std::array<double, 3>;

// Never reused, and rising in the order in which layers are created. 0 is no layer.
using LayerId = std::uint64_t;

enum class LayerKind { Footage, Solid, Text, Shape, Camera, Light };

// The name in scene files, and back; nothing for an unknown name.
std::string_view name_of(LayerKind kind);
std::optional<LayerKind> layer_kind(std::string_view name);

// The numbers are those that plug-ins use.
enum class Stream {
    AnchorPoint = 0, // a camera's point of interest
    Position = 1,
    Scale = 2,
    RotationZ = 3,
    RotationX = 8,
    RotationY = 9,
    Orientation = 10,
};

// Nothing for a number without a stream.
std::optional<Stream> stream_of_number(int number);
// How many numbers a value has: 1 for the rotations, 3 otherwise.
int dimensions(Stream stream);

struct Size {
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

struct Color {
    std::uint8_t red = 0xc0;
    std::uint8_t green = 0x40;
    std::uint8_t blue = 0x40;
    bool operator==(const Color&) const = default;
};

// Positions in pixels of the composition (y downwards), scale in percent, angles in degrees.
struct Transform {
    Vec3 anchor_point{}; // in the layer; a camera's point of interest, in the composition
    Vec3 position{};
    Vec3 scale{100, 100, 100};
    Vec3 orientation{};
    Vec3 rotation{}; // X, Y and Z Rotation
    bool operator==(const Transform&) const = default;
};

// A value at a time, in seconds of the composition. A rotation uses value[0] alone.
struct Keyframe {
    double time = 0;
    Vec3 value{};
    bool operator==(const Keyframe&) const = default;
};

// The keys of one stream, with rising times.
using Keyframes = std::vector<Keyframe>;

// The streams that can have keys, in the order of scene files.
struct KeyedStream {
    Stream stream;
    std::string_view name;
};
constexpr std::array<KeyedStream, 6> keyed_streams{{{Stream::Position, "position"},
                                                    {Stream::Scale, "scale"},
                                                    {Stream::Orientation, "orientation"},
                                                    {Stream::RotationX, "rotation_x"},
                                                    {Stream::RotationY, "rotation_y"},
                                                    {Stream::RotationZ, "rotation_z"}}};

struct Layer {
    LayerId id = 0;
    std::string name;
    LayerKind kind = LayerKind::Solid;
    bool three_d = false;
    Color color;
    // In pixels: of the source for footage and solids, otherwise only for the preview (0 x 0 if
    // unknown).
    Size size;
    double start = 0; // seconds
    Transform transform;
    std::array<Keyframes, keyed_streams.size()> keys; // by the order of keyed_streams

    bool has_source() const { return kind == LayerKind::Footage || kind == LayerKind::Solid; }
    // Cameras and lights always are.
    bool is_3d() const { return three_d || kind == LayerKind::Camera || kind == LayerKind::Light; }
    // Cameras and lights have no scale, 2D layers only Z Rotation.
    bool has_stream(Stream stream) const;

    // Null for a stream that cannot have keys.
    Keyframes* keys_of(Stream stream);
    const Keyframes* keys_of(Stream stream) const;
};

// The value in the transform, whether there are keys or not. That of a rotation is in [0].
Vec3 static_value(const Layer& layer, Stream stream);
void set_static_value(Layer& layer, Stream stream, const Vec3& value);

// The value at a time in seconds: linear between two keys, that of the nearest key outside them,
// the static value without keys. O(log keys).
Vec3 value_of(const Layer& layer, Stream stream, double seconds);

// Plug-ins get times in 600ths of a second. Rounds to the nearest one, within +-max_seconds.
constexpr std::int32_t ticks_per_second = 600;
constexpr double max_seconds = 3'000'000;
std::int32_t to_ticks(double seconds);

// The key at a tick, or where it would be inserted.
struct KeyPosition {
    std::size_t index;
    bool exists;
};
KeyPosition find_key(const Keyframes& keys, std::int32_t tick);

} // namespace minihost
