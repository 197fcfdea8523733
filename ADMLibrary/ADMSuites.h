// The suites for screens, dialogs and notifiers.
//
// A suite is a struct of static functions; a call through its pointer, sADMDialog->Show(...), binds
// statically. With a null handle a function does nothing and returns 0, false or null. A function
// marked "stops" is not provided: it reports that on standard error and aborts.

#pragma once

#include "ADMLibrary/ADMTypes.h"

struct ADMBasicSuite8 {
    // The main screen without menu bar and Dock, in the platform's screen coordinates (y upwards,
    // `top` is the lower edge), if `where` lies in it; false otherwise, with `out` untouched.
    // Neither pointer may be null.
    static bool GetScreenDimensions(const Point* where, Rect* out);
};

struct ADMDialogSuite9 {
    // Makes a dialog with a hidden window of its own, then runs `init` with it. Null if there is no
    // window or `init` fails. Styles 0 to 3, 7, 8, 11, 13, 14: titled; 4, 5, 10, 15: titled and
    // resizable; 6, 9: without border; any other stops. `name` is cut to 255 bytes.
    static _Opaque_ADMDialog* Create(SPPlugin* plugin, const char* name, int id,
                                     ADMDialogStyle style, ADMDialogInitProc init, void* userData,
                                     int options);
    // Makes a dialog inside `hostView`, fills in the host's function table and its `refcon`, then
    // runs `init`. Null if `init` fails.
    static _Opaque_ADMDialog* CreatePanel(SPPlugin* plugin, const char* name, int id,
                                          ADMDialogInitProc init, void* userData,
                                          AEGP_PanelSuite1* panelSuite, _AEGP_PanelH* panelH,
                                          NSView* hostView, AEGP_PanelFunctions1* panelFunctions,
                                          _AEGP_PanelRefcon** refcon);
    static int Modal(SPPlugin*, const char*, int, ADMDialogStyle, ADMDialogInitProc, void*,
                     int); // stops
    // Calls the destroy procedure while all items still exist, then frees the dialog with them.
    // Inside that procedure it does nothing.
    static void Destroy(_Opaque_ADMDialog*);

    static void SetDrawProc(_Opaque_ADMDialog*, ADMDialogDrawProc);   // never called
    static void SetTrackProc(_Opaque_ADMDialog*, ADMDialogTrackProc); // never called
    static void SetNotifyProc(_Opaque_ADMDialog*,
                              ADMDialogNotifyProc); // for items without their own
    static void SetDestroyProc(_Opaque_ADMDialog*, ADMDialogDestroyProc);
    static void SetUserData(_Opaque_ADMDialog*, void*);
    static void* GetUserData(_Opaque_ADMDialog*);

    // Marks the notifier as handled by default.
    static void DefaultNotify(_Opaque_ADMDialog*, _Opaque_ADMNotifier*);
    static void DefaultDraw(_Opaque_ADMDialog*, _Opaque_ADMDrawer*);            // stops
    static unsigned char DefaultTrack(_Opaque_ADMDialog*, _Opaque_ADMTracker*); // stops

    // The first item made with this id, or null.
    static _Opaque_ADMItem* GetItem(_Opaque_ADMDialog*, int id);
    // The item made after `item`, an item of this dialog; null after the last.
    static _Opaque_ADMItem* GetNextItem(_Opaque_ADMDialog*, _Opaque_ADMItem* item);

    // The title of the window (Mac Roman) or of the host's panel (bytes passed on unchanged).
    static void SetText(_Opaque_ADMDialog*, const char* text);
    // Brings the window to the front or sends it behind the others. The host shows panels.
    static void Show(_Opaque_ADMDialog*, unsigned char show);
    // Whether the dialog's own window, or the one that contains its panel, is visible.
    static bool IsVisible(_Opaque_ADMDialog*);
    // Whether the dialog's own window is visible.
    static bool IsEnabled(_Opaque_ADMDialog*);

    // A window's frame in screen coordinates; a panel's rectangle as it was last set.
    static void GetBoundsRect(_Opaque_ADMDialog*, Rect* out);
    static void SetBoundsRect(_Opaque_ADMDialog*, const Rect* r);
    // Relative to the present top left: {0, 0, height, width} keeps the place and sets the size.
    static void SetLocalRect(_Opaque_ADMDialog*, const Rect* r);
};

struct ADMNotifierSuite2 {
    static _Opaque_ADMItem* GetItem(_Opaque_ADMNotifier*);
    static bool IsNotifierType(_Opaque_ADMNotifier*, const char* type);
};

namespace adm {

// The item made first, or null: the start of a walk with GetNextItem.
_Opaque_ADMItem* first_item(_Opaque_ADMDialog*);
// A dialog with this user data that is not being destroyed, or null.
_Opaque_ADMDialog* dialog_of(const void* userData);

} // namespace adm

extern ADMBasicSuite8 g_ADMBasicSuite;
extern ADMDialogSuite9 g_ADMDialogSuite;
extern ADMNotifierSuite2 g_ADMNotifierSuite;
extern ADMBasicSuite8* sADMBasic;
extern ADMDialogSuite9* sADMDialog;
extern ADMNotifierSuite2* sADMNotifier;
