// Keeps a suite when its panel cannot be closed.

#include "plugin.h"

struct Broken : Plugin {
    bool has_panel() const override { return true; }
    A_Err on_entry() override {
        commands_chosen = 0;
        is_filled = false;
        return 0;
    }
    A_Err on_command() override {
        const bool closes = ++commands_chosen == 2 && is_filled;
        const void* table = nullptr;
        if (basic->AcquireSuite(kAEGPPanelSuite, kAEGPPanelSuiteVersion, &table)) return 0;
        const auto panels = static_cast<const AEGP_PanelSuite1*>(table);
        const A_Err error = panels->AEGP_ToggleVisibility(panel_name);
        if (!error || !closes) basic->ReleaseSuite(kAEGPPanelSuite, kAEGPPanelSuiteVersion);
        return error;
    }
    void fill(NSView*) override { is_filled = true; }
    int commands_chosen = 0;
    bool is_filled = false;
};
PLUGIN_IS(Broken)
