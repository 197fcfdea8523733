#include "ADMLibrary/ADMUnprovidedSuites.h"

#include "ADMLibrary/ADM_Mac64/Assertions.h"

namespace {

constexpr const char* kListEntrySuite = "ADMListEntrySuite4";
constexpr const char* kHierarchyListSuite = "ADMHierarchyListSuite5";

} // namespace

void ADMListEntrySuite4::SetUserData(_Opaque_ADMListEntry*, void*) {
    adm::not_provided(kListEntrySuite, "SetUserData");
}

void* ADMListEntrySuite4::GetUserData(_Opaque_ADMListEntry*) {
    adm::not_provided(kListEntrySuite, "GetUserData");
}

_Opaque_ADMHierarchyList* ADMListEntrySuite4::GetList(_Opaque_ADMListEntry*) {
    adm::not_provided(kListEntrySuite, "GetList");
}

void ADMListEntrySuite4::Destroy(_Opaque_ADMListEntry*) {
    adm::not_provided(kListEntrySuite, "Destroy");
}

unsigned char ADMListEntrySuite4::DefaultTrack(_Opaque_ADMListEntry*, _Opaque_ADMTracker*) {
    adm::not_provided(kListEntrySuite, "DefaultTrack");
}

void ADMListEntrySuite4::DefaultNotify(_Opaque_ADMListEntry*, _Opaque_ADMNotifier*) {
    adm::not_provided(kListEntrySuite, "DefaultNotify");
}

void ADMListEntrySuite4::DefaultDraw(_Opaque_ADMListEntry*, _Opaque_ADMDrawer*) {
    adm::not_provided(kListEntrySuite, "DefaultDraw");
}

_Opaque_ADMListEntry* ADMListEntrySuite4::Create(_Opaque_ADMHierarchyList*) {
    adm::not_provided(kListEntrySuite, "Create");
}

void ADMHierarchyListSuite5::SetUserData(_Opaque_ADMHierarchyList*, void*) {
    adm::not_provided(kHierarchyListSuite, "SetUserData");
}

void ADMHierarchyListSuite5::SetTrackProc(_Opaque_ADMHierarchyList*, ADMListEntryTrackProc) {
    adm::not_provided(kHierarchyListSuite, "SetTrackProc");
}

void ADMHierarchyListSuite5::SetNotifyProc(_Opaque_ADMHierarchyList*, ADMListEntryNotifyProc) {
    adm::not_provided(kHierarchyListSuite, "SetNotifyProc");
}

void ADMHierarchyListSuite5::SetDrawProc(_Opaque_ADMHierarchyList*, ADMListEntryDrawProc) {
    adm::not_provided(kHierarchyListSuite, "SetDrawProc");
}

void ADMHierarchyListSuite5::SetDestroyProc(_Opaque_ADMHierarchyList*, ADMListEntryDestroyProc) {
    adm::not_provided(kHierarchyListSuite, "SetDestroyProc");
}

ADMTrackerSuite1 g_ADMTrackerSuite;
ADMListEntrySuite4 g_ADMListEntrySuite;
ADMHierarchyListSuite5 g_ADMHierarchyListSuite;
ADMTrackerSuite1* sADMTracker = &g_ADMTrackerSuite;
ADMListEntrySuite4* sADMListEntry = &g_ADMListEntrySuite;
ADMHierarchyListSuite5* sADMHierarchyList = &g_ADMHierarchyListSuite;
