// The layer suites.

#include "minihost/suites/ServeCall.h"
#include "minihost/suites/SuiteFunctions.h"
#include "minihost/suites/TimeConversion.h"

#include <cstring>

namespace minihost {

namespace {

CallName layer_call(const char* call) {
    return {kAEGPLayerSuite, kAEGPLayerSuiteVersion, call};
}

// A call that looks at one layer.
template <typename Body>
A_Err look_at_layer(const char* call, AEGP_LayerH handle, const Body& body) {
    return serve_call(
        layer_call(call), [&](CallArguments& it) { it.layer(handle); },
        [&](Host& host) { body(host, *host.document.scene().find(host.handles.layer(handle))); });
}

// Truncates a name that is too long before an incomplete character.
void copy_name(A_char* buffer, const std::string& name) {
    std::size_t length = name.size();
    if (length >= AEGP_MAX_LAYER_NAME_SIZE) {
        length = AEGP_MAX_LAYER_NAME_SIZE - 1;
        while (length > 0 && (static_cast<unsigned char>(name[length]) & 0xC0) == 0x80) --length;
    }
    std::memcpy(buffer, name.data(), length);
    buffer[length] = 0;
}

A_Err GetCompNumLayers(AEGP_CompH comp, A_long* count) {
    return serve_call(
        layer_call("GetCompNumLayers"), [&](CallArguments& it) { it.composition(comp); },
        [&](Host& host) {
            host.handles.require_composition(comp);
            require(count) = static_cast<A_long>(host.document.scene().layer_count());
        });
}

A_Err GetCompLayerByIndex(AEGP_CompH comp, A_long index, AEGP_LayerH* layer) {
    return serve_call(
        layer_call("GetCompLayerByIndex"),
        [&](CallArguments& it) { it.composition(comp).number("index", index); },
        [&](Host& host) -> A_Err {
            host.handles.require_composition(comp);
            AEGP_LayerH& result = require(layer);
            const Scene& scene = host.document.scene();
            if (index < 0 || static_cast<std::size_t>(index) >= scene.layer_count())
                return bad_argument_error;
            result = host.handles.of_layer(scene.layer_at(static_cast<std::size_t>(index)).id);
            return 0;
        });
}

A_Err GetLayerIndex(AEGP_LayerH handle, A_long* index) {
    return look_at_layer("GetLayerIndex", handle, [&](Host& host, const Layer& layer) {
        require(index) = static_cast<A_long>(host.document.scene().index_of(layer.id));
    });
}

A_Err GetLayerSourceItem(AEGP_LayerH handle, AEGP_ItemH* item) {
    return look_at_layer("GetLayerSourceItem", handle, [&](Host& host, const Layer& layer) {
        AEGP_ItemH& result = require(item);
        result =
            layer.has_source() ? host.handles.of_item({ItemRef::Kind::Source, layer.id}) : nullptr;
    });
}

A_Err GetLayerName(AEGP_LayerH handle, A_char* layer_name, A_char* source_name) {
    return look_at_layer("GetLayerName", handle, [&](Host&, const Layer& layer) {
        if (layer_name) copy_name(layer_name, layer.name);
        if (source_name) copy_name(source_name, layer.has_source() ? layer.name : "");
    });
}

A_Err GetLayerCurrentTime(AEGP_LayerH handle, AEGP_LTimeMode mode, A_Time* time) {
    return serve_call(
        layer_call("GetLayerCurrentTime"),
        [&](CallArguments& it) { it.layer(handle).number("time_mode", mode); },
        [&](Host& host) -> A_Err {
            const Scene& scene = host.document.scene();
            const Layer& layer = *scene.find(host.handles.layer(handle));
            A_Time& result = require(time);
            if (!is_time_mode(mode)) return bad_argument_error;
            result = host_time(scene.composition.time -
                               (mode == AEGP_LTimeMode_CompTime ? 0 : layer.start));
            return 0;
        });
}

A_Err GetLayerOffset(AEGP_LayerH handle, A_Time* offset) {
    return look_at_layer("GetLayerOffset", handle, [&](Host&, const Layer& layer) {
        require(offset) = host_time(layer.start);
    });
}

A_Err ReorderLayer(AEGP_LayerH handle, A_long index) {
    return serve_call(
        layer_call("ReorderLayer"),
        [&](CallArguments& it) { it.layer(handle).number("index", index); },
        [&](Host& host) -> A_Err {
            const LayerId layer = host.handles.layer(handle);
            if (index < 0 || static_cast<std::size_t>(index) >= host.document.scene().layer_count())
                return bad_argument_error;
            host.document.move_layer(layer, static_cast<std::size_t>(index));
            return 0;
        });
}

A_Err GetLayerObjectType(AEGP_LayerH handle, AEGP_ObjectType* type) {
    return look_at_layer("GetLayerObjectType", handle, [&](Host&, const Layer& layer) {
        AEGP_ObjectType& result = require(type);
        switch (layer.kind) {
        case LayerKind::Light:
            result = AEGP_ObjectType_LIGHT;
            break;
        case LayerKind::Camera:
            result = AEGP_ObjectType_CAMERA;
            break;
        case LayerKind::Text:
            result = AEGP_ObjectType_TEXT;
            break;
        case LayerKind::Shape:
            result = AEGP_ObjectType_SHAPE;
            break;
        default:
            result = AEGP_ObjectType_AV;
            break;
        }
    });
}

A_Err IsLayer3D(AEGP_LayerH handle, A_Boolean* is_3d) {
    return look_at_layer("IsLayer3D", handle,
                         [&](Host&, const Layer& layer) { require(is_3d) = layer.is_3d(); });
}

A_Err DuplicateLayer(AEGP_LayerH original, AEGP_LayerH* duplicate) {
    return serve_call(
        {kAEGPLayerSuite, kAEGPLayerSuite10Version, "DuplicateLayer"},
        [&](CallArguments& it) { it.layer(original); },
        [&](Host& host) {
            const LayerId layer = host.handles.layer(original);
            AEGP_LayerH& result = require(duplicate);
            result = host.handles.of_layer(host.document.duplicate_layer(layer));
        });
}

constexpr AEGP_LayerSuite5 layers_5{
    GetCompNumLayers,    GetCompLayerByIndex, GetLayerIndex, GetLayerSourceItem, GetLayerName,
    GetLayerCurrentTime, GetLayerOffset,      ReorderLayer,  GetLayerObjectType, IsLayer3D};
constexpr AEGP_LayerSuite8 layers_8{nullptr};
constexpr AEGP_LayerSuite10 layers_10{DuplicateLayer};

} // namespace

const void* const layer_suite_5 = &layers_5;
const void* const layer_suite_8 = &layers_8;
const void* const layer_suite_10 = &layers_10;

} // namespace minihost
