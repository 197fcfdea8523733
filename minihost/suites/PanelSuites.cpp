// The suites for panels and interface colours.

#include "minihost/suites/ServeCall.h"
#include "minihost/suites/SuiteFunctions.h"

namespace minihost {

namespace {

CallName panel_call(const char* call) {
    return {kAEGPPanelSuite, kAEGPPanelSuiteVersion, call};
}

A_Err RegisterCreatePanelHook(AEGP_PluginID, const A_char* match_name, AEGP_CreatePanelHook hook,
                              AEGP_CreatePanelRefcon refcon, A_Boolean paint_background) {
    return serve_call(
        panel_call("RegisterCreatePanelHook"),
        [&](CallArguments& it) {
            it.text("match_name", match_name);
            it.flag("paint_background", paint_background);
        },
        [&](Host& host) {
            if (!host.is_in_entry())
                throw Misuse("called outside of the entry function",
                             ViolationKind::LateRegistration);
            require(hook);
            host.panels.register_hook(&require(match_name), hook, refcon);
        });
}

A_Err ToggleVisibility(const A_char* match_name) {
    return serve_call(
        panel_call("ToggleVisibility"),
        [&](CallArguments& it) { it.text("match_name", match_name); },
        [&](Host& host) { return host.toggle_panel(&require(match_name)); });
}

A_Err SetTitle(AEGP_PanelH panel, const A_char* title) {
    return serve_call(
        panel_call("SetTitle"), [&](CallArguments& it) { it.panel(panel).text("title", title); },
        [&](Host& host) -> A_Err {
            host.handles.require_panel(panel);
            return host.panels.set_title(panel, &require(title)) ? 0 : bad_argument_error;
        });
}

A_Err AppGetColor(PF_App_ColorType selector, PF_App_Color* color) {
    return serve_call(
        {kPFAppSuite, kPFAppSuiteVersion, "PF_AppGetColor"},
        [&](CallArguments& it) { it.number("selector", selector); },
        [&](Host& host) { require(color) = interface_color(host.options().palette, selector); });
}

constexpr AEGP_PanelSuite1 panels{RegisterCreatePanelHook, ToggleVisibility, SetTitle};
constexpr PFAppSuite6 app{nullptr, AppGetColor};

} // namespace

const void* const panel_suite = &panels;
const void* const app_suite = &app;

} // namespace minihost
