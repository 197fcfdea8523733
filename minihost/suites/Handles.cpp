#include "minihost/suites/Handles.h"

namespace minihost {

namespace {

// A handle has its kind in the high bits and its number below. The lowest bits stay 0, so that a
// handle plus one is invalid.
enum class Kind : std::uint64_t { Item = 1, Composition, Layer, Stream, Collection, Panel };
constexpr const char* kind_names[] = {"nothing",  "an item",      "a composition", "a layer",
                                      "a stream", "a collection", "a panel"};
constexpr int kind_shift = 44, number_shift = 4;

constexpr std::uint64_t composition_item = 1, footage_item = 2, first_source = 16;

template <typename Handle>
Handle encode(Kind kind, std::uint64_t number) {
    const std::uint64_t value =
        static_cast<std::uint64_t>(kind) << kind_shift | number << number_shift;
    return reinterpret_cast<Handle>(static_cast<std::uintptr_t>(value));
}

// The number of a handle, which must be of the wanted kind.
std::uint64_t decode(Kind wanted, const void* handle) {
    const auto name = std::string(kind_names[static_cast<int>(wanted)]);
    const auto value = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(handle));
    if (value == 0) throw Misuse("null instead of " + name, ViolationKind::WrongHandle);
    const std::uint64_t kind = value >> kind_shift;
    if (kind == 0 || kind > static_cast<std::uint64_t>(Kind::Panel) ||
        (value & ((1u << number_shift) - 1)) != 0)
        throw Misuse("what is no handle instead of " + name, ViolationKind::WrongHandle);
    if (kind != static_cast<std::uint64_t>(wanted))
        throw Misuse(std::string(kind_names[kind]) + " instead of " + name,
                     ViolationKind::WrongHandle);
    return Handles::number_of(handle);
}

[[noreturn]] void stale(Kind kind) {
    throw Misuse(std::string(kind_names[static_cast<int>(kind)]) + " that is no more",
                 ViolationKind::StaleHandle);
}

} // namespace

std::uint64_t Handles::number_of(const void* handle) {
    const auto value = static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(handle));
    return (value & ((std::uint64_t{1} << kind_shift) - 1)) >> number_shift;
}

AEGP_LayerH Handles::of_layer(LayerId layer) const {
    return encode<AEGP_LayerH>(Kind::Layer, _base + layer);
}

AEGP_ItemH Handles::of_item(ItemRef item) const {
    switch (item.kind) {
    case ItemRef::Kind::Composition:
        return encode<AEGP_ItemH>(Kind::Item, _base + composition_item);
    case ItemRef::Kind::Footage:
        return encode<AEGP_ItemH>(Kind::Item, _base + footage_item);
    case ItemRef::Kind::Source:
        break;
    }
    return encode<AEGP_ItemH>(Kind::Item, _base + first_source + item.layer);
}

AEGP_CompH Handles::of_composition() const {
    return encode<AEGP_CompH>(Kind::Composition, _base + 1);
}

AEGP_StreamRefH Handles::open_stream(StreamRef stream) {
    _streams.emplace_hint(_streams.end(), _next, stream);
    return encode<AEGP_StreamRefH>(Kind::Stream, _next++);
}

AEGP_CollectionH Handles::open_collection(Selection items) {
    _collections.emplace_hint(_collections.end(), _next, std::move(items));
    return encode<AEGP_CollectionH>(Kind::Collection, _next++);
}

AEGP_PanelH Handles::open_panel() {
    _panels.insert(_next);
    return encode<AEGP_PanelH>(Kind::Panel, _next++);
}

LayerId Handles::layer(AEGP_LayerH handle) const {
    const std::uint64_t number = decode(Kind::Layer, handle);
    if (number <= _base || !_scene.find(number - _base)) stale(Kind::Layer);
    return number - _base;
}

ItemRef Handles::item(AEGP_ItemH handle) const {
    std::uint64_t number = decode(Kind::Item, handle);
    if (number <= _base) stale(Kind::Item);
    number -= _base;
    if (number == composition_item) return {ItemRef::Kind::Composition};
    if (number == footage_item) return {ItemRef::Kind::Footage};
    const LayerId id = number < first_source ? 0 : number - first_source;
    const Layer* layer = _scene.find(id);
    if (!layer || !layer->has_source()) stale(Kind::Item);
    return {ItemRef::Kind::Source, id};
}

void Handles::require_composition(AEGP_CompH handle) const {
    if (decode(Kind::Composition, handle) != _base + 1) stale(Kind::Composition);
}

StreamRef Handles::stream(AEGP_StreamRefH handle) const {
    const auto found = _streams.find(decode(Kind::Stream, handle));
    if (found == _streams.end()) stale(Kind::Stream);
    if (!_scene.find(found->second.layer))
        throw Misuse("a stream of a layer that is no more", ViolationKind::StaleHandle);
    return found->second;
}

Selection& Handles::collection(AEGP_CollectionH handle) {
    const auto found = _collections.find(decode(Kind::Collection, handle));
    if (found == _collections.end()) stale(Kind::Collection);
    return found->second;
}

void Handles::require_panel(AEGP_PanelH handle) const {
    if (!_panels.contains(decode(Kind::Panel, handle))) stale(Kind::Panel);
}

void Handles::close(AEGP_StreamRefH handle) {
    if (_streams.erase(decode(Kind::Stream, handle)) == 0) stale(Kind::Stream);
}

void Handles::close(AEGP_CollectionH handle) {
    if (_collections.erase(decode(Kind::Collection, handle)) == 0) stale(Kind::Collection);
}

void Handles::close(AEGP_PanelH handle) {
    _panels.erase(number_of(handle));
}

void Handles::begin_scene(LayerId used) {
    _base += first_source + used;
    // The plug-in still has to dispose of them.
    for (auto& [number, stream] : _streams) stream.layer = 0;
    for (auto& [number, items] : _collections) items.clear();
}

void Handles::close_all() {
    _streams.clear();
    _collections.clear();
    _panels.clear();
}

} // namespace minihost
