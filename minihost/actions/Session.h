// A host with a loaded plug-in and its dialog: what actions work on.

#pragma once

#include "minihost/actions/ControlNames.h"
#include "minihost/dialog/DialogDriver.h"
#include "minihost/suites/Host.h"
#include "minihost/suites/Module.h"

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace minihost {

// An action that is not possible.
class ActionError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// The plug-in's dialog as a user sees it.
struct Dialog {
    bool exists = false;
    bool visible = false;
    bool is_panel = false;            // else a window
    const PanelView* panel = nullptr; // null for a window
    std::string title;
};

class Session {
  public:
    // `out` receives what actions print, `report` messages.
    Session(Scene scene, HostOptions options, std::unique_ptr<DialogDriver> driver,
            std::ostream& out, Host::Reporter report);
    ~Session();

    // Loads the plug-in and the names of its controls. Throws LoadError or SceneError.
    void load(const std::string& module_path);
    // Returns what the plug-in still held, a line each.
    std::vector<std::string> unload();

    Host& host() { return _host; }
    DialogDriver& dialog_driver() { return *_driver; }
    const ControlNames& control_names() const { return _names; }
    std::ostream& out() { return _out; }
    double picture_scale = 2; // pixels per point

    Dialog dialog() const;
    // The plug-in's first menu command. Throws ActionError if it has none.
    const MenuItem& command() const;
    // Handles the posted events.
    void settle();
    // Runs something that may call into the plug-in, and records the alerts that it shows.
    void enter(const std::function<void()>& body);

    // Each throws ActionError. A scene that cannot be read changes nothing.
    void open_scene(const std::string& path);
    void save_scene(const std::string& path);
    void save_preview(const std::string& path);
    void save_panel(const std::string& path);

  private:
    std::unique_ptr<DialogDriver> _driver;
    std::ostream& _out;
    Host _host;
    ControlNames _names;
    std::optional<Module> _module;
};

} // namespace minihost
