#include "bench/Recording.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <stdexcept>
#include <tuple>
#include <utility>

namespace bench {

namespace {

using minihost::Handles;

Recording* running_recording = nullptr;

constexpr int handle_step = 16; // from one number of a handle to the next

template <typename Type>
concept OpenedHandle =
    std::is_same_v<Type, AEGP_StreamRefH> || std::is_same_v<Type, AEGP_CollectionH>;
template <typename Type>
concept Handle =
    OpenedHandle<Type> || std::is_same_v<Type, AEGP_LayerH> || std::is_same_v<Type, AEGP_ItemH> ||
    std::is_same_v<Type, AEGP_CompH> || std::is_same_v<Type, AEGP_PanelH>;

template <typename Type>
Type shifted(Type handle, std::int64_t numbers) {
    return reinterpret_cast<Type>(reinterpret_cast<std::uintptr_t>(handle) +
                                  static_cast<std::uintptr_t>(numbers * handle_step));
}

// How an argument is kept, and what is passed in its place. Numbers as they are ...
template <typename Type>
struct Kept {
    Type value;
    Kept(Recording&, Type given) : value(given) {}
    Type pass(Replay&) { return value; }
};
// ... handles as those of the other host ...
template <Handle Type>
struct Kept<Type> {
    Type value;
    Kept(Recording&, Type given) : value(given) {}
    Type pass(Replay& replay) { return replay.here(value); }
};
// ... structs, and what is written to, as a copy ...
template <typename Type>
requires(!Handle<Type*>) struct Kept<Type*> {
    std::remove_const_t<Type> value{};
    bool is_there;
    Kept(Recording&, Type* given) : is_there(given) {
        if (given) value = *given;
    }
    Type* pass(Replay&) { return is_there ? &value : nullptr; }
};
// ... texts of the plug-in's, buffers for texts, and suites.
template <>
struct Kept<const char*> {
    const char* value;
    Kept(Recording& recording, const char* given)
        : value(given ? recording.keep(given) : nullptr) {}
    const char* pass(Replay&) { return value; }
};
template <>
struct Kept<char*> {
    bool is_there;
    Kept(Recording&, char* given) : is_there(given) {}
    char* pass(Replay& replay) { return is_there ? replay.text : nullptr; }
};
template <>
struct Kept<const void**> {
    Kept(Recording&, const void**) {}
    const void** pass(Replay& replay) { return &replay.suite; }
};

template <typename... Arguments>
struct CallOf : NotedCall {
    A_Err (*function)(Arguments...);
    std::tuple<Kept<Arguments>...> arguments;

    CallOf(Recording& recording, A_Err (*called)(Arguments...), Arguments... given)
        : NotedCall{&CallOf::make_again, 0},
          function(called),
          arguments(Kept<Arguments>(recording, given)...) {}

    static std::byte* make_again(NotedCall& noted, Replay& replay) {
        auto& call = static_cast<CallOf&>(noted);
        const A_Err result = std::apply(
            [&](auto&... kept) { return call.function(kept.pass(replay)...); }, call.arguments);
        replay.differing += result != call.result;
        if constexpr (std::is_same_v<std::tuple<Arguments...>,
                                     std::tuple<AEGP_PluginID, AEGP_CompH, AEGP_CollectionH*>>)
            replay.hold(std::get<2>(call.arguments).value);
        return reinterpret_cast<std::byte*>(&call) + sizeof(CallOf);
    }
};

// The function that stands between, for each of a suite.
template <auto Member>
struct Between;
template <typename Suite, typename... Arguments, A_Err (*Suite::*Member)(Arguments...)>
struct Between<Member> {
    static inline const Suite* real = nullptr;

    static A_Err call(Arguments... arguments) {
        const auto function = real->*Member;
        Recording* const recording = Recording::running();
        if (!recording) return function(arguments...);
        using Noted = CallOf<Arguments...>;
        const std::size_t offset = recording->reserve(sizeof(Noted));
        new (recording->at(offset)) Noted(*recording, function, arguments...);
        const A_Err result = function(arguments...);
        recording->note_result(offset, result);
        if constexpr (std::is_same_v<Suite, AEGP_LayerSuite10>)
            if (result == 0) recording->note_new_layer(*std::get<1>(std::tuple(arguments...)));
        return result;
    }
};

template <typename Suite, auto... Members>
const void* between(const void* real) {
    static Suite table;
    const Suite* const suite = static_cast<const Suite*>(real);
    table = *suite;
    ((Between<Members>::real = suite, table.*Members = Between<Members>::call), ...);
    return &table;
}

template <typename Type>
const void* between_items(const void* real) {
    return between<Type, &Type::AEGP_GetActiveItem, &Type::AEGP_GetItemType,
                   &Type::AEGP_GetItemDimensions>(real);
}
template <typename Type>
const void* between_collections(const void* real) {
    return between<Type, &Type::AEGP_NewCollection, &Type::AEGP_DisposeCollection,
                   &Type::AEGP_GetCollectionNumItems, &Type::AEGP_GetCollectionItemByIndex,
                   &Type::AEGP_CollectionPushBack>(real);
}
template <typename Type>
const void* between_layers(const void* real) {
    return between<Type, &Type::AEGP_GetCompNumLayers, &Type::AEGP_GetCompLayerByIndex,
                   &Type::AEGP_GetLayerIndex, &Type::AEGP_GetLayerSourceItem,
                   &Type::AEGP_GetLayerName, &Type::AEGP_GetLayerCurrentTime,
                   &Type::AEGP_GetLayerOffset, &Type::AEGP_ReorderLayer,
                   &Type::AEGP_GetLayerObjectType, &Type::AEGP_IsLayer3D>(real);
}
template <typename Type>
const void* between_streams(const void* real) {
    return between<Type, &Type::AEGP_GetNewLayerStream, &Type::AEGP_DisposeStream,
                   &Type::AEGP_SetStreamValue, &Type::AEGP_GetLayerStreamValue>(real);
}

// The suites that an operation over layers calls; the others are passed on as they are.
constexpr struct {
    const char* name;
    A_long version;
    const void* (*make)(const void* real);
} suites_between[] = {
    {kAEGPItemSuite, kAEGPItemSuiteVersion, between_items<AEGP_ItemSuite3>},
    {kAEGPCollectionSuite, kAEGPCollectionSuiteVersion, between_collections<AEGP_CollectionSuite1>},
    {kAEGPLayerSuite, kAEGPLayerSuiteVersion, between_layers<AEGP_LayerSuite5>},
    {kAEGPStreamSuite, kAEGPStreamSuiteVersion, between_streams<AEGP_StreamSuite4>},
    {kAEGPLayerSuite, kAEGPLayerSuite10Version,
     between<AEGP_LayerSuite10, &AEGP_LayerSuite10::AEGP_DuplicateLayer>},
    {kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion,
     between<AEGP_KeyframeSuite1, &AEGP_KeyframeSuite1::AEGP_InsertKeyframe>},
    {kAEGPCompSuite, kAEGPCompSuiteVersion,
     between<AEGP_CompSuite4, &AEGP_CompSuite4::AEGP_GetCompFromItem,
             &AEGP_CompSuite4::AEGP_GetNewCollectionFromCompSelection,
             &AEGP_CompSuite4::AEGP_SetSelection>},
    {kAEGPUtilitySuite, kAEGPUtilitySuiteVersion,
     between<AEGP_UtilitySuite3, &AEGP_UtilitySuite3::AEGP_ReportInfo,
             &AEGP_UtilitySuite3::AEGP_StartUndoGroup, &AEGP_UtilitySuite3::AEGP_EndUndoGroup>},
};

A_Err acquire_between(const char* name, A_long version, const void** suite) {
    const A_Err result = Between<&SPBasicSuite::AcquireSuite>::call(name, version, suite);
    if (result != 0) return result;
    for (const auto& it : suites_between)
        if (it.version == version && std::strcmp(it.name, name) == 0) *suite = it.make(*suite);
    return result;
}

// The number that the next handle gets that is opened on this host.
std::uint64_t next_handle(minihost::Host& host) {
    const AEGP_CollectionH probe = host.handles.open_collection({});
    host.handles.close(probe);
    return Handles::number_of(probe) + 1;
}

} // namespace

SPBasicSuite* Recording::basic_suite(const SPBasicSuite* real) {
    static SPBasicSuite basic;
    basic = *static_cast<const SPBasicSuite*>(
        between<SPBasicSuite, &SPBasicSuite::AcquireSuite, &SPBasicSuite::ReleaseSuite>(real));
    basic.AcquireSuite = acquire_between;
    return &basic;
}

void Recording::start(minihost::Host& host) {
    _first_handle = next_handle(host);
    running_recording = this;
}

void Recording::stop() {
    running_recording = nullptr;
}

Recording* Recording::running() {
    return running_recording;
}

std::size_t Recording::reserve(std::size_t bytes) {
    const std::size_t offset = _memory.size();
    _memory.resize(offset + bytes);
    ++_size;
    return offset;
}

const char* Recording::keep(const char* text) {
    return _texts.insert(text).first->c_str();
}

void Recording::note_result(std::size_t offset, A_Err result) {
    reinterpret_cast<NotedCall*>(at(offset))->result = result;
}

void Recording::note_new_layer(AEGP_LayerH layer) {
    if (_new_layers++ == 0) _first_layer = Handles::number_of(layer);
}

template <typename Type>
Type Replay::here(Type noted) const {
    if (!noted) return noted;
    if constexpr (OpenedHandle<Type>) {
        if (Handles::number_of(noted) >= _recording._first_handle)
            return shifted(noted, _handle_shift);
        if constexpr (std::is_same_v<Type, AEGP_CollectionH>) return _held;
    }
    if constexpr (std::is_same_v<Type, AEGP_LayerH>)
        if (_recording._new_layers && Handles::number_of(noted) >= _recording._first_layer)
            return shifted(noted, _layer_shift);
    return noted;
}

void Replay::prepare() {
    if (!_held) _held = _host.handles.open_collection({});
    _handle_shift = static_cast<std::int64_t>(next_handle(_host) - _recording._first_handle);
    if (!_recording._new_layers) return;
    // Layers that were undone keep their numbers: each run makes new ones behind them.
    if (_next_layer == 0) {
        _next_layer = 1;
        for (const minihost::Layer* layer : _host.document.scene().layers())
            _next_layer = std::max<std::uint64_t>(_next_layer, layer->id + 1);
    }
    _layer_shift = static_cast<std::int64_t>(_next_layer - _recording._first_layer);
    _next_layer += _recording._new_layers;
}

void Replay::run() {
    std::byte* at = _recording._memory.data();
    std::byte* const end = at + _recording._memory.size();
    while (at != end) {
        auto& call = *reinterpret_cast<NotedCall*>(at);
        at = call.make(call, *this);
    }
}

void Replay::check() const {
    if (differing || _host.misuses())
        throw std::runtime_error(
            "the bare calls do not do what the plug-in's did: " + std::to_string(differing) +
            " results differ, " + std::to_string(_host.misuses()) + " misuses");
}

} // namespace bench
