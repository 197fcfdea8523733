// When its command is chosen first, it keeps a suite if a call fails in between.

#include "plugin.h"

#include <utility>

struct Broken : Plugin {
    A_Err on_entry() override {
        is_first = true;
        return 0;
    }
    A_Err on_command() override {
        if (!std::exchange(is_first, false)) return arrange();
        const Items items;
        const void* table = nullptr;
        if (!items) return A_Err_MISSING_SUITE;
        if (const A_Err error =
                basic->AcquireSuite(kAEGPLayerSuite, kAEGPLayerSuiteVersion, &table))
            return error;
        AEGP_ItemH item = nullptr;
        if (const A_Err error = items->AEGP_GetActiveItem(&item)) return error;
        basic->ReleaseSuite(kAEGPLayerSuite, kAEGPLayerSuiteVersion);
        return arrange();
    }
    bool is_first = true;
};
PLUGIN_IS(Broken)
