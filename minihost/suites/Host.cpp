#include "minihost/suites/Host.h"

#include "minihost/model/Numbers.h"

#include <utility>

namespace minihost {

namespace {

thread_local Host* current_host = nullptr;

// Ends a command that chooses itself.
constexpr int max_command_depth = 16;

constexpr A_long major_version = 1, minor_version = 0;
constexpr AEGP_PluginID plugin_id = 1;
constexpr A_long default_sleep = 30; // 60ths of a second

constexpr std::size_t max_violations = 5000;

std::string held_count(std::size_t count, const std::string& noun) {
    return count == 1 ? "one " + noun : counted(count, noun);
}

} // namespace

// Makes a host the current one.
class Host::CurrentHostScope {
  public:
    explicit CurrentHostScope(Host& host) : _before(std::exchange(current_host, &host)) {}
    ~CurrentHostScope() { current_host = _before; }
    CurrentHostScope(const CurrentHostScope&) = delete;
    CurrentHostScope& operator=(const CurrentHostScope&) = delete;

  private:
    Host* _before;
};

Host::Host(Scene scene, HostOptions options, Reporter report, PanelMaker make_panel)
    : document(std::move(scene)),
      handles(document.scene()),
      failure_plan(options.failures),
      misbehaviour_plan(options.misbehaviours),
      _options(std::move(options)),
      _report(std::move(report)),
      _make_panel(std::move(make_panel)) {}

Host* Host::current() {
    return current_host;
}

template <typename Body>
A_Err Host::call_hook(const char* name, const Body& body) {
    const CurrentHostScope scope(*this);
    A_Err error = host_error;
    try {
        error = body();
        if (error == 0) return 0;
        report_violation(ViolationKind::HookError, std::string("the plug-in's ") + name +
                                                       " returned error " + std::to_string(error));
    } catch (...) {
        report_violation(ViolationKind::HookException,
                         std::string("the plug-in's ") + name + " threw an exception");
    }
    ++_hook_errors;
    return error;
}

A_Err Host::call_entry(AEGP_PluginEntryProc entry, const SPBasicSuite& basic_suite) {
    _in_entry = true;
    const A_Err error = call_hook("entry function", [&] {
        // The interface takes it without const, but nobody writes to it.
        return entry(const_cast<SPBasicSuite*>(&basic_suite), major_version, minor_version,
                     plugin_id, &_global_refcon);
    });
    _in_entry = false;
    return error;
}

template <typename List, typename Body>
A_Err Host::call_hooks(const char* name, const List& hooks, const Body& body) {
    A_Err first = 0;
    for (const auto& it : hooks) {
        const A_Err error = call_hook(name, [&] { return body(it); });
        if (first == 0) first = error;
    }
    return first;
}

A_Err Host::update_menu() {
    for (MenuItem& item : _menu) item.enabled = item.checked = false;
    return call_hooks("menu hook", _hooks.update_menu,
                      [&](const auto& it) { return it.hook(_global_refcon, it.refcon, 0); });
}

A_Err Host::choose(AEGP_Command command) {
    if (_command_depth >= max_command_depth) return host_error;
    ++_command_depth;
    A_Boolean handled = 0;
    const A_Err error = call_hooks("command hook", _hooks.command, [&](const CommandHook& it) {
        if (it.command != command && it.command != AEGP_Command_ALL) return A_Err{0};
        A_Boolean handles_it = handled;
        const A_Err result =
            it.hook(_global_refcon, it.refcon, command, AEGP_HP_BeforeAE, handled, &handles_it);
        handled = handled || handles_it;
        return result;
    });
    --_command_depth;
    if (error != 0 || handled) return error;
    if (command == AEGP_Command_DUPLICATE) {
        document.duplicate_selection();
        return 0;
    }
    return menu_item(command) ? 0 : bad_argument_error;
}

A_Err Host::idle() {
    return call_hooks("idle hook", _hooks.idle, [&](const auto& it) {
        A_long sleep = default_sleep;
        return it.hook(_global_refcon, it.refcon, &sleep);
    });
}

A_Err Host::create_panel(PanelKind& kind) {
    kind.view = _make_panel();
    kind.handle = handles.open_panel();
    AEGP_PanelFunctions1 functions{};
    AEGP_PanelRefcon refcon = nullptr;
    const A_Err error = call_hook("panel hook", [&] {
        return kind.hook(_global_refcon, kind.refcon, kind.view->container(), kind.handle,
                         &functions, &refcon);
    });
    if (error != 0) {
        handles.close(kind.handle);
        kind.view.reset();
        return error;
    }
    if (!functions.GetSnapSizes) return 0;
    // The panel takes the first of up to 5 sizes. A failure here leaves its size alone.
    A_LPoint sizes[5] = {};
    A_long count = 0;
    const A_Err no_sizes = call_hook("panel's size function",
                                     [&] { return functions.GetSnapSizes(refcon, sizes, &count); });
    if (no_sizes == 0 && count > 0 && sizes[0].x > 0 && sizes[0].y > 0)
        kind.view->resize(sizes[0].x, sizes[0].y);
    return 0;
}

A_Err Host::toggle_panel(const std::string& match_name) {
    const auto found = panels.kinds().find(match_name);
    if (found == panels.kinds().end()) return bad_argument_error;
    PanelKind& kind = found->second;
    if (!kind.view)
        if (const A_Err error = create_panel(kind)) return error;
    kind.view->show(!kind.view->is_visible());
    return 0;
}

bool Host::close_panels() {
    bool any = false;
    for (auto& [name, kind] : panels.kinds()) {
        if (!kind.view) continue;
        any = true;
        handles.close(kind.handle);
        enter([&kind = kind] { kind.view.reset(); });
    }
    return any;
}

void Host::enter(const std::function<void()>& body) {
    const CurrentHostScope scope(*this);
    body();
}

std::vector<Violation> Host::held_objects() const {
    std::vector<Violation> held;
    for (const auto& [suite, count] : _acquired)
        if (count > 0)
            held.push_back({ViolationKind::HeldSuite,
                            suite.first + " " + std::to_string(suite.second) + ", acquired " +
                                counted(static_cast<std::size_t>(count), "time") +
                                " more than released"});
    if (const std::size_t count = handles.open_streams().size())
        held.push_back(
            {ViolationKind::HeldStream, held_count(count, "stream") + " not disposed of"});
    if (const std::size_t count = handles.open_collections().size())
        held.push_back(
            {ViolationKind::HeldCollection, held_count(count, "collection") + " not disposed of"});
    if (document.open_groups() > 0)
        held.push_back({ViolationKind::OpenUndoGroup,
                        held_count(static_cast<std::size_t>(document.open_groups()), "undo group") +
                            " left open"});
    return held;
}

void Host::open(Scene scene) {
    handles.begin_scene(document.scene().next_id());
    document = Document(std::move(scene));
}

std::vector<std::string> Host::shut_down() {
    call_hooks("death hook", _hooks.death,
               [&](const auto& it) { return it.hook(_global_refcon, it.refcon); });
    close_panels();
    std::vector<std::string> held;
    for (const Violation& it : held_objects()) {
        report_violation(it.kind, "the plug-in still holds " + it.text);
        held.push_back(it.text);
    }
    while (document.end_group()) {
    }
    _hooks = {};
    _menu.clear();
    _acquired.clear();
    panels.kinds().clear();
    handles.close_all();
    return held;
}

void Host::report_misuse(const CallName& call, const Misuse& misuse) {
    ++_misuses;
    report_violation(misuse.kind(), std::string("misuse by the plug-in: ") + call.suite + "." +
                                        call.call + ": " + misuse.what());
}

void Host::record_violation(ViolationKind kind, std::string text) {
    if (_violations.size() < max_violations) _violations.push_back({kind, std::move(text)});
}

void Host::report_violation(ViolationKind kind, const std::string& line) {
    record_violation(kind, line);
    report(line);
}

void Host::alert(const std::string& text) {
    _alerts.push_back(text);
    report("alert: " + text);
}

MenuItem* Host::menu_item(AEGP_Command command) {
    for (MenuItem& item : _menu)
        if (item.command == command) return &item;
    return nullptr;
}

bool Host::count_released(const char* suite, A_long version) {
    const auto found = _acquired.find({suite, version});
    if (found == _acquired.end() || found->second == 0) return false;
    --found->second;
    return true;
}

} // namespace minihost
