// The module's entry function and the hooks that it registers. They share one dialog object and
// never throw: they return a host error that is thrown as an int, and 1 for any other exception.

#include "ADMLibrary/HostPointers.h"
#include "cylinder/MainDlg.h"
#include "cylinder/version.h"
#include "host/services/AEGP_SuiteHandler.h"

#include <cstdio>
#include <memory>

namespace {

AEGP_PluginID _plugin_id = 0;
char _dialog_id[256] = ""; // the panel's match name and the dialog's name
AEGP_Command _cmd_id = 0;
MainDlg* _main_dlg = nullptr; // from PluginEntry to on_destroy

constexpr ADMDialogStyle floating_dialog_style = 3;

template <typename Action>
A_Err guarded(Action action) noexcept {
    try {
        return action();
    } catch (int code) {
        return code;
    } catch (...) {
        return 1;
    }
}

void throw_if(A_Err err) {
    if (err) throw static_cast<int>(err);
}

_Opaque_ADMDialog* toolkit_dialog() {
    return *_main_dlg;
}

// Updates the camera pop-up, and enables the dialog if there is something to place.
void refresh() {
    const bool placeable = _main_dlg->isCurSelectionContains(AssistantDlg::placeable);
    _main_dlg->OnHostHasChanged();
    _main_dlg->Enable(placeable);
}

// The items of a new dialog are enabled, whatever the dialog object remembers of an earlier one:
// the refresh that follows disables them when there is nothing to place.
void note_new_dialog() {
    _main_dlg->Enable(true);
}

A_Err on_destroy(AEGP_GlobalRefcon, AEGP_DeathRefcon) {
    const A_Err err = guarded([] {
        const std::unique_ptr<MainDlg> dialog(_main_dlg);
        _main_dlg = nullptr;
        if (!dialog) return A_Err_NONE;
        sADMDialog->Show(*dialog, false);
        dialog->Destroy(); // releases what it holds of the host
        return A_Err_NONE;
    });
    adm::releaseSuites();
    return err;
}

void show_floating_dialog() {
    if (!toolkit_dialog()) {
        _main_dlg->Create(nullptr, _dialog_id, 0, floating_dialog_style, 0);
        sADMDialog->Show(*_main_dlg, false);
        note_new_dialog();
    }
    refresh();
    sADMDialog->Show(*_main_dlg, true);
}

A_Err on_command(AEGP_GlobalRefcon, AEGP_CommandRefcon, AEGP_Command, AEGP_HookPriority, A_Boolean,
                 A_Boolean* handled) {
    if (!_main_dlg) return A_Err_NONE;
    try {
        if (sAEGPPanelSuite) {
            throw_if(sAEGPPanelSuite->AEGP_ToggleVisibility(_dialog_id));
            refresh();
        } else {
            show_floating_dialog();
        }
        *handled = true;
        return A_Err_NONE;
    } catch (int code) {
        return code;
    } catch (...) {
        *handled = false;
        return 1;
    }
}

// Leaves every command to the host.
A_Err on_all_command(AEGP_GlobalRefcon, AEGP_CommandRefcon, AEGP_Command, AEGP_HookPriority,
                     A_Boolean, A_Boolean* handled) {
    *handled = false;
    return A_Err_NONE;
}

A_Err on_update_menu(AEGP_GlobalRefcon, AEGP_UpdateMenuRefcon, AEGP_WindowType) {
    return guarded([] {
        if (!_main_dlg || !_cmd_id) return A_Err_NONE;
        AEGP_SuiteHandler suites(sSPBasic);
        const AEGP_CommandSuite1& commands = suites.CommandSuite1();
        throw_if(
            commands.AEGP_CheckMarkMenuCommand(_cmd_id, sADMDialog->IsVisible(toolkit_dialog())));
        const bool placeable = _main_dlg->isCurSelectionContains(AssistantDlg::placeable);
        throw_if(placeable ? commands.AEGP_EnableCommand(_cmd_id)
                           : commands.AEGP_DisableCommand(_cmd_id));
        return A_Err_NONE;
    });
}

A_Err on_idle(AEGP_GlobalRefcon, AEGP_IdleRefcon, A_long*) {
    return guarded([] {
        if (_main_dlg && toolkit_dialog()) refresh();
        return A_Err_NONE;
    });
}

A_Err on_create_panel(AEGP_GlobalRefcon, AEGP_CreatePanelRefcon, NSView* container,
                      AEGP_PanelH panel, AEGP_PanelFunctions1* functions,
                      AEGP_PanelRefcon* refcon) {
    return guarded([=] {
        if (!_main_dlg) return A_Err_NONE;
        _main_dlg->CreatePanel(nullptr, _dialog_id, 0, sAEGPPanelSuite, panel, container, functions,
                               refcon);
        note_new_dialog();
        refresh();
        return A_Err_NONE;
    });
}

// A message that cannot be shown is no error of its own.
void report(AEGP_SuiteHandler& suites, const char* text) {
    try {
        suites.UtilitySuite3().AEGP_ReportInfo(_plugin_id, text);
    } catch (int) {
    }
}

// The dialog object outlives its toolkit dialogs: every later one reuses it.
A_Err make_dialog() {
    adm::acquireSuites();
    _main_dlg = nullptr;
    return guarded([] {
        auto dialog = std::make_unique<MainDlg>(_plugin_id);
        dialog->SetDeleteOnDestroy(false);
        _main_dlg = dialog.release();
        return A_Err_NONE;
    });
}

A_Err add_menu_command(AEGP_SuiteHandler& suites) {
    const AEGP_CommandSuite1& commands = suites.CommandSuite1();
    _cmd_id = 0;
    AEGP_Command id = 0;
    if (commands.AEGP_GetUniqueCommand(&id) || id == 0) {
        report(suites, "Could not add menu item.");
        return A_Err_NONE;
    }
    _cmd_id = id;
    return commands.AEGP_InsertMenuCommand(_cmd_id, product_name, AEGP_Menu_FLOATERS,
                                           AEGP_MENU_INSERT_AT_BOTTOM);
}

// Stops at the first failure; the hooks registered before it stay registered. Without a command of
// our own there is no hook for it: the host would take id 0 for all commands.
A_Err register_hooks(AEGP_SuiteHandler& suites) {
    if (const A_Err err = add_menu_command(suites)) return err;
    const AEGP_RegisterSuite6& hooks = suites.RegisterSuite6();
    if (_cmd_id)
        if (const A_Err err = hooks.AEGP_RegisterCommandHook(_plugin_id, AEGP_HP_BeforeAE, _cmd_id,
                                                             on_command, nullptr))
            return err;
    if (const A_Err err = hooks.AEGP_RegisterCommandHook(_plugin_id, AEGP_HP_BeforeAE,
                                                         AEGP_Command_ALL, on_all_command, nullptr))
        return err;
    if (const A_Err err = hooks.AEGP_RegisterUpdateMenuHook(_plugin_id, on_update_menu, nullptr))
        return err;
    if (const A_Err err = hooks.AEGP_RegisterIdleHook(_plugin_id, on_idle, nullptr)) return err;
    if (!sAEGPPanelSuite) return A_Err_NONE;
    return sAEGPPanelSuite->AEGP_RegisterCreatePanelHook(_plugin_id, _dialog_id, on_create_panel,
                                                         nullptr, /*paint_background*/ 1);
}

A_Err enter() {
    AEGP_SuiteHandler suites(sSPBasic);
    std::snprintf(_dialog_id, sizeof _dialog_id, "DE_%s v%i.%i", product_name,
                  product_version_major, product_version_minor);
    if (const A_Err err =
            suites.RegisterSuite6().AEGP_RegisterDeathHook(_plugin_id, on_destroy, nullptr)) {
        report(suites, "Could not register death hook.");
        return err;
    }
    if (const A_Err err = make_dialog()) return err;
    if (const A_Err err = register_hooks(suites)) {
        report(suites, "Could not register command hook.");
        return err;
    }
    return A_Err_NONE;
}

} // namespace

extern "C" __attribute__((visibility("default"))) A_Err
PluginEntry(SPBasicSuite* basic, A_long /*major_version*/, A_long /*minor_version*/,
            AEGP_PluginID plugin_id, AEGP_GlobalRefcon* /*global_refcon*/) {
    _plugin_id = plugin_id;
    sSPBasic = basic;
    return guarded(enter);
}
