// Its death hook keeps a suite when a call fails in between.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_death() override {
        const Items items;
        const void* table = nullptr;
        if (!items) return A_Err_MISSING_SUITE;
        if (const A_Err error =
                basic->AcquireSuite(kAEGPLayerSuite, kAEGPLayerSuiteVersion, &table))
            return error;
        AEGP_ItemH item = nullptr;
        if (const A_Err error = items->AEGP_GetActiveItem(&item)) return error;
        return basic->ReleaseSuite(kAEGPLayerSuite, kAEGPLayerSuiteVersion);
    }
};
PLUGIN_IS(Broken)
