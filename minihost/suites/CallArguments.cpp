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

CallArguments& CallArguments::number(const char* name, double value) {
    _json.member(name, value);
    return *this;
}

CallArguments& CallArguments::text(const char* name, const char* value) {
    if (value)
        _json.member(name, value);
    else
        _json.key(name).null();
    return *this;
}

CallArguments& CallArguments::flag(const char* name, bool value) {
    _json.member(name, value);
    return *this;
}

CallArguments& CallArguments::time(const char* name, const A_Time* value) {
    if (value && value->scale != 0)
        _json.member(name, static_cast<double>(value->value) / value->scale);
    else
        _json.key(name).null();
    return *this;
}

CallArguments& CallArguments::layer_id(LayerId id) {
    _json.member("layer", _host.document.scene().index_of(id));
    return *this;
}

CallArguments& CallArguments::layer(AEGP_LayerH handle) {
    if (const auto id = look_up([&] { return _host.handles.layer(handle); })) return layer_id(*id);
    _json.key("layer").null();
    return *this;
}

CallArguments& CallArguments::item(AEGP_ItemH handle) {
    const auto item = look_up([&] { return _host.handles.item(handle); });
    if (!item)
        _json.key("item").null();
    else if (item->kind == ItemRef::Kind::Composition)
        _json.member("item", "composition");
    else if (item->kind == ItemRef::Kind::Footage)
        _json.member("item", "footage");
    else
        _json.member("item", "source"), layer_id(item->layer);
    return *this;
}

CallArguments& CallArguments::composition(AEGP_CompH handle) {
    if (look_up([&] { return _host.handles.require_composition(handle), true; }))
        _json.member("comp", _host.document.scene().composition.name);
    else
        _json.key("comp").null();
    return *this;
}

CallArguments& CallArguments::stream(AEGP_StreamRefH handle) {
    if (const auto stream = look_up([&] { return _host.handles.stream(handle); })) {
        layer_id(stream->layer);
        _json.member("stream", static_cast<int>(stream->stream));
    } else {
        _json.key("layer").null().key("stream").null();
    }
    return *this;
}

CallArguments& CallArguments::collection(AEGP_CollectionH handle) {
    _json.member("collection", static_cast<std::size_t>(Handles::number_of(handle)));
    return *this;
}

CallArguments& CallArguments::panel(AEGP_PanelH handle) {
    _json.member("panel", static_cast<std::size_t>(Handles::number_of(handle)));
    return *this;
}

CallArguments& CallArguments::value(AEGP_StreamRefH handle, const AEGP_StreamVal* value) {
    const auto stream = look_up([&] { return _host.handles.stream(handle); });
    _json.key("value");
    if (!stream || !value)
        _json.null();
    else if (dimensions(stream->stream) == 1)
        _json.value(value->one_d);
    else
        _json.begin_array()
            .value(value->three_d.x)
            .value(value->three_d.y)
            .value(value->three_d.z)
            .end_array();
    return *this;
}

} // namespace minihost
