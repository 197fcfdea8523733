#include "minihost/actions/State.h"

#include "minihost/model/JsonWriter.h"

#include <cmath>

namespace minihost {

namespace {

void write_menu(JsonWriter& json, const Host& host) {
    json.key("menu").begin_object();
    if (host.menu().empty()) {
        json.key("text").null().member("enabled", false).member("checked", false);
    } else {
        const MenuItem& item = host.menu().front();
        json.member("text", item.text).member("enabled", item.enabled);
        json.member("checked", item.checked);
    }
    json.end_object();
}

void write_dialog(JsonWriter& json, const Dialog& dialog) {
    json.key("dialog").begin_object();
    json.member("exists", dialog.exists).member("visible", dialog.visible);
    if (dialog.exists)
        json.member("kind", dialog.is_panel ? "panel" : "window").member("title", dialog.title);
    else
        json.key("kind").null().key("title").null();
    json.end_object();
}

struct ValueWriter {
    JsonWriter& json;
    void operator()(std::monostate) const { json.null(); }
    void operator()(double number) const { json.value(number); }
    void operator()(bool flag) const { json.value(flag); }
    void operator()(const std::string& text) const { json.value(std::string_view(text)); }
};

void write_control(JsonWriter& json, const Control& control, const ControlNames& names) {
    json.begin_object();
    const std::string name = control.id ? names.name_of(*control.id) : "";
    if (control.id)
        json.member("id", *control.id);
    else
        json.key("id").null();
    if (!name.empty())
        json.member("name", name);
    else
        json.key("name").null();
    json.member("kind", control.kind).member("text", control.text);
    json.member("enabled", control.enabled).key("value");
    std::visit(ValueWriter{json}, control.value);
    if (control.entries) {
        json.key("entries").begin_array();
        for (const std::string& entry : *control.entries) json.value(std::string_view(entry));
        json.end_array();
    }
    json.key("rect").begin_array();
    for (const double edge : {control.top, control.left, control.bottom, control.right})
        json.value(edge);
    json.end_array().end_object();
}

void write_names(JsonWriter& json, const char* key, const std::vector<std::string>& names) {
    json.key(key).begin_array();
    for (const std::string& name : names) json.value(std::string_view(name));
    json.end_array();
}

} // namespace

std::string state_line(Session& session) {
    Host& host = session.host();
    std::vector<Control> controls;
    Dialog dialog;
    session.enter([&] {
        host.update_menu();
        dialog = session.dialog();
        if (dialog.exists) controls = session.dialog_driver().controls(dialog.panel);
    });
    std::string line;
    JsonWriter json(line);
    json.begin_object();
    write_menu(json, host);
    write_dialog(json, dialog);
    json.key("controls").begin_array();
    for (const Control& control : controls) write_control(json, control, session.control_names());
    json.end_array().key("selection").begin_array();
    const Scene& scene = host.document.scene();
    for (const LayerId id : scene.selection()) {
        if (id)
            json.value(scene.index_of(id));
        else
            json.value("other");
    }
    json.end_array();
    write_names(json, "undo", host.document.undo_names());
    write_names(json, "redo", host.document.redo_names());
    write_names(json, "alerts", host.alerts());
    json.end_object();
    return line + "\n";
}

} // namespace minihost
