// A second command in the menu has no hook.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_entry() override {
        const Commands commands;
        AEGP_Command other = 0;
        if (!commands) return 1;
        if (const A_Err error = commands->AEGP_GetUniqueCommand(&other)) return error;
        return commands->AEGP_InsertMenuCommand(other, "Other", AEGP_Menu_FLOATERS,
                                                AEGP_MENU_INSERT_AT_BOTTOM);
    }
};
PLUGIN_IS(Broken)
