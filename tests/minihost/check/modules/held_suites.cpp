// Never releases a suite.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_command() override {
        const void* table = nullptr;
        basic->AcquireSuite(kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion, &table);
        return arrange();
    }
};
PLUGIN_IS(Broken)
