// The list and entry suites: check the handles, then call the records.

#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/iADMList.h"
#include "ADMLibrary/ADMItemSuites.h"

using adm::handle;
using adm::record;

namespace {

constexpr const char* kListSuite = "ADMListSuite4";
constexpr const char* kEntrySuite = "ADMEntrySuite6";

} // namespace

_Opaque_ADMEntry* ADMListSuite4::InsertEntry(_Opaque_ADMList* list, int index) {
    return list ? handle(record(list)->InsertEntry(index)) : nullptr;
}

_Opaque_ADMEntry* ADMListSuite4::IndexEntry(_Opaque_ADMList* list, int index) {
    return list ? handle(record(list)->IndexEntry(index)) : nullptr;
}

_Opaque_ADMEntry* ADMListSuite4::GetActiveEntry(_Opaque_ADMList* list) {
    return list ? handle(record(list)->GetActiveEntry()) : nullptr;
}

int ADMListSuite4::NumberOfEntries(_Opaque_ADMList* list) {
    return list ? record(list)->NumberOfEntries() : 0;
}

void ADMListSuite4::RemoveEntry(_Opaque_ADMList* list, int index) {
    if (list) record(list)->RemoveEntry(index);
}

void ADMListSuite4::SetUserData(_Opaque_ADMList*, void*) {
    adm::not_provided(kListSuite, "SetUserData");
}

void ADMListSuite4::SetTrackProc(_Opaque_ADMList*, ADMEntryTrackProc) {
    adm::not_provided(kListSuite, "SetTrackProc");
}

void ADMListSuite4::SetNotifyProc(_Opaque_ADMList*, ADMEntryNotifyProc) {
    adm::not_provided(kListSuite, "SetNotifyProc");
}

void ADMListSuite4::SetDrawProc(_Opaque_ADMList*, ADMEntryDrawProc) {
    adm::not_provided(kListSuite, "SetDrawProc");
}

void ADMListSuite4::SetDestroyProc(_Opaque_ADMList*, ADMEntryDestroyProc) {
    adm::not_provided(kListSuite, "SetDestroyProc");
}

int ADMEntrySuite6::GetIndex(_Opaque_ADMEntry* entry) {
    return entry ? record(entry)->i : 0;
}

_Opaque_ADMList* ADMEntrySuite6::GetList(_Opaque_ADMEntry* entry) {
    return entry ? handle(record(entry)->list) : nullptr;
}

void ADMEntrySuite6::SetText(_Opaque_ADMEntry* entry, const char* text) {
    if (entry) record(entry)->SetText(text);
}

void ADMEntrySuite6::Select(_Opaque_ADMEntry* entry, unsigned char select) {
    if (entry && select) record(entry)->Select();
}

_Opaque_ADMEntry* ADMEntrySuite6::Create(_Opaque_ADMList*) {
    adm::not_provided(kEntrySuite, "Create");
}

void ADMEntrySuite6::Destroy(_Opaque_ADMEntry*) {
    adm::not_provided(kEntrySuite, "Destroy");
}

void ADMEntrySuite6::SetUserData(_Opaque_ADMEntry*, void*) {
    adm::not_provided(kEntrySuite, "SetUserData");
}

void* ADMEntrySuite6::GetUserData(_Opaque_ADMEntry*) {
    adm::not_provided(kEntrySuite, "GetUserData");
}

unsigned char ADMEntrySuite6::DefaultTrack(_Opaque_ADMEntry*, _Opaque_ADMTracker*) {
    adm::not_provided(kEntrySuite, "DefaultTrack");
}

void ADMEntrySuite6::DefaultNotify(_Opaque_ADMEntry*, _Opaque_ADMNotifier*) {
    adm::not_provided(kEntrySuite, "DefaultNotify");
}

void ADMEntrySuite6::DefaultDraw(_Opaque_ADMEntry*, _Opaque_ADMDrawer*) {
    adm::not_provided(kEntrySuite, "DefaultDraw");
}

ADMListSuite4 g_ADMListSuite;
ADMEntrySuite6 g_ADMEntrySuite;
ADMListSuite4* sADMList = &g_ADMListSuite;
ADMEntrySuite6* sADMEntry = &g_ADMEntrySuite;
