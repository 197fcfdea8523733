// Suites that exist only so that code written against them builds: every operation stops.

#pragma once

#include "ADMLibrary/ADMTypes.h"

struct ADMTrackerSuite1 {}; // without operations

struct ADMListEntrySuite4 {
    static void SetUserData(_Opaque_ADMListEntry*, void*);
    static void* GetUserData(_Opaque_ADMListEntry*);
    static _Opaque_ADMHierarchyList* GetList(_Opaque_ADMListEntry*);
    static void Destroy(_Opaque_ADMListEntry*);
    static unsigned char DefaultTrack(_Opaque_ADMListEntry*, _Opaque_ADMTracker*);
    static void DefaultNotify(_Opaque_ADMListEntry*, _Opaque_ADMNotifier*);
    static void DefaultDraw(_Opaque_ADMListEntry*, _Opaque_ADMDrawer*);
    static _Opaque_ADMListEntry* Create(_Opaque_ADMHierarchyList*);
};

struct ADMHierarchyListSuite5 {
    static void SetUserData(_Opaque_ADMHierarchyList*, void*);
    static void SetTrackProc(_Opaque_ADMHierarchyList*, ADMListEntryTrackProc);
    static void SetNotifyProc(_Opaque_ADMHierarchyList*, ADMListEntryNotifyProc);
    static void SetDrawProc(_Opaque_ADMHierarchyList*, ADMListEntryDrawProc);
    static void SetDestroyProc(_Opaque_ADMHierarchyList*, ADMListEntryDestroyProc);
};

extern ADMTrackerSuite1 g_ADMTrackerSuite;
extern ADMListEntrySuite4 g_ADMListEntrySuite;
extern ADMHierarchyListSuite5 g_ADMHierarchyListSuite;
extern ADMTrackerSuite1* sADMTracker;
extern ADMListEntrySuite4* sADMListEntry;
extern ADMHierarchyListSuite5* sADMHierarchyList;
