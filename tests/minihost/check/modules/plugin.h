// A small plug-in that does nothing wrong: its command moves the selected layers in one undo step.
// Each module includes it and overrides what it does wrong.

#pragma once

#include "sdk/Host.h"

#include <cstring>

inline SPBasicSuite* basic;
inline AEGP_PluginID plugin_id;
inline AEGP_Command command;
constexpr const char* panel_name = "Small";

// Acquires a suite for the rest of the block; null on a host without it.
template <typename Table>
class Suite {
  public:
    Suite(const char* name, A_long version) : _name(name), _version(version) {
        const void* table = nullptr;
        if (basic->AcquireSuite(name, version, &table) == 0)
            _table = static_cast<const Table*>(table);
    }
    ~Suite() {
        if (_table) basic->ReleaseSuite(_name, _version);
    }
    Suite(const Suite&) = delete;
    explicit operator bool() const { return _table; }
    const Table* operator->() const { return _table; }

  private:
    const char* _name;
    A_long _version;
    const Table* _table = nullptr;
};

struct Registering : Suite<AEGP_RegisterSuite6> {
    Registering() : Suite(kAEGPRegisterSuite, kAEGPRegisterSuiteVersion) {}
};
struct Commands : Suite<AEGP_CommandSuite1> {
    Commands() : Suite(kAEGPCommandSuite, kAEGPCommandSuiteVersion) {}
};
struct Utility : Suite<AEGP_UtilitySuite3> {
    Utility() : Suite(kAEGPUtilitySuite, kAEGPUtilitySuiteVersion) {}
};
struct Items : Suite<AEGP_ItemSuite3> {
    Items() : Suite(kAEGPItemSuite, kAEGPItemSuiteVersion) {}
};
struct Comps : Suite<AEGP_CompSuite4> {
    Comps() : Suite(kAEGPCompSuite, kAEGPCompSuiteVersion) {}
};
struct Collections : Suite<AEGP_CollectionSuite1> {
    Collections() : Suite(kAEGPCollectionSuite, kAEGPCollectionSuiteVersion) {}
};
struct Streams : Suite<AEGP_StreamSuite4> {
    Streams() : Suite(kAEGPStreamSuite, kAEGPStreamSuiteVersion) {}
};
struct Layers : Suite<AEGP_LayerSuite5> {
    Layers() : Suite(kAEGPLayerSuite, kAEGPLayerSuiteVersion) {}
};
struct PanelSuite : Suite<AEGP_PanelSuite1> {
    PanelSuite() : Suite(kAEGPPanelSuite, kAEGPPanelSuiteVersion) {}
};

// Null without an active composition.
inline AEGP_CompH active_comp() {
    const Items items;
    const Comps comps;
    AEGP_ItemH item = nullptr;
    AEGP_CompH comp = nullptr;
    if (!items || !comps || items->AEGP_GetActiveItem(&item) || !item) return nullptr;
    return comps->AEGP_GetCompFromItem(item, &comp) ? nullptr : comp;
}

class Plugin {
  public:
    virtual ~Plugin() = default;

    virtual A_Err on_command() { return has_panel() ? toggle_panel() : arrange(); }
    virtual A_Err on_idle() {
        active_comp();
        return 0;
    }
    virtual A_Err on_death() {
        const Utility utility;
        return 0;
    }
    virtual A_Err on_menu() {
        const Commands commands;
        return commands ? commands->AEGP_EnableCommand(command) : 1;
    }
    virtual A_Err on_entry() { return 0; } // after everything is registered

    virtual bool has_panel() const { return false; }
    virtual void fill(NSView*) {}

    // Moves every selected layer to position(), in one undo step.
    virtual A_Err arrange() {
        const AEGP_CompH comp = active_comp();
        const Utility utility;
        if (!comp || !utility) return comp ? 1 : 0;
        if (const A_Err error = utility->AEGP_StartUndoGroup("Small")) return error;
        const A_Err error = arrange_layers(comp);
        utility->AEGP_EndUndoGroup();
        return error;
    }
    virtual A_Err arrange_layers(AEGP_CompH comp) {
        const Comps comps;
        const Collections collections;
        AEGP_CollectionH selected = nullptr;
        if (!comps || !collections) return 1;
        if (const A_Err error =
                comps->AEGP_GetNewCollectionFromCompSelection(plugin_id, comp, &selected))
            return error;
        if (!selected) return 1;
        A_u_long count = 0;
        A_Err error = collections->AEGP_GetCollectionNumItems(selected, &count);
        for (A_u_long i = 0; i < count && !error; ++i) {
            AEGP_CollectionItem item{};
            error = collections->AEGP_GetCollectionItemByIndex(selected, i, &item);
            if (!error && item.type == AEGP_CollectionItemType_LAYER) error = move(item.layerH);
        }
        dispose(collections, selected);
        return error;
    }
    virtual void dispose(const Collections& collections, AEGP_CollectionH collection) {
        collections->AEGP_DisposeCollection(collection);
    }
    virtual A_Err move(AEGP_LayerH layer) {
        const Streams streams;
        if (!streams || !layer) return 1;
        if (const A_Err error = inspect(layer)) return error;
        AEGP_StreamValue value{};
        if (const A_Err error = streams->AEGP_GetNewLayerStream(
                plugin_id, layer, AEGP_LayerStream_POSITION, &value.streamH))
            return error;
        if (!value.streamH) return 1;
        value.val.three_d = position();
        const A_Err error = streams->AEGP_SetStreamValue(plugin_id, value.streamH, &value);
        dispose(streams, value.streamH);
        return error;
    }
    virtual void dispose(const Streams& streams, AEGP_StreamRefH stream) {
        streams->AEGP_DisposeStream(stream);
    }
    virtual AEGP_ThreeDVal position() { return {1, 2, 3}; }

    // Reads the data of a layer.
    virtual A_Err inspect(AEGP_LayerH layer) {
        const Layers layers;
        const Items items;
        const Streams streams;
        if (!layers || !items || !streams) return 1;
        A_char name[AEGP_MAX_LAYER_NAME_SIZE] = "";
        AEGP_ItemH source = nullptr;
        A_long width = 1, height = 1;
        const A_Time now{0, 600};
        AEGP_StreamVal position{};
        A_Err error = layers->AEGP_GetLayerName(layer, name, nullptr);
        if (!error) error = layers->AEGP_GetLayerSourceItem(layer, &source);
        if (!error && source) error = items->AEGP_GetItemDimensions(source, &width, &height);
        if (!error)
            error = streams->AEGP_GetLayerStreamValue(layer, AEGP_LayerStream_POSITION,
                                                      AEGP_LTimeMode_CompTime, &now, 0, &position);
        if (!error) on_inspected(name, width, position.three_d.x);
        return error;
    }
    virtual void on_inspected(const A_char* /*name*/, A_long /*width*/, A_FpLong /*x*/) {}

  private:
    A_Err toggle_panel() {
        const PanelSuite panels;
        return panels ? panels->AEGP_ToggleVisibility(panel_name) : arrange();
    }
};

// Defined by the module, with PLUGIN_IS.
Plugin& plugin();

inline A_Err register_all() {
    const Registering hooks;
    const Commands commands;
    const PanelSuite panels;
    if (!hooks || !commands) return A_Err_MISSING_SUITE;
    A_Err error = hooks->AEGP_RegisterDeathHook(
        plugin_id, [](AEGP_GlobalRefcon, AEGP_DeathRefcon) { return plugin().on_death(); },
        nullptr);
    if (!error) error = commands->AEGP_GetUniqueCommand(&command);
    if (!error)
        error = commands->AEGP_InsertMenuCommand(command, "Small", AEGP_Menu_FLOATERS,
                                                 AEGP_MENU_INSERT_AT_BOTTOM);
    if (!error)
        error = hooks->AEGP_RegisterCommandHook(
            plugin_id, AEGP_HP_BeforeAE, command,
            [](AEGP_GlobalRefcon, AEGP_CommandRefcon, AEGP_Command, AEGP_HookPriority, A_Boolean,
               A_Boolean* handled) {
                *handled = 1;
                return plugin().on_command();
            },
            nullptr);
    if (!error)
        error = hooks->AEGP_RegisterUpdateMenuHook(
            plugin_id,
            [](AEGP_GlobalRefcon, AEGP_UpdateMenuRefcon, AEGP_WindowType) {
                return plugin().on_menu();
            },
            nullptr);
    if (!error)
        error = hooks->AEGP_RegisterIdleHook(
            plugin_id,
            [](AEGP_GlobalRefcon, AEGP_IdleRefcon, A_long*) { return plugin().on_idle(); },
            nullptr);
    if (!error && panels && plugin().has_panel())
        error = panels->AEGP_RegisterCreatePanelHook(
            plugin_id, panel_name,
            [](AEGP_GlobalRefcon, AEGP_CreatePanelRefcon, NSView* container, AEGP_PanelH,
               AEGP_PanelFunctions1*, AEGP_PanelRefcon*) {
                plugin().fill(container);
                return A_Err_NONE;
            },
            nullptr, 1);
    return error;
}

#define EXPORTED extern "C" __attribute__((visibility("default")))

EXPORTED A_Err PluginEntry(SPBasicSuite* given, A_long, A_long, AEGP_PluginID id,
                           AEGP_GlobalRefcon*) {
    basic = given;
    plugin_id = id;
    const A_Err error = register_all();
    return error ? error : plugin().on_entry();
}

// The last line of a module.
#define PLUGIN_IS(Type)                                                                            \
    Plugin& plugin() {                                                                             \
        static Type it;                                                                            \
        return it;                                                                                 \
    }
