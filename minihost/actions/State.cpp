#include "minihost/actions/State.h"

#include "minihost/model/SceneWriter.h"

#include <array>

namespace minihost {

namespace {

void write_menu(JsonWriter& json, const Host& host) {
    const MenuItem item = host.menu().empty() ? MenuItem{} : host.menu().front();
    json.key("menu").begin_object();
    json.member("text", host.menu().empty() ? nullptr : item.text.c_str());
    json.member("enabled", item.enabled).member("checked", item.checked).end_object();
}

void write_dialog(JsonWriter& json, const Dialog& dialog) {
    json.key("dialog").begin_object();
    json.member("exists", dialog.exists).member("visible", dialog.visible);
    json.member("kind", !dialog.exists ? nullptr : dialog.is_panel ? "panel" : "window");
    json.member("title", dialog.exists ? dialog.title.c_str() : nullptr).end_object();
}

void write_control(JsonWriter& json, const Control& control, const ControlNames& names) {
    const std::string name = control.id ? names.name_of(*control.id) : "";
    json.begin_object().member("id", control.id);
    json.member("name", name.empty() ? std::nullopt : std::optional(name));
    json.member("kind", control.kind).member("text", control.text);
    json.member("enabled", control.enabled).key("value");
    if (std::holds_alternative<std::monostate>(control.value)) json.null();
    if (const auto* number = std::get_if<double>(&control.value)) json.value(*number);
    if (const auto* flag = std::get_if<bool>(&control.value)) json.value(*flag);
    if (const auto* text = std::get_if<std::string>(&control.value)) json.value(*text);
    if (control.entries) json.key("entries").array(*control.entries);
    json.key("rect").array(std::array{control.top, control.left, control.bottom, control.right});
    json.end_object();
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
    json.end_array();
    write_selection(json, host.document.scene());
    json.key("undo").array(host.document.undo_names());
    json.key("redo").array(host.document.redo_names());
    json.key("alerts").array(host.alerts()).end_object();
    return line + "\n";
}

} // namespace minihost
