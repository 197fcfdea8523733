// The suites for hooks, the menu, messages and undo groups.

#include "minihost/suites/ServeCall.h"
#include "minihost/suites/SuiteFunctions.h"

namespace minihost {

namespace {

CallName register_call(const char* call) {
    return {kAEGPRegisterSuite, kAEGPRegisterSuiteVersion, call};
}
CallName command_call(const char* call) {
    return {kAEGPCommandSuite, kAEGPCommandSuiteVersion, call};
}
CallName utility_call(const char* call) {
    return {kAEGPUtilitySuite, kAEGPUtilitySuiteVersion, call};
}

void require_entry(const Host& host) {
    if (!host.is_in_entry())
        throw Misuse("called outside of the entry function", ViolationKind::LateRegistration);
}

A_Err RegisterCommandHook(AEGP_PluginID, AEGP_HookPriority priority, AEGP_Command command,
                          AEGP_CommandHook hook, AEGP_CommandRefcon refcon) {
    return serve_call(
        register_call("RegisterCommandHook"),
        [&](CallArguments& it) { it.number("priority", priority).number("command", command); },
        [&](Host& host) {
            require_entry(host);
            require(hook);
            host.hooks().command.push_back({command, hook, refcon});
        });
}

template <typename Function, typename Refcon>
A_Err register_hook(const char* call, std::vector<Hook<Function, Refcon>> Hooks::*list,
                    Function hook, Refcon refcon) {
    return serve_call(register_call(call), [&](Host& host) {
        require_entry(host);
        require(hook);
        (host.hooks().*list).push_back({hook, refcon});
    });
}

A_Err RegisterUpdateMenuHook(AEGP_PluginID, AEGP_UpdateMenuHook hook,
                             AEGP_UpdateMenuRefcon refcon) {
    return register_hook("RegisterUpdateMenuHook", &Hooks::update_menu, hook, refcon);
}

A_Err RegisterDeathHook(AEGP_PluginID, AEGP_DeathHook hook, AEGP_DeathRefcon refcon) {
    return register_hook("RegisterDeathHook", &Hooks::death, hook, refcon);
}

A_Err RegisterIdleHook(AEGP_PluginID, AEGP_IdleHook hook, AEGP_IdleRefcon refcon) {
    return register_hook("RegisterIdleHook", &Hooks::idle, hook, refcon);
}

A_Err GetUniqueCommand(AEGP_Command* command) {
    return serve_call(command_call("GetUniqueCommand"),
                      [&](Host& host) { require(command) = host.new_command(); });
}

A_Err InsertMenuCommand(AEGP_Command command, const A_char* name, AEGP_MenuID menu,
                        A_long after_item) {
    return serve_call(
        command_call("InsertMenuCommand"),
        [&](CallArguments& it) {
            it.number("command", command).text("name", name).number("menu", menu);
            it.number("after_item", after_item);
        },
        [&](Host& host) {
            require_entry(host);
            host.insert_menu_item({command, &require(name), menu});
        });
}

// A call that changes one menu item.
template <typename Change>
A_Err change_item(const char* call, AEGP_Command command, const Change& change) {
    return serve_call(
        command_call(call), [&](CallArguments& it) { it.number("command", command); },
        [&](Host& host) -> A_Err {
            MenuItem* item = host.menu_item(command);
            if (!item) return bad_argument_error;
            change(*item);
            return 0;
        });
}

A_Err EnableCommand(AEGP_Command command) {
    return change_item("EnableCommand", command, [](MenuItem& item) { item.enabled = true; });
}

A_Err DisableCommand(AEGP_Command command) {
    return change_item("DisableCommand", command, [](MenuItem& item) { item.enabled = false; });
}

A_Err CheckMarkMenuCommand(AEGP_Command command, A_Boolean check) {
    return serve_call(
        command_call("CheckMarkMenuCommand"),
        [&](CallArguments& it) { it.number("command", command).flag("check", check); },
        [&](Host& host) -> A_Err {
            MenuItem* item = host.menu_item(command);
            if (!item) return bad_argument_error;
            item->checked = check;
            return 0;
        });
}

A_Err DoCommand(AEGP_Command command) {
    return serve_call(
        command_call("DoCommand"), [&](CallArguments& it) { it.number("command", command); },
        [&](Host& host) { return host.choose(command); });
}

A_Err ReportInfo(AEGP_PluginID, const A_char* text) {
    return serve_call(
        utility_call("ReportInfo"), [&](CallArguments& it) { it.text("text", text); },
        [&](Host& host) { host.alert(&require(text)); });
}

A_Err StartUndoGroup(const A_char* name) {
    return serve_call(
        utility_call("StartUndoGroup"), [&](CallArguments& it) { it.text("name", name); },
        [&](Host& host) { host.document.begin_group(&require(name)); });
}

A_Err EndUndoGroup() {
    return serve_call(utility_call("EndUndoGroup"), [&](Host& host) {
        if (!host.document.end_group())
            throw Misuse("no undo group is open", ViolationKind::Unbalanced);
    });
}

constexpr AEGP_RegisterSuite6 registering{RegisterCommandHook, RegisterUpdateMenuHook,
                                          RegisterDeathHook, RegisterIdleHook};
constexpr AEGP_CommandSuite1 commands{GetUniqueCommand, InsertMenuCommand,    EnableCommand,
                                      DisableCommand,   CheckMarkMenuCommand, DoCommand};
constexpr AEGP_UtilitySuite3 utilities{ReportInfo, StartUndoGroup, EndUndoGroup};

} // namespace

const void* const register_suite = &registering;
const void* const command_suite = &commands;
const void* const utility_suite = &utilities;

} // namespace minihost
