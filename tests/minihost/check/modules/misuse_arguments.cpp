// Passes a null pointer for a result.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_idle() override {
        const Items items;
        if (items) items->AEGP_GetActiveItem(nullptr);
        return 0;
    }
};
PLUGIN_IS(Broken)
