// Registers another idle hook when its command is chosen.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_command() override {
        const Registering hooks;
        if (hooks)
            hooks->AEGP_RegisterIdleHook(
                plugin_id, [](AEGP_GlobalRefcon, AEGP_IdleRefcon, A_long*) { return A_Err_NONE; },
                nullptr);
        return arrange();
    }
};
PLUGIN_IS(Broken)
