// The host's suites: tables of functions, acquired by name and version from the SPBasicSuite.
//
// Unless a function says otherwise: it may be called from any hook, on the host's main thread only;
// it returns 0 on success and otherwise the host's error code, with its results untouched; texts
// and structs that are passed in stay the caller's and are not kept.

#pragma once

#include "sdk/HostTypes.h"

// The one suite that the host passes in rather than the plug-in acquires.
struct SPBasicSuite {
    // Counts one use of the suite and returns its table, which stays valid until it is released. A
    // missing suite is an error. Every success needs one ReleaseSuite.
    A_Err (*AcquireSuite)(const char* name, A_long version, const void** suite);
    // Ends one use; an error if the suite was not acquired.
    A_Err (*ReleaseSuite)(const char* name, A_long version);
};

// The types of the hooks. A hook never throws; it returns 0 or an error code for the host.

// A menu command was chosen. The hook sets `handled` if it has dealt with it.
using AEGP_CommandHook = A_Err (*)(AEGP_GlobalRefcon, AEGP_CommandRefcon, AEGP_Command,
                                   AEGP_HookPriority, A_Boolean already_handled,
                                   A_Boolean* handled);
// A menu is about to open: the time to enable and check commands.
using AEGP_UpdateMenuHook = A_Err (*)(AEGP_GlobalRefcon, AEGP_UpdateMenuRefcon, AEGP_WindowType);
// The last call before the module is unloaded.
using AEGP_DeathHook = A_Err (*)(AEGP_GlobalRefcon, AEGP_DeathRefcon);
// The host has nothing to do. `max_sleep` (60ths of a second) may be lowered.
using AEGP_IdleHook = A_Err (*)(AEGP_GlobalRefcon, AEGP_IdleRefcon, A_long* max_sleep);

constexpr const char* kAEGPRegisterSuite = "AEGP Register Suite";
constexpr A_long kAEGPRegisterSuiteVersion = 6;
// Only callable from the entry function. The host keeps a refcon and passes it to the hook unread.
struct AEGP_RegisterSuite6 {
    // For one command, or for all of them with AEGP_Command_ALL.
    A_Err (*AEGP_RegisterCommandHook)(AEGP_PluginID, AEGP_HookPriority, AEGP_Command,
                                      AEGP_CommandHook, AEGP_CommandRefcon);
    A_Err (*AEGP_RegisterUpdateMenuHook)(AEGP_PluginID, AEGP_UpdateMenuHook, AEGP_UpdateMenuRefcon);
    A_Err (*AEGP_RegisterDeathHook)(AEGP_PluginID, AEGP_DeathHook, AEGP_DeathRefcon);
    A_Err (*AEGP_RegisterIdleHook)(AEGP_PluginID, AEGP_IdleHook, AEGP_IdleRefcon);
};

constexpr const char* kAEGPCommandSuite = "AEGP Command Suite";
constexpr A_long kAEGPCommandSuiteVersion = 1;
struct AEGP_CommandSuite1 {
    // A number that no other command has, never 0.
    A_Err (*AEGP_GetUniqueCommand)(AEGP_Command* unique_command);
    // Only from the entry function. The name is copied.
    A_Err (*AEGP_InsertMenuCommand)(AEGP_Command, const A_char* name, AEGP_MenuID,
                                    A_long after_item);
    // Enabling, disabling and checking hold until the next menu update.
    A_Err (*AEGP_EnableCommand)(AEGP_Command);
    A_Err (*AEGP_DisableCommand)(AEGP_Command);
    A_Err (*AEGP_CheckMarkMenuCommand)(AEGP_Command, A_Boolean check);
    // Runs a command as if the user had chosen it.
    A_Err (*AEGP_DoCommand)(AEGP_Command);
};

constexpr const char* kAEGPUtilitySuite = "AEGP Utility Suite";
constexpr A_long kAEGPUtilitySuiteVersion = 3;
struct AEGP_UtilitySuite3 {
    // Shows a text to the user and waits until it is dismissed.
    A_Err (*AEGP_ReportInfo)(AEGP_PluginID, const A_char* text);
    // All changes until the matching end are one undo step with that name, which is copied.
    A_Err (*AEGP_StartUndoGroup)(const A_char* name);
    A_Err (*AEGP_EndUndoGroup)();
};

constexpr const char* kAEGPCollectionSuite = "AEGP Collection Suite";
constexpr A_long kAEGPCollectionSuiteVersion = 1;
struct AEGP_CollectionSuite1 {
    // An empty collection, the caller's to dispose of.
    A_Err (*AEGP_NewCollection)(AEGP_PluginID, AEGP_CollectionH*);
    A_Err (*AEGP_DisposeCollection)(AEGP_CollectionH);
    A_Err (*AEGP_GetCollectionNumItems)(AEGP_CollectionH, A_u_long* count);
    // `index` from 0 to the number of items - 1.
    A_Err (*AEGP_GetCollectionItemByIndex)(AEGP_CollectionH, A_u_long index, AEGP_CollectionItem*);
    // Appends a copy of the item.
    A_Err (*AEGP_CollectionPushBack)(AEGP_CollectionH, const AEGP_CollectionItem*);
};

constexpr const char* kAEGPItemSuite = "AEGP Item Suite";
constexpr A_long kAEGPItemSuiteVersion = 3;
struct AEGP_ItemSuite3 {
    // The item that the user works in; null with success when there is none.
    A_Err (*AEGP_GetActiveItem)(AEGP_ItemH*);
    A_Err (*AEGP_GetItemType)(AEGP_ItemH, AEGP_ItemType*);
    // In pixels.
    A_Err (*AEGP_GetItemDimensions)(AEGP_ItemH, A_long* width, A_long* height);
};

constexpr const char* kAEGPCompSuite = "AEGP Comp Suite";
constexpr A_long kAEGPCompSuiteVersion = 4;
struct AEGP_CompSuite4 {
    // Null with success when the item is not a composition.
    A_Err (*AEGP_GetCompFromItem)(AEGP_ItemH, AEGP_CompH*);
    // The selection, in a new collection that is the caller's to dispose of.
    A_Err (*AEGP_GetNewCollectionFromCompSelection)(AEGP_PluginID, AEGP_CompH, AEGP_CollectionH*);
    // Selects the items of the collection and nothing else; the collection stays the caller's.
    A_Err (*AEGP_SetSelection)(AEGP_CompH, AEGP_CollectionH);
};

constexpr const char* kAEGPLayerSuite = "AEGP Layer Suite";
constexpr A_long kAEGPLayerSuiteVersion = 5;
struct AEGP_LayerSuite5 {
    A_Err (*AEGP_GetCompNumLayers)(AEGP_CompH, A_long* count);
    // Index 0 is the top layer.
    A_Err (*AEGP_GetCompLayerByIndex)(AEGP_CompH, A_long index, AEGP_LayerH*);
    A_Err (*AEGP_GetLayerIndex)(AEGP_LayerH, A_long* index);
    // Null with success for a layer without a source (text, shape, camera, light). The item belongs
    // to the host.
    A_Err (*AEGP_GetLayerSourceItem)(AEGP_LayerH, AEGP_ItemH*);
    // Either buffer may be null; each has room for AEGP_MAX_LAYER_NAME_SIZE bytes.
    A_Err (*AEGP_GetLayerName)(AEGP_LayerH, A_char* layer_name, A_char* source_name);
    // The composition's current time as the layer sees it.
    A_Err (*AEGP_GetLayerCurrentTime)(AEGP_LayerH, AEGP_LTimeMode, A_Time*);
    // Where in the composition the layer's own time 0 lies.
    A_Err (*AEGP_GetLayerOffset)(AEGP_LayerH, A_Time*);
    // Moves the layer to this index.
    A_Err (*AEGP_ReorderLayer)(AEGP_LayerH, A_long index);
    A_Err (*AEGP_GetLayerObjectType)(AEGP_LayerH, AEGP_ObjectType*);
    A_Err (*AEGP_IsLayer3D)(AEGP_LayerH, A_Boolean* is_3d);
};

// A host that has it measures text layers; none of its functions is called.
constexpr A_long kAEGPLayerSuite8Version = 8;
struct AEGP_LayerSuite8 {
    void* reserved;
};

constexpr A_long kAEGPLayerSuite10Version = 10;
struct AEGP_LayerSuite10 {
    // The duplicate stands right above its original.
    A_Err (*AEGP_DuplicateLayer)(AEGP_LayerH original, AEGP_LayerH* duplicate);
};

constexpr const char* kAEGPStreamSuite = "AEGP Stream Suite";
constexpr A_long kAEGPStreamSuiteVersion = 4;
struct AEGP_StreamSuite4 {
    // A reference that is the caller's to dispose of; an error if the layer has no such stream.
    A_Err (*AEGP_GetNewLayerStream)(AEGP_PluginID, AEGP_LayerH, AEGP_LayerStream, AEGP_StreamRefH*);
    A_Err (*AEGP_DisposeStream)(AEGP_StreamRefH);
    // Sets the stream's value or, if the stream has keys, the key at the current time.
    A_Err (*AEGP_SetStreamValue)(AEGP_PluginID, AEGP_StreamRefH, AEGP_StreamValue*);
    // Reads without a reference. With `pre_expression` 0, the value after expressions. Writes only
    // as many numbers as the stream has.
    A_Err (*AEGP_GetLayerStreamValue)(AEGP_LayerH, AEGP_LayerStream, AEGP_LTimeMode, const A_Time*,
                                      A_Boolean pre_expression, AEGP_StreamVal*);
};

constexpr const char* kAEGPKeyframeSuite = "AEGP Keyframe Suite";
constexpr A_long kAEGPKeyframeSuiteVersion = 1;
struct AEGP_KeyframeSuite1 {
    // Adds a key with the value that the stream has at that time, and returns its index.
    A_Err (*AEGP_InsertKeyframe)(AEGP_StreamRefH, AEGP_LTimeMode, const A_Time*,
                                 AEGP_KeyframeIndex*);
};

// What the host asks a panel; each entry may be null.
struct AEGP_PanelFunctions1 {
    // Writes the panel's preferred sizes (at most 5) and their number.
    A_Err (*GetSnapSizes)(AEGP_PanelRefcon, A_LPoint* sizes, A_long* count);
    A_Err (*PopulateFlyout)(AEGP_PanelRefcon, void* items, A_long* count);
    A_Err (*DoFlyoutCommand)(AEGP_PanelRefcon, AEGP_Command);
};

// The host makes a panel: the hook fills `container` with views, fills in the function table and
// stores the refcon for the panel's calls. View and panel stay the host's.
using AEGP_CreatePanelHook = A_Err (*)(AEGP_GlobalRefcon, AEGP_CreatePanelRefcon, NSView* container,
                                       AEGP_PanelH, AEGP_PanelFunctions1*, AEGP_PanelRefcon*);

constexpr const char* kAEGPPanelSuite = "AEGP Workspace Panel Suite";
constexpr A_long kAEGPPanelSuiteVersion = 1;
struct AEGP_PanelSuite1 {
    // Only from the entry function. The hook makes the panels with this match name from then on.
    A_Err (*AEGP_RegisterCreatePanelHook)(AEGP_PluginID, const A_char* match_name,
                                          AEGP_CreatePanelHook, AEGP_CreatePanelRefcon,
                                          A_Boolean paint_background);
    // Opens the panel with this match name, or closes it when it is open.
    A_Err (*AEGP_ToggleVisibility)(const A_char* match_name);
    A_Err (*AEGP_SetTitle)(AEGP_PanelH, const A_char* title);
};

constexpr const char* kPFAppSuite = "PF AE App Suite";
constexpr A_long kPFAppSuiteVersion = 6;
struct PFAppSuite6 {
    void* reserved;
    // The interface colour of a selector. It may change: ask at every drawing.
    A_Err (*PF_AppGetColor)(PF_App_ColorType, PF_App_Color*);
};
