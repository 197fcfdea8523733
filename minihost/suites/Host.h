// The host: a scene that is edited, and everything that a plug-in is served over it. One object;
// the suites' functions, which have no context of their own, find it while it calls into the
// plug-in.

#pragma once

#include "minihost/model/Document.h"
#include "minihost/suites/CallLog.h"
#include "minihost/suites/Colors.h"
#include "minihost/suites/FailurePlan.h"
#include "minihost/suites/Handles.h"
#include "minihost/suites/Misbehaviour.h"
#include "minihost/suites/Panels.h"
#include "sdk/Host.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace minihost {

// What a call that makes no sense gets: misuse_error is for handles and pointers that are none.
constexpr A_Err misuse_error = 3;
constexpr A_Err bad_argument_error = 5; // an index out of range, a stream that is not there
constexpr A_Err host_error = 1;         // the host itself could not

struct HostOptions {
    std::set<std::string> without; // words of --without
    std::vector<Failure> failures;
    std::vector<PlannedMisdeed> misdeeds = {};
    Palette palette = Palette::Dark;
};

// The plug-in's command in a menu. Enabling and checking last until the next menu update.
struct MenuItem {
    AEGP_Command command;
    std::string text;
    AEGP_MenuID menu;
    bool enabled = false;
    bool checked = false;
};

// What a plug-in has registered.
struct CommandHook {
    AEGP_Command command; // AEGP_Command_ALL for all
    AEGP_CommandHook hook;
    AEGP_CommandRefcon refcon;
};
struct UpdateMenuHook {
    AEGP_UpdateMenuHook hook;
    AEGP_UpdateMenuRefcon refcon;
};
struct DeathHook {
    AEGP_DeathHook hook;
    AEGP_DeathRefcon refcon;
};
struct IdleHook {
    AEGP_IdleHook hook;
    AEGP_IdleRefcon refcon;
};
struct Hooks {
    std::vector<CommandHook> command;
    std::vector<UpdateMenuHook> update_menu;
    std::vector<DeathHook> death;
    std::vector<IdleHook> idle;
};

class Host {
  public:
    // Gets messages for the user, a line each without its end.
    using Reporter = std::function<void(const std::string&)>;

    Host(Scene scene, HostOptions options, Reporter report, PanelMaker make_panel);
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    Document document;
    Handles handles;
    CallLog log;
    FailurePlan failures;
    Misbehaviour misbehaviour;
    Panels panels;

    // Gets the number of calls that the plug-in has made so far, at each.
    std::function<void(std::size_t)> on_call;

    const HostOptions& options() const { return _options; }
    const std::vector<MenuItem>& menu() const { return _menu; }
    // The texts that the plug-in has reported so far.
    const std::vector<std::string>& alerts() const { return _alerts; }
    // How many hooks have returned an error so far, or thrown.
    int hook_errors() const { return _hook_errors; }
    // How often the plug-in has misused the host so far.
    int misuses() const { return _misuses; }
    // Everything that the plug-in did wrong, in the order in which it was noticed; the first some
    // thousands.
    const std::vector<Fault>& faults() const { return _faults; }
    void note(FaultKind kind, std::string text);

    // What the host does with a plug-in that is loaded. Each reports a hook that fails; the first
    // failing hook's code is the result.
    A_Err call_entry(AEGP_PluginEntryProc entry, const SPBasicSuite& basic_suite);
    A_Err update_menu();
    // As if the user had chosen a command: the plug-in's hooks first, then the host itself.
    A_Err choose(AEGP_Command command);
    A_Err idle();
    // Shows or hides a panel by its match name; creates it first if necessary, through its hook,
    // whose error is the result.
    A_Err toggle_panel(const std::string& match_name);
    // Disposes of all panels without a call into the plug-in's hooks. False when there was none.
    bool close_panels();
    // Another scene instead, with no step to undo. The plug-in stays; what it had of the old scene
    // is stale.
    void open(Scene scene);
    // The plug-in's last call. After it nothing of the plug-in is called any more; what it still
    // holds is reported, and given as lines.
    std::vector<std::string> bury();
    // Runs something that may enter the plug-in by another way (an event, a drawing).
    void visit(const std::function<void()>& body);

    // For the suites' functions. Null outside the calls above.
    static Host* current();
    void report(const std::string& line) { _report(line); }
    void count_call() {
        ++_calls;
        if (on_call) on_call(_calls);
        if (misbehaviour.is_on()) misbehaviour.before_call(document);
    }
    void tell_misuse(const CallName& call, const Misuse& misuse);
    void alert(const std::string& text);
    bool is_entering() const { return _entering; }
    Hooks& hooks() { return _hooks; }
    AEGP_Command new_command() { return _next_command++; }
    void insert_menu_item(MenuItem item) { _menu.push_back(std::move(item)); }
    MenuItem* menu_item(AEGP_Command command);
    void count_acquired(const char* suite, A_long version) { ++_acquired[{suite, version}]; }
    // False when it was not acquired.
    bool count_released(const char* suite, A_long version);

  private:
    class Visit;
    void report_fault(FaultKind kind, const std::string& line);
    template <typename Body>
    A_Err call_hook(const char* name, const Body& body);
    A_Err create_panel(PanelKind& kind);
    std::vector<Fault> holdings() const;

    HostOptions _options;
    Reporter _report;
    PanelMaker _make_panel;
    Hooks _hooks;
    std::vector<MenuItem> _menu;
    std::vector<std::string> _alerts;
    std::map<std::pair<std::string, int>, int> _acquired; // by name and version
    AEGP_GlobalRefcon _global_refcon = nullptr;
    AEGP_Command _next_command = 5001;
    bool _entering = false;
    int _depth_of_commands = 0;
    std::size_t _calls = 0;
    int _hook_errors = 0;
    int _misuses = 0;
    std::vector<Fault> _faults;
};

} // namespace minihost
