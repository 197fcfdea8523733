// What a plug-in registers with the host.

#pragma once

#include "sdk/Host.h"

#include <string>
#include <vector>

namespace minihost {

// A command of the plug-in's in a menu. The flags last until the next menu update.
struct MenuItem {
    AEGP_Command command;
    std::string text;
    AEGP_MenuID menu;
    bool enabled = false;
    bool checked = false;
};

struct CommandHook {
    AEGP_Command command; // AEGP_Command_ALL for all
    AEGP_CommandHook hook;
    AEGP_CommandRefcon refcon;
};

template <typename Function, typename Refcon>
struct Hook {
    Function hook;
    Refcon refcon;
};

struct Hooks {
    std::vector<CommandHook> command;
    std::vector<Hook<AEGP_UpdateMenuHook, AEGP_UpdateMenuRefcon>> update_menu;
    std::vector<Hook<AEGP_DeathHook, AEGP_DeathRefcon>> death;
    std::vector<Hook<AEGP_IdleHook, AEGP_IdleRefcon>> idle;
};

} // namespace minihost
