// The host: a scene and what a plug-in needs to edit it. While it calls into the plug-in it is the
// current host, by which the suites' functions find it, as they get no context.

#pragma once

#include "minihost/model/Document.h"
#include "minihost/suites/CallLog.h"
#include "minihost/suites/Colors.h"
#include "minihost/suites/FailurePlan.h"
#include "minihost/suites/Handles.h"
#include "minihost/suites/Hooks.h"
#include "minihost/suites/MisbehaviourPlan.h"
#include "minihost/suites/Panels.h"
#include "minihost/suites/Violation.h"
#include "sdk/Host.h"

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace minihost {

constexpr A_Err host_error = 1;         // the host failed
constexpr A_Err misuse_error = 3;       // an invalid handle, a null pointer
constexpr A_Err bad_argument_error = 5; // an index out of range, a stream that does not exist

struct HostOptions {
    std::set<std::string> without; // words of --without
    std::vector<PlannedFailure> failures;
    std::vector<PlannedMisbehaviour> misbehaviours = {};
    Palette palette = Palette::Dark;
};

class Host {
  public:
    // Receives messages for the user, a line each without its newline.
    using Reporter = std::function<void(const std::string&)>;

    Host(Scene scene, HostOptions options, Reporter report, PanelMaker make_panel);
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    Document document;
    Handles handles;
    CallLog log;
    FailurePlan failure_plan;
    MisbehaviourPlan misbehaviour_plan;
    Panels panels;

    // Receives the number of calls so far, at every call.
    std::function<void(std::size_t)> on_call;

    const HostOptions& options() const { return _options; }
    const std::vector<MenuItem>& menu() const { return _menu; }
    // The texts of all alerts so far.
    const std::vector<std::string>& alerts() const { return _alerts; }
    // How many hooks have returned an error or thrown.
    int hook_errors() const { return _hook_errors; }
    // How many calls of the plug-in have returned misuse_error.
    int misuses() const { return _misuses; }
    // In the order in which they were found, the first 5000.
    const std::vector<Violation>& violations() const { return _violations; }
    void record_violation(ViolationKind kind, std::string text);

    // Call the plug-in's hooks. Each reports a hook that fails, and returns the first error.
    A_Err call_entry(AEGP_PluginEntryProc entry, const SPBasicSuite& basic_suite);
    A_Err update_menu();
    // As if the user chose the command: what no hook handles is left to the host.
    A_Err choose(AEGP_Command command);
    A_Err idle();
    // Shows or hides a panel by its match name, after creating it if there is none.
    A_Err toggle_panel(const std::string& match_name);
    // Disposes of all panels; no hook is called. False when there is none.
    bool close_panels();
    // Replaces the scene, without an undo step. The plug-in's handles become stale.
    void open(Scene scene);
    // Calls the death hooks and forgets all registrations, so that the plug-in is not called again.
    // Reports what the plug-in still holds, and returns it, a line each.
    std::vector<std::string> shut_down();
    // Runs something else that may call into the plug-in, such as an event or a drawing.
    void enter(const std::function<void()>& body);

    // For the suites' functions. Null outside the calls above.
    static Host* current();
    void report(const std::string& line) { _report(line); }
    void count_call() {
        ++_calls;
        if (on_call) on_call(_calls);
        if (misbehaviour_plan.is_on()) misbehaviour_plan.before_call(document);
    }
    void report_misuse(const CallName& call, const Misuse& misuse);
    void alert(const std::string& text);
    bool is_in_entry() const { return _in_entry; }
    Hooks& hooks() { return _hooks; }
    AEGP_Command new_command() { return _next_command++; }
    void insert_menu_item(MenuItem item) { _menu.push_back(std::move(item)); }
    // Null when there is none.
    MenuItem* menu_item(AEGP_Command command);
    void count_acquired(const char* suite, A_long version) { ++_acquired[{suite, version}]; }
    // False when the suite is not acquired.
    bool count_released(const char* suite, A_long version);

  private:
    class CurrentHostScope;
    void report_violation(ViolationKind kind, const std::string& line);
    template <typename Body>
    A_Err call_hook(const char* name, const Body& body);
    template <typename List, typename Body>
    A_Err call_hooks(const char* name, const List& hooks, const Body& body);
    A_Err create_panel(PanelKind& kind);
    std::vector<Violation> held_objects() const;

    HostOptions _options;
    Reporter _report;
    PanelMaker _make_panel;
    Hooks _hooks;
    std::vector<MenuItem> _menu;
    std::vector<std::string> _alerts;
    std::map<std::pair<std::string, int>, int> _acquired; // by name and version
    AEGP_GlobalRefcon _global_refcon = nullptr;
    AEGP_Command _next_command = 5001;
    bool _in_entry = false;
    int _command_depth = 0;
    std::size_t _calls = 0;
    int _hook_errors = 0;
    int _misuses = 0;
    std::vector<Violation> _violations;
};

} // namespace minihost
