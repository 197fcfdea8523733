// The types of the toolkit: handles, points and rectangles, type strings, procedures.
//
// All coordinates are relative to the dialog: origin at the top left, y downwards, in points. Call
// the toolkit on the main thread only.

#pragma once

#include "sdk/Host.h"

#include <cstdint>

// Handles: addresses of the toolkit's records, valid as long as the comments say.
struct _Opaque_ADMDialog;        // from Create or CreatePanel until Destroy
struct _Opaque_ADMItem;          // as long as its dialog
struct _Opaque_ADMList;          // as long as its item
struct _Opaque_ADMEntry;         // as long as its list, see ADMListSuite4
struct _Opaque_ADMNotifier;      // during the notify procedure
struct _Opaque_ADMDrawer;        // during the draw procedure; an image's, as long as the image
struct _Opaque_ADMImage;         // from CreateOffscreen until Destroy
struct _Opaque_ADMTracker;       // nothing makes one
struct _Opaque_ADMListEntry;     // nothing makes one
struct _Opaque_ADMHierarchyList; // nothing makes one

struct SPPlugin; // not used by the toolkit

struct Point {
    std::int16_t v; // vertical, first
    std::int16_t h;
};

struct Rect {
    std::int16_t top, left, bottom, right;
};

using ADMDialogStyle = int; // the kind of window, see ADMDialogSuite9::Create
using ADMFont = int;        // see ADMItemSuite10::SetFont
using ADMUnits = int;       // accepted and ignored
using ADMFrameStyle = int;  // accepted and ignored
using ADMColor = int;       // see ADMDrawerSuite5::SetADMColor

// The types of items. The toolkit keeps the pointer.
constexpr const char* kADMTextPushButtonType = "ADM Text Push Button Type";
constexpr const char* kADMTextCheckBoxType = "ADM Text Check Box Type";
constexpr const char* kADMTextRadioButtonType = "ADM Text Radio Button Type";
constexpr const char* kADMTextEditType = "ADM Text Edit Type";
constexpr const char* kADMTextStaticType = "ADM Text Static Type";
constexpr const char* kADMFrameType = "ADM Frame Type";
constexpr const char* kADMPopupListType = "ADM Popup List Type";
constexpr const char* kADMPopupMenuType = "ADM Popup Menu Type";
constexpr const char* kADMSliderType = "ADM Slider Type";
constexpr const char* kADMPictureStaticType = "ADM Picture Static Type";
constexpr const char* kADMPicturePushButtonType = "ADM Picture Push Button Type";

// The only notification: the user clicked, picked, dragged or ended editing.
constexpr const char* kADMUserChangedNotifier = "ADM User Changed Notifier";

// An init procedure returns 0, or an error code that makes the creation fail.
using ADMDialogInitProc = int (*)(_Opaque_ADMDialog*);
using ADMDialogDrawProc = void (*)(_Opaque_ADMDialog*, _Opaque_ADMDrawer*);
using ADMDialogTrackProc = unsigned char (*)(_Opaque_ADMDialog*, _Opaque_ADMTracker*);
using ADMDialogNotifyProc = void (*)(_Opaque_ADMDialog*, _Opaque_ADMNotifier*);
using ADMDialogDestroyProc = void (*)(_Opaque_ADMDialog*);

using ADMItemInitProc = int (*)(_Opaque_ADMItem*);
using ADMItemDrawProc = void (*)(_Opaque_ADMItem*, _Opaque_ADMDrawer*);
using ADMItemTrackProc = unsigned char (*)(_Opaque_ADMItem*, _Opaque_ADMTracker*);
using ADMItemNotifyProc = void (*)(_Opaque_ADMItem*, _Opaque_ADMNotifier*);
using ADMItemDestroyProc = void (*)(_Opaque_ADMItem*);
// Both return non-zero on success.
using ADMItemFloatToTextProc = unsigned char (*)(_Opaque_ADMItem*, float value, char* text,
                                                 int max_length);
using ADMItemTextToFloatProc = unsigned char (*)(_Opaque_ADMItem*, const char* text, float* value);

using ADMEntryDrawProc = void (*)(_Opaque_ADMEntry*, _Opaque_ADMDrawer*);
using ADMEntryTrackProc = unsigned char (*)(_Opaque_ADMEntry*, _Opaque_ADMTracker*);
using ADMEntryNotifyProc = void (*)(_Opaque_ADMEntry*, _Opaque_ADMNotifier*);
using ADMEntryDestroyProc = void (*)(_Opaque_ADMEntry*);

using ADMListEntryDrawProc = void (*)(_Opaque_ADMListEntry*, _Opaque_ADMDrawer*);
using ADMListEntryTrackProc = unsigned char (*)(_Opaque_ADMListEntry*, _Opaque_ADMTracker*);
using ADMListEntryNotifyProc = void (*)(_Opaque_ADMListEntry*, _Opaque_ADMNotifier*);
using ADMListEntryDestroyProc = void (*)(_Opaque_ADMListEntry*);
