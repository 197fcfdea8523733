// What the plug-in registers in its entry function.

#include "minihost/check/CheckFunctions.h"
#include "minihost/check/PluginRun.h"

#include <algorithm>
#include <set>

namespace minihost {

namespace {

// In words, for the report and to compare two loads.
std::vector<std::string> registrations(Host& host) {
    std::vector<std::string> lines;
    for (const CommandHook& it : host.hooks().command)
        lines.push_back(it.command == AEGP_Command_ALL ? "a command hook for all commands"
                                                       : "a command hook for one command");
    lines.insert(lines.end(), host.hooks().update_menu.size(), "a menu hook");
    lines.insert(lines.end(), host.hooks().idle.size(), "an idle hook");
    lines.insert(lines.end(), host.hooks().death.size(), "a death hook");
    for (const MenuItem& it : host.menu())
        lines.push_back("a command \"" + it.text + "\" in menu " + std::to_string(it.menu));
    for (const auto& [name, kind] : host.panels.kinds()) lines.push_back("panels \"" + name + "\"");
    return lines;
}

void check_menu(Host& host, Findings& findings) {
    std::set<AEGP_Command> seen;
    for (const MenuItem& it : host.menu()) {
        const std::string item = "the menu command \"" + it.text + "\"";
        if (it.text.empty()) findings.fail("a menu command has no text");
        if (!seen.insert(it.command).second) findings.fail(item + " has the number of another one");
        const auto& hooks = host.hooks().command;
        if (std::none_of(hooks.begin(), hooks.end(), [&](const CommandHook& hook) {
                return hook.command == it.command || hook.command == AEGP_Command_ALL;
            }))
            findings.fail("no hook is registered for " + item);
    }
    if (host.menu().empty()) findings.warn("nothing is in a menu");
    if (!host.menu().empty() && host.hooks().update_menu.empty())
        findings.fail("no menu hook is registered: nothing enables the command");
    if (host.hooks().death.empty()) findings.warn("no death hook is registered");
    for (const auto& [name, kind] : host.panels.kinds())
        if (name.empty()) findings.fail("a kind of panel has no name");
}

} // namespace

void check_registered(const CheckContext& context, Findings& findings) {
    std::vector<std::string> before;
    for (int load = 0; load < 2; ++load) {
        PluginRun run(context.target.plugin, context.target.scene, {}, context.progress);
        if (!run.load()) return findings.fail(run.load_error());
        Host& host = run.session().host();
        const std::vector<std::string> now = registrations(host);
        if (load == 0) {
            check_menu(host, findings);
            for (const std::string& line : now) findings.note("registered: " + line);
        } else if (now != before) {
            findings.fail("a second load registers other hooks than the first");
        }
        before = now;
        run.unload();
        findings.count_run();
    }
}

} // namespace minihost
