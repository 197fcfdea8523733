// Tries to acquire a missing suite twice, then assumes that it has it.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_idle() override {
        const void* table = nullptr;
        for (int i = 0; i < 2 && !table; ++i)
            basic->AcquireSuite(kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion, &table);
        AEGP_KeyframeIndex (*volatile first)(const void*) = [](const void* at) {
            return *static_cast<const volatile AEGP_KeyframeIndex*>(at);
        };
        first(table);
        return basic->ReleaseSuite(kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion);
    }
};
PLUGIN_IS(Broken)
