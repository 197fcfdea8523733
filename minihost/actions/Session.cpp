#include "minihost/actions/Session.h"

#include "minihost/dialog/Picture.h"
#include "minihost/model/OutputFile.h"
#include "minihost/model/SceneReader.h"
#include "minihost/model/SceneWriter.h"
#include "minihost/preview/Preview.h"

namespace minihost {

namespace {

template <typename Body>
void throwing_action_error(const Body& body) {
    try {
        body();
    } catch (const std::exception& error) {
        throw ActionError(error.what());
    }
}

} // namespace

Session::Session(Scene scene, HostOptions options, std::unique_ptr<DialogDriver> driver,
                 std::ostream& out, Host::Reporter report)
    : _driver(std::move(driver)),
      _out(out),
      _host(std::move(scene), std::move(options), std::move(report),
            [this] { return _driver->make_panel(); }) {}

Session::~Session() {
    unload();
}

void Session::load(const std::string& module_path) {
    _names = ControlNames::beside(module_path);
    enter([&] { _module.emplace(_host, module_path); });
}

std::vector<std::string> Session::unload() {
    std::vector<std::string> held;
    if (_module) settle();
    if (_module) enter([&] { held = _module->unload(); });
    _module.reset();
    return held;
}

void Session::settle() {
    enter([this] { _driver->settle(); });
}

void Session::enter(const std::function<void()>& body) {
    _driver->with_pool([&] { _host.enter(body); });
    for (const std::string& text : _driver->new_alerts()) _host.alert(text);
}

Dialog Session::dialog() const {
    if (const PanelView* panel = _host.panels.view())
        return {true, panel->is_visible(), true, panel, panel->title()};
    if (_driver->has_floating_dialog())
        return {true, _driver->floating_dialog_is_visible(), false, nullptr,
                _driver->floating_dialog_title()};
    return {};
}

const MenuItem& Session::command() const {
    if (_host.menu().empty()) throw ActionError("the plug-in has no menu command");
    return _host.menu().front();
}

void Session::open_scene(const std::string& path) {
    throwing_action_error([&] { _host.open(read_scene(path)); });
}

void Session::save_scene(const std::string& path) {
    throwing_action_error([&] { write_file(path, scene_text(_host.document)); });
}

void Session::save_preview(const std::string& path) {
    throwing_action_error([&] { write_preview(_host.document.scene(), path, picture_scale); });
}

void Session::save_panel(const std::string& path) {
    if (extension_of(path) != ".png")
        throw ActionError(path + ": the panel's picture is written as .png");
    const Dialog shown = dialog();
    if (!shown.exists) throw ActionError(path + ": there is no dialog to take a picture of");
    Picture picture;
    enter([&] { picture = _driver->picture(shown.panel, picture_scale); });
    if (picture.rgba.empty()) throw ActionError(path + ": the dialog has no picture");
    throwing_action_error([&] { write_file(path, encode_png(picture)); });
}

} // namespace minihost
