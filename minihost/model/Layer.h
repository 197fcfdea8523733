// One layer of a composition as plain values: what it is, its transform, its keyframes. The numbers
// of the streams are those by which a plug-in asks for them.

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

// A number that stands for one layer for good: never used twice, rising in the order in which
// layers came to be. 0 stands for no layer.
using LayerId = std::uint64_t;

enum class LayerKind { Footage, Solid, Text, Shape, Camera, Light };

// The name that a scene file uses; nothing for a word that is no kind.
std::string_view name_of(LayerKind kind);
std::optional<LayerKind> layer_kind(std::string_view name);

enum class Stream {
    AnchorPoint = 0, // a camera's point of interest
    Position = 1,
    Scale = 2,
    RotationZ = 3,
    RotationX = 8,
    RotationY = 9,
    Orientation = 10,
};

// The stream of a number; nothing when there is none.
std::optional<Stream> stream_of_number(int number);
// How many numbers a value of the stream has: 1 for the rotations, 3 otherwise.
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

// The keys of one stream, sorted by time, no two at the same.
using Keyframes = std::vector<Keyframe>;

// The streams that can have keys, in the order in which a scene file names them.
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
    // In pixels: of the source for footage and solids, for the picture alone otherwise (0 x 0 when
    // the scene does not tell).
    Size size;
    double start = 0; // seconds
    Transform transform;
    std::array<Keyframes, keyed_streams.size()> keys; // by the order of keyed_streams

    bool has_source() const { return kind == LayerKind::Footage || kind == LayerKind::Solid; }
    // Cameras and lights stand in space whatever `three_d` says.
    bool is_3d() const { return three_d || kind == LayerKind::Camera || kind == LayerKind::Light; }
    // Cameras and lights have no scale; a layer in the plane has no angles out of it.
    bool has_stream(Stream stream) const;

    // Null for a stream that has no keys ever (the anchor point).
    Keyframes* keys_of(Stream stream);
    const Keyframes* keys_of(Stream stream) const;
};

// The value that stands in the transform, keys or not; a rotation's is in [0].
Vec3 resting_value(const Layer& layer, Stream stream);
void set_resting_value(Layer& layer, Stream stream, const Vec3& value);

// The value at a time in seconds: between two keys linear, outside them that of the nearest,
// without keys the resting value. O(log keys).
Vec3 value_of(const Layer& layer, Stream stream, double seconds);

// Plug-ins get times in 600ths of a second. The nearest one; `seconds` within +-max_seconds.
constexpr std::int32_t ticks_per_second = 600;
constexpr double max_seconds = 3'000'000;
std::int32_t to_ticks(double seconds);

// The key that lies at a tick, or where it would have to be put.
struct KeyPlace {
    std::size_t index;
    bool exists;
};
KeyPlace find_key(const Keyframes& keys, std::int32_t tick);

} // namespace minihost
