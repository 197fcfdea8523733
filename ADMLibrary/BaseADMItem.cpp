#include "ADMLibrary/BaseADMItem.h"

namespace {

BaseADMItem* wrapper_of(_Opaque_ADMItem* item) {
    return static_cast<BaseADMItem*>(ADMItemSuite10::GetUserData(item));
}

} // namespace

BaseADMItem::BaseADMItem(IADMItem item, void* userData) : IADMItem(item), _user_data(userData) {
    if (!_handle) return;
    ADMItemSuite10::SetUserData(_handle, this);
    install_procs();
}

BaseADMItem::~BaseADMItem() {
    if (sADMItem) {
        ADMItemSuite10::SetUserData(_handle, nullptr);
        ADMItemSuite10::SetDrawProc(_handle, nullptr);
        ADMItemSuite10::SetNotifyProc(_handle, nullptr);
        ADMItemSuite10::SetDestroyProc(_handle, nullptr);
        ADMItemSuite10::SetTextToFloatProc(_handle, nullptr);
        ADMItemSuite10::SetFloatToTextProc(_handle, nullptr);
        ADMItemSuite10::Destroy(_handle);
    }
    _handle = nullptr;
}

void BaseADMItem::install_procs() {
    ADMItemSuite10::SetDrawProc(_handle, DrawProc);
    ADMItemSuite10::SetTrackProc(_handle, TrackProc);
    ADMItemSuite10::SetNotifyProc(_handle, NotifyProc);
    ADMItemSuite10::SetDestroyProc(_handle, DestroyProc);
    ADMItemSuite10::SetTextToFloatProc(_handle, TextToFloatProc);
    ADMItemSuite10::SetFloatToTextProc(_handle, FloatToTextProc);
}

_Opaque_ADMItem* BaseADMItem::Create(_Opaque_ADMDialog* dialog, const IASRect& bounds,
                                     const char* itemType, int itemID) {
    _handle = ADMItemSuite10::Create(dialog, itemID, itemType, &bounds, InitProc, this, 0);
    if (_handle) install_procs();
    return _handle;
}

int BaseADMItem::Init() {
    return 0;
}

void BaseADMItem::Draw(IADMDrawer drawer) {
    ADMItemSuite10::DefaultDraw(_handle, drawer);
}

bool BaseADMItem::Track(IADMTracker tracker) {
    return ADMItemSuite10::DefaultTrack(_handle, tracker) != 0;
}

void BaseADMItem::Notify(IADMNotifier notifier) {
    ADMItemSuite10::DefaultNotify(_handle, notifier);
}

bool BaseADMItem::TextToFloat(const char* text, float& value) {
    return ADMItemSuite10::DefaultTextToFloat(_handle, text, &value);
}

bool BaseADMItem::FloatToText(float value, char* text, int maxLength) {
    return ADMItemSuite10::DefaultFloatToText(_handle, value, text, maxLength);
}

void BaseADMItem::BaseDraw(IADMDrawer drawer) {
    Draw(drawer);
}

// Runs inside the creation, which has just stored the wrapper as user data.
int BaseADMItem::InitProc(_Opaque_ADMItem* item) {
    BaseADMItem* self = wrapper_of(item);
    self->_handle = item;
    return self->Init();
}

void BaseADMItem::DrawProc(_Opaque_ADMItem* item, _Opaque_ADMDrawer* drawer) {
    if (BaseADMItem* self = wrapper_of(item)) self->BaseDraw(drawer);
}

unsigned char BaseADMItem::TrackProc(_Opaque_ADMItem* item, _Opaque_ADMTracker* tracker) {
    BaseADMItem* self = wrapper_of(item);
    return self && self->Track(tracker);
}

void BaseADMItem::NotifyProc(_Opaque_ADMItem* item, _Opaque_ADMNotifier* notifier) {
    if (BaseADMItem* self = wrapper_of(item)) self->Notify(notifier);
}

void BaseADMItem::DestroyProc(_Opaque_ADMItem* item) {
    delete wrapper_of(item);
}

unsigned char BaseADMItem::TextToFloatProc(_Opaque_ADMItem* item, const char* text, float* value) {
    BaseADMItem* self = wrapper_of(item);
    return self && self->TextToFloat(text, *value);
}

unsigned char BaseADMItem::FloatToTextProc(_Opaque_ADMItem* item, float value, char* text,
                                           int maxLength) {
    BaseADMItem* self = wrapper_of(item);
    return self && self->FloatToText(value, text, maxLength);
}
