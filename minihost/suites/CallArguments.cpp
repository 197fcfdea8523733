#include "minihost/suites/CallArguments.h"

namespace minihost {

namespace {

// Nothing for an invalid handle.
template <typename Look>
auto look_up(const Look& look) -> std::optional<std::decay_t<decltype(look())>> {
    try {
        return look();
    } catch (const Misuse&) {
        return std::nullopt;
    }
}

} // namespace

CallArguments& CallArguments::time(const char* name, const A_Time* value) {
    std::optional<double> seconds;
    if (value && value->scale != 0) seconds = static_cast<double>(value->value) / value->scale;
    return member(name, seconds);
}

CallArguments& CallArguments::layer_id(std::optional<LayerId> id) {
    std::optional<std::size_t> index;
    if (id) index = _host.document.scene().index_of(*id);
    return member("layer", index);
}

CallArguments& CallArguments::layer(AEGP_LayerH handle) {
    return layer_id(look_up([&] { return _host.handles.layer(handle); }));
}

CallArguments& CallArguments::item(AEGP_ItemH handle) {
    const auto item = look_up([&] { return _host.handles.item(handle); });
    if (!item) return text("item", nullptr);
    if (item->kind == ItemRef::Kind::Composition) return text("item", "composition");
    if (item->kind == ItemRef::Kind::Footage) return text("item", "footage");
    return text("item", "source").layer_id(item->layer);
}

CallArguments& CallArguments::composition(AEGP_CompH handle) {
    const bool is_valid =
        look_up([&] { return _host.handles.require_composition(handle), true; }).has_value();
    return text("comp", is_valid ? _host.document.scene().composition.name.c_str() : nullptr);
}

CallArguments& CallArguments::stream(AEGP_StreamRefH handle) {
    const auto stream = look_up([&] { return _host.handles.stream(handle); });
    if (!stream) return layer_id(std::nullopt).text("stream", nullptr);
    return layer_id(stream->layer).member("stream", static_cast<int>(stream->stream));
}

CallArguments& CallArguments::collection(AEGP_CollectionH handle) {
    return member("collection", static_cast<std::size_t>(Handles::number_of(handle)));
}

CallArguments& CallArguments::panel(AEGP_PanelH handle) {
    return member("panel", static_cast<std::size_t>(Handles::number_of(handle)));
}

CallArguments& CallArguments::value(AEGP_StreamRefH handle, const AEGP_StreamVal* value) {
    const auto stream = look_up([&] { return _host.handles.stream(handle); });
    if (!stream || !value) return text("value", nullptr);
    if (dimensions(stream->stream) == 1) return member("value", value->one_d);
    _json.key("value").array(Vec3{value->three_d.x, value->three_d.y, value->three_d.z});
    return *this;
}

} // namespace minihost
