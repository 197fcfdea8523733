#include "minihost/Run.h"

#include "minihost/actions/ActionFile.h"
#include "minihost/actions/Progress.h"
#include "minihost/model/OutputFile.h"
#include "minihost/model/SceneReader.h"
#include "minihost/window/MainWindow.h"

#include <filesystem>
#include <iostream>
#include <iterator>
#include <optional>

namespace minihost {

namespace {

constexpr int bad_input_status = 2, failure_status = 1;

// The module beside this program, as it is built, or else where it is installed.
std::string default_plugin() {
    std::error_code unknown;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", unknown).parent_path();
    const auto beside = folder / "Tamborel.plugin";
    if (std::filesystem::exists(beside, unknown)) return beside.string();
    return (folder / MINIHOST_MODULE_DIR / "Tamborel.plugin").lexically_normal().string();
}

std::vector<ParsedAction> actions_of(const Request& request) {
    if (request.verb == Verb::Run) {
        if (request.actions != "-")
            return parse_actions(read_file(request.actions), request.actions);
        const std::string text{std::istreambuf_iterator<char>(std::cin), {}};
        return parse_actions(text, "standard input");
    }
    std::vector<ParsedAction> actions{parse_action({"open"}, "apply")};
    for (const std::string& text : request.sets)
        actions.push_back(parse_action({"set", text}, "apply"));
    actions.push_back(parse_action({"click", "apply"}, "apply"));
    actions.push_back(parse_action({"idle"}, "apply"));
    return actions;
}

MainWindowOptions window_options(const Request& request) {
    MainWindowOptions options;
    options.scene = request.scene;
    if (request.has_scale) options.scale = request.scale;
    options.width = request.window_width;
    options.height = request.window_height;
    options.palette = request.host.palette;
    options.frames = request.frames;
    options.screenshot = request.screenshot;
    return options;
}

// Loads the plug-in into a session, uses it, and writes the outputs.
class SessionRunner {
  public:
    SessionRunner(const Request& request, Scene scene, std::unique_ptr<DialogDriver> driver)
        : _request(request),
          _session(std::move(scene), request.host, std::move(driver), std::cout,
                   [this](const std::string& line) { report(line); }) {
        _session.picture_scale = request.scale;
        _session.host().on_call = [this](std::size_t calls) { _progress.show(calls, "calls"); };
    }

    int run(const std::vector<ParsedAction>& actions) {
        return run([&](Session& session) {
            for (const ParsedAction& parsed : actions) {
                _progress.start(parsed.action->name);
                run_action(session, parsed);
            }
        });
    }

    // Runs `body` with the plug-in loaded.
    int run(const std::function<void(Session&)>& body) {
        attempt([&] {
            if (_request.calls.empty()) return;
            _calls.emplace(_request.calls);
            _session.host().log.set_sink([this](const std::string& line) { _calls->write(line); });
        });
        if (_failed) return failure_status;
        attempt([&] {
            _session.load(_request.plugin.empty() ? default_plugin() : _request.plugin);
            body(_session);
            _session.settle();
        });
        _progress.stop();
        write_outputs();
        return _failed || _session.host().hook_errors() > 0 ? failure_status : 0;
    }

  private:
    void report(const std::string& line) {
        _progress.stop();
        std::cerr << "minihost: " << line << '\n';
    }

    // Reports an error and goes on.
    template <typename Body>
    void attempt(const Body& body) {
        try {
            body();
        } catch (const std::exception& error) {
            report(error.what());
            _failed = true;
        }
    }

    void write_outputs() {
        if (!_request.panel.empty()) attempt([&] { _session.save_panel(_request.panel); });
        attempt([&] { _session.unload(); });
        if (!_request.out.empty()) attempt([&] { _session.save_scene(_request.out); });
        if (!_request.preview.empty()) attempt([&] { _session.save_preview(_request.preview); });
        _session.host().log.set_sink({});
        if (_calls) attempt([&] { _calls->commit(); });
    }

    const Request& _request;
    Progress _progress;
    std::optional<OutputFile> _calls;
    bool _failed = false;
    Session _session;
};

int show(const Request& request, Scene scene) {
    std::optional<MainWindow> window; // outlives the plug-in
    try {
        window.emplace(window_options(request));
    } catch (const std::exception& error) {
        std::cerr << "minihost: " << error.what() << '\n';
        return failure_status;
    }
    return SessionRunner(request, std::move(scene), window->make_dialog_driver())
        .run([&](Session& session) { window->run(session); });
}

} // namespace

int run(const Request& request) {
    try {
        if (request.verb == Verb::Check) {
            const std::string plugin = request.plugin.empty() ? default_plugin() : request.plugin;
            return run_checks(plugin, request.scene, request.check) ? 0 : failure_status;
        }
        Progress progress;
        progress.start("reading " + request.scene);
        Scene scene =
            read_scene(request.scene, [&](std::size_t layers) { progress.show(layers, "layers"); });
        progress.stop();
        if (request.verb == Verb::Show) return show(request, std::move(scene));
        const std::vector<ParsedAction> actions = actions_of(request);
        return SessionRunner(request, std::move(scene), make_dialog_driver()).run(actions);
    } catch (const OutputError& error) {
        std::cerr << "minihost: " << error.what() << '\n';
        return failure_status;
    } catch (const std::exception& error) { // bad input, or no memory
        std::cerr << "minihost: " << error.what() << '\n';
        return bad_input_status;
    }
}

} // namespace minihost
