// A small plug-in without a dialog. Its command moves every selected layer to (1, 2, 3) in one undo
// step. With TEST_PLUGIN_HOLDS in the environment it keeps a suite, a collection and an undo group.

#include "sdk/Host.h"

#include <cstdlib>

namespace {

SPBasicSuite* basic;
AEGP_PluginID plugin_id;
AEGP_Command command;

template <typename Suite>
const Suite* acquire(const char* name, A_long version) {
    const void* table = nullptr;
    return basic->AcquireSuite(name, version, &table) ? nullptr : static_cast<const Suite*>(table);
}

// Acquires the suites for the duration of a hook.
struct Suites {
    const AEGP_RegisterSuite6* hooks =
        acquire<AEGP_RegisterSuite6>(kAEGPRegisterSuite, kAEGPRegisterSuiteVersion);
    const AEGP_CommandSuite1* commands =
        acquire<AEGP_CommandSuite1>(kAEGPCommandSuite, kAEGPCommandSuiteVersion);
    const AEGP_UtilitySuite3* utility =
        acquire<AEGP_UtilitySuite3>(kAEGPUtilitySuite, kAEGPUtilitySuiteVersion);
    const AEGP_ItemSuite3* items = acquire<AEGP_ItemSuite3>(kAEGPItemSuite, kAEGPItemSuiteVersion);
    const AEGP_CompSuite4* comps = acquire<AEGP_CompSuite4>(kAEGPCompSuite, kAEGPCompSuiteVersion);
    const AEGP_CollectionSuite1* collections =
        acquire<AEGP_CollectionSuite1>(kAEGPCollectionSuite, kAEGPCollectionSuiteVersion);
    const AEGP_StreamSuite4* streams =
        acquire<AEGP_StreamSuite4>(kAEGPStreamSuite, kAEGPStreamSuiteVersion);
    ~Suites() {
        basic->ReleaseSuite(kAEGPRegisterSuite, kAEGPRegisterSuiteVersion);
        basic->ReleaseSuite(kAEGPCommandSuite, kAEGPCommandSuiteVersion);
        basic->ReleaseSuite(kAEGPUtilitySuite, kAEGPUtilitySuiteVersion);
        basic->ReleaseSuite(kAEGPItemSuite, kAEGPItemSuiteVersion);
        basic->ReleaseSuite(kAEGPCompSuite, kAEGPCompSuiteVersion);
        basic->ReleaseSuite(kAEGPCollectionSuite, kAEGPCollectionSuiteVersion);
        basic->ReleaseSuite(kAEGPStreamSuite, kAEGPStreamSuiteVersion);
    }
};

A_Err move_selected(const Suites& host, AEGP_CompH comp) {
    AEGP_CollectionH selected = nullptr;
    if (const A_Err error =
            host.comps->AEGP_GetNewCollectionFromCompSelection(plugin_id, comp, &selected))
        return error;
    A_u_long count = 0;
    host.collections->AEGP_GetCollectionNumItems(selected, &count);
    A_Err first = 0;
    for (A_u_long i = 0; i < count; ++i) {
        AEGP_CollectionItem item{};
        host.collections->AEGP_GetCollectionItemByIndex(selected, i, &item);
        if (item.type != AEGP_CollectionItemType_LAYER) continue;
        AEGP_StreamValue value{};
        host.streams->AEGP_GetNewLayerStream(plugin_id, item.layerH, AEGP_LayerStream_POSITION,
                                             &value.streamH);
        value.val.three_d = {1, 2, 3};
        const A_Err error = host.streams->AEGP_SetStreamValue(plugin_id, value.streamH, &value);
        if (first == 0) first = error;
        host.streams->AEGP_DisposeStream(value.streamH);
    }
    host.collections->AEGP_DisposeCollection(selected);
    return first;
}

A_Err on_command(AEGP_GlobalRefcon, AEGP_CommandRefcon, AEGP_Command, AEGP_HookPriority, A_Boolean,
                 A_Boolean* handled) {
    const Suites host;
    AEGP_ItemH item = nullptr;
    AEGP_CompH comp = nullptr;
    host.items->AEGP_GetActiveItem(&item);
    *handled = 1;
    if (!item) {
        host.utility->AEGP_ReportInfo(plugin_id, "No composition is active.");
        return 0;
    }
    host.comps->AEGP_GetCompFromItem(item, &comp);
    host.utility->AEGP_StartUndoGroup("Arrange");
    const A_Err error = move_selected(host, comp);
    host.utility->AEGP_EndUndoGroup();
    return error;
}

A_Err on_update_menu(AEGP_GlobalRefcon, AEGP_UpdateMenuRefcon, AEGP_WindowType) {
    const Suites host;
    return host.commands->AEGP_EnableCommand(command);
}

A_Err on_death(AEGP_GlobalRefcon, AEGP_DeathRefcon) {
    if (!std::getenv("TEST_PLUGIN_HOLDS")) return 0;
    const Suites host;
    acquire<void>(kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion);
    AEGP_CollectionH collection = nullptr;
    host.collections->AEGP_NewCollection(plugin_id, &collection);
    return host.utility->AEGP_StartUndoGroup("Left open");
}

} // namespace

extern "C" __attribute__((visibility("default"))) A_Err
PluginEntry(SPBasicSuite* given, A_long, A_long, AEGP_PluginID id, AEGP_GlobalRefcon*) {
    basic = given;
    plugin_id = id;
    const Suites host;
    host.hooks->AEGP_RegisterDeathHook(id, on_death, nullptr);
    host.commands->AEGP_GetUniqueCommand(&command);
    host.commands->AEGP_InsertMenuCommand(command, "Arrange", AEGP_Menu_FLOATERS,
                                          AEGP_MENU_INSERT_AT_BOTTOM);
    host.hooks->AEGP_RegisterCommandHook(id, AEGP_HP_BeforeAE, command, on_command, nullptr);
    return host.hooks->AEGP_RegisterUpdateMenuHook(id, on_update_menu, nullptr);
}
