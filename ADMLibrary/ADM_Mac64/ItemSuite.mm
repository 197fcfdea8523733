// The item suite: checks the handles, then calls the records.

#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/iADMDrawer.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"
#include "ADMLibrary/ADM_Mac64/iADMNotifier.h"
#include "ADMLibrary/ADM_Mac64/NumberText.h"
#include "ADMLibrary/ADMItemSuites.h"

using adm::handle;
using adm::record;

_Opaque_ADMItem* ADMItemSuite10::Create(_Opaque_ADMDialog* dialog, int id, const char* type,
                                        const Rect* r, ADMItemInitProc init, void* userData, int) {
    return handle(iADMItem::Create(record(dialog), id, type, r, init, userData));
}

void ADMItemSuite10::Destroy(_Opaque_ADMItem*) {}

void ADMItemSuite10::SetDrawProc(_Opaque_ADMItem* item, ADMItemDrawProc proc) {
    if (item) record(item)->_drawProc = proc;
}

void ADMItemSuite10::SetTrackProc(_Opaque_ADMItem* item, ADMItemTrackProc proc) {
    if (item) record(item)->_trackProc = proc;
}

void ADMItemSuite10::SetNotifyProc(_Opaque_ADMItem* item, ADMItemNotifyProc proc) {
    if (item) record(item)->_notifyProc = proc;
}

void ADMItemSuite10::SetDestroyProc(_Opaque_ADMItem* item, ADMItemDestroyProc proc) {
    if (item) record(item)->_destroyProc = proc;
}

void ADMItemSuite10::SetTextToFloatProc(_Opaque_ADMItem* item, ADMItemTextToFloatProc proc) {
    if (item) record(item)->_textToFloatProc = proc;
}

void ADMItemSuite10::SetFloatToTextProc(_Opaque_ADMItem* item, ADMItemFloatToTextProc proc) {
    if (!item) return;
    record(item)->_floatToTextProc = proc;
    record(item)->refresh_number();
}

void ADMItemSuite10::SetUserData(_Opaque_ADMItem* item, void* userData) {
    if (item) record(item)->_userData = userData;
}

void* ADMItemSuite10::GetUserData(_Opaque_ADMItem* item) {
    return item ? record(item)->_userData : nullptr;
}

int ADMItemSuite10::GetID(_Opaque_ADMItem* item) {
    return item ? record(item)->_id : 0;
}

void ADMItemSuite10::SetItemStyle(_Opaque_ADMItem*, int) {}

void ADMItemSuite10::SetUnits(_Opaque_ADMItem*, ADMUnits) {}

void ADMItemSuite10::ShowUnits(_Opaque_ADMItem*, unsigned char) {}

void ADMItemSuite10::DefaultDraw(_Opaque_ADMItem*, _Opaque_ADMDrawer* drawer) {
    record(drawer)->result = kADMHandledByDefault;
}

void ADMItemSuite10::DefaultNotify(_Opaque_ADMItem* item, _Opaque_ADMNotifier* notifier) {
    if (item && notifier) record(notifier)->result = kADMHandledByDefault;
}

unsigned char ADMItemSuite10::DefaultTrack(_Opaque_ADMItem*, _Opaque_ADMTracker*) {
    adm::not_provided("ADMItemSuite10", "DefaultTrack");
}

bool ADMItemSuite10::DefaultTextToFloat(_Opaque_ADMItem*, const char* text, float* value) {
    return adm::text_to_float(text, value);
}

bool ADMItemSuite10::DefaultFloatToText(_Opaque_ADMItem*, float value, char* text, int) {
    adm::float_to_text(value, text);
    return true;
}

void ADMItemSuite10::SetFloatValue(_Opaque_ADMItem* item, float value) {
    if (!item) return;
    record(item)->_value = value;
    record(item)->refresh_number();
}

void ADMItemSuite10::SetMinFloatValue(_Opaque_ADMItem* item, float value) {
    if (!item) return;
    record(item)->_minValue = value;
    record(item)->refresh_number();
}

void ADMItemSuite10::SetMaxFloatValue(_Opaque_ADMItem* item, float value) {
    if (!item) return;
    record(item)->_maxValue = value;
    record(item)->refresh_number();
}

float ADMItemSuite10::GetFloatValue(_Opaque_ADMItem* item) {
    return item ? record(item)->GetFloatValue() : 0.0f;
}

int ADMItemSuite10::GetIntValue(_Opaque_ADMItem* item) {
    return item ? record(item)->GetIntValue() : 0;
}

bool ADMItemSuite10::GetBooleanValue(_Opaque_ADMItem* item) {
    return item && record(item)->GetBooleanValue();
}

void ADMItemSuite10::SetBooleanValue(_Opaque_ADMItem* item, unsigned char value) {
    if (item) record(item)->SetBooleanValue(value);
}

void ADMItemSuite10::SetText(_Opaque_ADMItem* item, const char* text) {
    if (item) record(item)->SetText(text);
}

void ADMItemSuite10::SetFont(_Opaque_ADMItem* item, ADMFont font) {
    if (item) record(item)->SetFont(font);
}

void ADMItemSuite10::Enable(_Opaque_ADMItem* item, unsigned char enable) {
    if (item) record(item)->Enable(enable);
}

bool ADMItemSuite10::IsEnabled(_Opaque_ADMItem* item) {
    return item && record(item)->IsEnabled();
}

void ADMItemSuite10::Show(_Opaque_ADMItem* item, unsigned char show) {
    if (item) record(item)->Show(show);
}

void ADMItemSuite10::GetBoundsRect(_Opaque_ADMItem* item, Rect* out) {
    if (item && out) record(item)->GetBoundsRect(out);
}

void ADMItemSuite10::SetLocalRect(_Opaque_ADMItem* item, const Rect* r) {
    if (item && r) record(item)->SetLocalRect(r);
}

void ADMItemSuite10::GetBestSize(_Opaque_ADMItem* item, Point* out) {
    if (item && out) record(item)->GetBestSize(out);
}

_Opaque_ADMList* ADMItemSuite10::GetList(_Opaque_ADMItem* item) {
    return item ? handle(record(item)->GetList()) : nullptr;
}

ADMItemSuite10 g_ADMItemSuite;
ADMItemSuite10* sADMItem = &g_ADMItemSuite;
