// Assumes that the host has an optional suite.

#include "plugin.h"

struct Broken : Plugin {
    A_Err on_menu() override {
        const Suite<PFAppSuite6> colors(kPFAppSuite, kPFAppSuiteVersion);
        PF_App_Color color{};
        return colors ? colors->PF_AppGetColor(0, &color) : A_Err_MISSING_SUITE;
    }
};
PLUGIN_IS(Broken)
