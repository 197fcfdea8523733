// The dialog and notifier suites: check the handles, then call the records.

#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"
#include "ADMLibrary/ADM_Mac64/iADMNotifier.h"
#include "ADMLibrary/ADMSuites.h"

#include <cstring>

using adm::handle;
using adm::record;

namespace {

constexpr const char* kSuite = "ADMDialogSuite9";

} // namespace

_Opaque_ADMDialog* ADMDialogSuite9::Create(SPPlugin*, const char* name, int, ADMDialogStyle style,
                                           ADMDialogInitProc init, void* userData, int) {
    return handle(iADMDialog::Create(name, style, init, userData));
}

_Opaque_ADMDialog* ADMDialogSuite9::CreatePanel(SPPlugin*, const char* name, int,
                                                ADMDialogInitProc init, void* userData,
                                                AEGP_PanelSuite1* panelSuite, _AEGP_PanelH* panelH,
                                                NSView* hostView,
                                                AEGP_PanelFunctions1* panelFunctions,
                                                _AEGP_PanelRefcon** refcon) {
    return handle(iADMDialog::CreatePanel(name, init, userData, panelSuite, panelH, hostView,
                                          panelFunctions, refcon));
}

int ADMDialogSuite9::Modal(SPPlugin*, const char*, int, ADMDialogStyle, ADMDialogInitProc, void*,
                           int) {
    adm::not_provided(kSuite, "Modal");
}

void ADMDialogSuite9::Destroy(_Opaque_ADMDialog* dialog) {
    if (dialog) record(dialog)->Destroy();
}

void ADMDialogSuite9::SetDrawProc(_Opaque_ADMDialog* dialog, ADMDialogDrawProc proc) {
    if (dialog) record(dialog)->_drawProc = proc;
}

void ADMDialogSuite9::SetTrackProc(_Opaque_ADMDialog* dialog, ADMDialogTrackProc proc) {
    if (dialog) record(dialog)->_trackProc = proc;
}

void ADMDialogSuite9::SetNotifyProc(_Opaque_ADMDialog* dialog, ADMDialogNotifyProc proc) {
    if (dialog) record(dialog)->_notifyProc = proc;
}

void ADMDialogSuite9::SetDestroyProc(_Opaque_ADMDialog* dialog, ADMDialogDestroyProc proc) {
    if (dialog) record(dialog)->_destroyProc = proc;
}

void ADMDialogSuite9::SetUserData(_Opaque_ADMDialog* dialog, void* userData) {
    if (dialog) record(dialog)->_userData = userData;
}

void* ADMDialogSuite9::GetUserData(_Opaque_ADMDialog* dialog) {
    return dialog ? record(dialog)->_userData : nullptr;
}

void ADMDialogSuite9::DefaultNotify(_Opaque_ADMDialog*, _Opaque_ADMNotifier* notifier) {
    if (notifier) record(notifier)->result = kADMHandledByDefault;
}

void ADMDialogSuite9::DefaultDraw(_Opaque_ADMDialog*, _Opaque_ADMDrawer*) {
    adm::not_provided(kSuite, "DefaultDraw");
}

unsigned char ADMDialogSuite9::DefaultTrack(_Opaque_ADMDialog*, _Opaque_ADMTracker*) {
    adm::not_provided(kSuite, "DefaultTrack");
}

_Opaque_ADMItem* ADMDialogSuite9::GetItem(_Opaque_ADMDialog* dialog, int id) {
    return dialog ? handle(record(dialog)->GetItem(id)) : nullptr;
}

_Opaque_ADMItem* ADMDialogSuite9::GetNextItem(_Opaque_ADMDialog* dialog, _Opaque_ADMItem* item) {
    return dialog && item ? handle(record(dialog)->GetNextItem(record(item))) : nullptr;
}

void ADMDialogSuite9::SetText(_Opaque_ADMDialog* dialog, const char* text) {
    if (dialog) record(dialog)->SetText(text);
}

void ADMDialogSuite9::Show(_Opaque_ADMDialog* dialog, unsigned char show) {
    if (dialog) record(dialog)->Show(show);
}

bool ADMDialogSuite9::IsVisible(_Opaque_ADMDialog* dialog) {
    return dialog && record(dialog)->IsVisible();
}

bool ADMDialogSuite9::IsEnabled(_Opaque_ADMDialog* dialog) {
    return dialog && record(dialog)->IsEnabled();
}

void ADMDialogSuite9::GetBoundsRect(_Opaque_ADMDialog* dialog, Rect* out) {
    if (dialog && out) record(dialog)->GetBoundsRect(out);
}

void ADMDialogSuite9::SetBoundsRect(_Opaque_ADMDialog* dialog, const Rect* r) {
    if (dialog && r) record(dialog)->SetBoundsRect(r);
}

void ADMDialogSuite9::SetLocalRect(_Opaque_ADMDialog* dialog, const Rect* r) {
    if (dialog && r) record(dialog)->SetLocalRect(r);
}

_Opaque_ADMItem* ADMNotifierSuite2::GetItem(_Opaque_ADMNotifier* notifier) {
    return notifier ? handle(record(notifier)->item) : nullptr;
}

bool ADMNotifierSuite2::IsNotifierType(_Opaque_ADMNotifier* notifier, const char* type) {
    return notifier && type && std::strcmp(record(notifier)->type, type) == 0;
}

namespace adm {

_Opaque_ADMItem* first_item(_Opaque_ADMDialog* dialog) {
    if (!dialog || record(dialog)->_items.empty()) return nullptr;
    return handle(&record(dialog)->_items.front());
}

_Opaque_ADMDialog* dialog_of(const void* userData) {
    return handle(iADMDialog::with_user_data(userData));
}

} // namespace adm

ADMDialogSuite9 g_ADMDialogSuite;
ADMNotifierSuite2 g_ADMNotifierSuite;
ADMDialogSuite9* sADMDialog = &g_ADMDialogSuite;
ADMNotifierSuite2* sADMNotifier = &g_ADMNotifierSuite;
