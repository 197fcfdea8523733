// The host's plain types: numbers, times, points, handles, and the codes that its calls take.
//
// THE LAYOUT IS OURS. These headers declare the host's interface as far as this plug-in uses it,
// with the host's own names. The order of a suite's functions and the layout of its structs are
// ours and match minihost/. To build against a real host, put its headers in place of these and let
// sdk/Host.h include them: no source outside sdk/ includes any other header of this folder.

#pragma once

#include <cstdint>

using A_long = std::int32_t;
using A_u_long = std::uint32_t;
using A_short = std::int16_t;
using A_u_short = std::uint16_t;
using A_char = char;
using A_u_char = unsigned char;
using A_Boolean = unsigned char;
using A_FpLong = double;

// 0 for success; any other value is an error code. Hooks return it; inside the plug-in it is thrown
// as an int.
using A_Err = std::int32_t;
constexpr A_Err A_Err_NONE = 0;
constexpr A_Err A_Err_MISSING_SUITE = 516;

// A time of value / scale seconds; the scale is never 0.
struct A_Time {
    A_long value;
    A_u_long scale;
};

struct A_LPoint {
    A_long x, y;
};

// Handles. Unless its suite says otherwise, each is valid only inside the callback in which it was
// obtained, and only as long as its object exists. Null means no object.
using AEGP_ItemH = struct _AEGP_Item*;
using AEGP_CompH = struct _AEGP_Comp*;
using AEGP_LayerH = struct _AEGP_Layer*;
using AEGP_StreamRefH = struct _AEGP_StreamRef*;
using AEGP_CollectionH = struct _AEGP_Collection*;
using AEGP_PanelH = struct _AEGP_PanelH*;

// What a plug-in passes when it registers a hook, and gets back in the hook.
using AEGP_GlobalRefcon = struct _AEGP_GlobalRefcon*;
using AEGP_CommandRefcon = struct _AEGP_CommandRefcon*;
using AEGP_UpdateMenuRefcon = struct _AEGP_UpdateMenuRefcon*;
using AEGP_DeathRefcon = struct _AEGP_DeathRefcon*;
using AEGP_IdleRefcon = struct _AEGP_IdleRefcon*;
using AEGP_CreatePanelRefcon = struct _AEGP_CreatePanelRefcon*;
using AEGP_PanelRefcon = struct _AEGP_PanelRefcon*;

// The plug-in's number among the host's; given at entry, passed to the calls that take one.
using AEGP_PluginID = A_long;

using AEGP_Command = A_long;
constexpr AEGP_Command AEGP_Command_ALL = 0;
constexpr AEGP_Command AEGP_Command_DUPLICATE = 2080; // duplicates every selected layer

using AEGP_HookPriority = A_long;
constexpr AEGP_HookPriority AEGP_HP_BeforeAE = 1;

using AEGP_MenuID = A_long;
constexpr AEGP_MenuID AEGP_Menu_FLOATERS = 8;
constexpr A_long AEGP_MENU_INSERT_AT_BOTTOM = -1;

using AEGP_WindowType = A_long;

using AEGP_ItemType = A_long;
constexpr AEGP_ItemType AEGP_ItemType_NONE = 0;
constexpr AEGP_ItemType AEGP_ItemType_COMP = 2;
constexpr AEGP_ItemType AEGP_ItemType_FOOTAGE = 4;

using AEGP_ObjectType = A_long;
constexpr AEGP_ObjectType AEGP_ObjectType_AV = 0; // footage, solid or other visual layer
constexpr AEGP_ObjectType AEGP_ObjectType_LIGHT = 1;
constexpr AEGP_ObjectType AEGP_ObjectType_CAMERA = 2;
constexpr AEGP_ObjectType AEGP_ObjectType_TEXT = 3;
constexpr AEGP_ObjectType AEGP_ObjectType_SHAPE = 4; // drawn shapes, without a source

using AEGP_LTimeMode = A_short;
constexpr AEGP_LTimeMode AEGP_LTimeMode_CompTime = 1;

using AEGP_LayerStream = A_long;
constexpr AEGP_LayerStream AEGP_LayerStream_ANCHORPOINT = 0; // a camera's point of interest
constexpr AEGP_LayerStream AEGP_LayerStream_POSITION = 1;
constexpr AEGP_LayerStream AEGP_LayerStream_SCALE = 2;
constexpr AEGP_LayerStream AEGP_LayerStream_ROTATE_Z = 3;
constexpr AEGP_LayerStream AEGP_LayerStream_ROTATE_X = 8;
constexpr AEGP_LayerStream AEGP_LayerStream_ROTATE_Y = 9;
constexpr AEGP_LayerStream AEGP_LayerStream_ORIENTATION = 10;

using AEGP_KeyframeIndex = A_long;

// The size of the buffer for a layer's name, UTF-8 with its terminating zero. A longer name is cut
// before the character that no longer fits.
constexpr int AEGP_MAX_LAYER_NAME_SIZE = 256;

struct AEGP_ThreeDVal {
    A_FpLong x, y, z;
};
struct AEGP_FourDVal {
    A_FpLong x, y, z, w;
};

// The value of a stream. A rotation has one number; position, scale and orientation have three. The
// host leaves unused numbers as they were.
union AEGP_StreamVal {
    A_FpLong one_d;
    AEGP_ThreeDVal three_d;
    AEGP_FourDVal four_d;
};

struct AEGP_StreamValue {
    AEGP_StreamRefH streamH;
    AEGP_StreamVal val;
};

// An item of a collection. Only layers have a handle here.
using AEGP_CollectionItemType = A_long;
constexpr AEGP_CollectionItemType AEGP_CollectionItemType_NONE = 0;
constexpr AEGP_CollectionItemType AEGP_CollectionItemType_LAYER = 1;

struct AEGP_CollectionItem {
    AEGP_CollectionItemType type;
    AEGP_LayerH layerH;
};

// A colour of the host's interface, each part from 0 to 65535.
struct PF_App_Color {
    A_u_short red, green, blue;
};
using PF_App_ColorType = A_short;

// The native view that the host provides for a panel.
#ifdef __OBJC__
@class NSView;
#else
class NSView;
#endif
