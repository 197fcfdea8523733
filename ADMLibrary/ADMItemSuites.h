// The suites for a dialog's items and for the entries of its pop-up lists.

#pragma once

#include "ADMLibrary/ADMTypes.h"

struct ADMItemSuite10 {
    // Appends an item to the dialog, then runs `init` with it. Null if the dialog already has 100
    // items (then no item is made) or if `init` fails (the item then stays in the dialog). Keeps
    // the pointer `type`; `r` is in the dialog's coordinates.
    static _Opaque_ADMItem* Create(_Opaque_ADMDialog*, int id, const char* type, const Rect* r,
                                   ADMItemInitProc init, void* userData, int options);
    static void Destroy(_Opaque_ADMItem*); // does nothing: items live as long as their dialog

    static void SetDrawProc(_Opaque_ADMItem*, ADMItemDrawProc);   // of pictures
    static void SetTrackProc(_Opaque_ADMItem*, ADMItemTrackProc); // never called
    // Receives the user's actions instead of the dialog's procedure.
    static void SetNotifyProc(_Opaque_ADMItem*, ADMItemNotifyProc);
    static void SetDestroyProc(_Opaque_ADMItem*, ADMItemDestroyProc);         // never called
    static void SetTextToFloatProc(_Opaque_ADMItem*, ADMItemTextToFloatProc); // for GetFloatValue
    static void SetFloatToTextProc(_Opaque_ADMItem*, ADMItemFloatToTextProc); // never called
    static void SetUserData(_Opaque_ADMItem*, void*);
    static void* GetUserData(_Opaque_ADMItem*);
    static int GetID(_Opaque_ADMItem*);

    static void SetItemStyle(_Opaque_ADMItem*, int style);         // accepted and ignored
    static void SetUnits(_Opaque_ADMItem*, ADMUnits units);        // accepted and ignored
    static void ShowUnits(_Opaque_ADMItem*, unsigned char showIt); // accepted and ignored

    // These two mark the drawer (not null) or the notifier as handled by default.
    static void DefaultDraw(_Opaque_ADMItem*, _Opaque_ADMDrawer*);
    static void DefaultNotify(_Opaque_ADMItem*, _Opaque_ADMNotifier*);
    static unsigned char DefaultTrack(_Opaque_ADMItem*, _Opaque_ADMTracker*); // stops
    // The number that `text` starts with; false, with `value` untouched, if there is none.
    static bool DefaultTextToFloat(_Opaque_ADMItem*, const char* text, float* value);
    // Up to six decimals, without trailing zeros. `text` has room for the whole number (48 bytes
    // are always enough); `maxLength` is ignored. Always true.
    static bool DefaultFloatToText(_Opaque_ADMItem*, float value, char* text, int maxLength);

    // The number of an edit field and its range. Setting stores and shows the number unchecked.
    static void SetFloatValue(_Opaque_ADMItem*, float value);
    static void SetMinFloatValue(_Opaque_ADMItem*, float value);
    static void SetMaxFloatValue(_Opaque_ADMItem*, float value);
    // The shown text as a number, clamped to the range; the last number if it is not a number.
    static float GetFloatValue(_Opaque_ADMItem*);
    static int GetIntValue(_Opaque_ADMItem*);

    static bool GetBooleanValue(_Opaque_ADMItem*);
    // Turning a radio button on turns the others of its group off: the run of radio buttons with
    // consecutive ids around it.
    static void SetBooleanValue(_Opaque_ADMItem*, unsigned char value);

    // Mac Roman. The first non-empty text of a check box, radio button or frame makes its label.
    static void SetText(_Opaque_ADMItem*, const char* text);
    // 3 and 4: the small system font; 5 to 8: bold; 9 to 12: Courier; others change nothing.
    static void SetFont(_Opaque_ADMItem*, ADMFont font);
    static void Enable(_Opaque_ADMItem*, unsigned char enable);
    static bool IsEnabled(_Opaque_ADMItem*);
    static void Show(_Opaque_ADMItem*, unsigned char show);

    // The rectangle of the item with its label.
    static void GetBoundsRect(_Opaque_ADMItem*, Rect* out);
    // Relative to the item's present top left.
    static void SetLocalRect(_Opaque_ADMItem*, const Rect* r);
    // The size that its texts need (v = height, h = width); without text, the present size.
    static void GetBestSize(_Opaque_ADMItem*, Point* out);

    static _Opaque_ADMList* GetList(_Opaque_ADMItem*);
};

// A list has a single entry record, which each function that returns an entry changes: an entry
// handle always means the entry returned last.
struct ADMListSuite4 {
    // Inserts an entry without a title; null if `index` is negative or beyond the end.
    static _Opaque_ADMEntry* InsertEntry(_Opaque_ADMList*, int index);
    static _Opaque_ADMEntry* IndexEntry(_Opaque_ADMList*, int index); // no check of the range
    static _Opaque_ADMEntry* GetActiveEntry(_Opaque_ADMList*);        // null if the list is empty
    static int NumberOfEntries(_Opaque_ADMList*);
    static void RemoveEntry(_Opaque_ADMList*, int index);

    static void SetUserData(_Opaque_ADMList*, void*);                  // stops
    static void SetTrackProc(_Opaque_ADMList*, ADMEntryTrackProc);     // stops
    static void SetNotifyProc(_Opaque_ADMList*, ADMEntryNotifyProc);   // stops
    static void SetDrawProc(_Opaque_ADMList*, ADMEntryDrawProc);       // stops
    static void SetDestroyProc(_Opaque_ADMList*, ADMEntryDestroyProc); // stops
};

struct ADMEntrySuite6 {
    static int GetIndex(_Opaque_ADMEntry*);
    static _Opaque_ADMList* GetList(_Opaque_ADMEntry*);
    static void SetText(_Opaque_ADMEntry*, const char* text); // UTF-8; nothing if it is not valid
    static void Select(_Opaque_ADMEntry*, unsigned char select);

    static _Opaque_ADMEntry* Create(_Opaque_ADMList*);                         // stops
    static void Destroy(_Opaque_ADMEntry*);                                    // stops
    static void SetUserData(_Opaque_ADMEntry*, void*);                         // stops
    static void* GetUserData(_Opaque_ADMEntry*);                               // stops
    static unsigned char DefaultTrack(_Opaque_ADMEntry*, _Opaque_ADMTracker*); // stops
    static void DefaultNotify(_Opaque_ADMEntry*, _Opaque_ADMNotifier*);        // stops
    static void DefaultDraw(_Opaque_ADMEntry*, _Opaque_ADMDrawer*);            // stops
};

extern ADMItemSuite10 g_ADMItemSuite;
extern ADMListSuite4 g_ADMListSuite;
extern ADMEntrySuite6 g_ADMEntrySuite;
extern ADMItemSuite10* sADMItem;
extern ADMListSuite4* sADMList;
extern ADMEntrySuite6* sADMEntry;
