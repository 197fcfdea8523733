#include "ADMLibrary/BaseADMDialog.h"

namespace {

BaseADMDialog* wrapper_of(_Opaque_ADMDialog* dialog) {
    return static_cast<BaseADMDialog*>(ADMDialogSuite9::GetUserData(dialog));
}

// Destroys the dialog without calling its wrapper back.
void unbind_and_destroy(_Opaque_ADMDialog* dialog) {
    ADMDialogSuite9::SetUserData(dialog, nullptr);
    ADMDialogSuite9::SetDrawProc(dialog, nullptr);
    ADMDialogSuite9::SetNotifyProc(dialog, nullptr);
    ADMDialogSuite9::SetDestroyProc(dialog, nullptr);
    ADMDialogSuite9::Destroy(dialog);
}

} // namespace

BaseADMDialog::~BaseADMDialog() {
    if (_modal) return;
    if (_handle) unbind_and_destroy(_handle);
    _handle = nullptr;
    // A host may have made its panel several times; the earlier dialogs still refer to this
    // wrapper.
    while (_Opaque_ADMDialog* earlier = adm::dialog_of(this)) unbind_and_destroy(earlier);
}

int BaseADMDialog::Init() {
    ADMDialogSuite9::SetDrawProc(_handle, DrawProc);
    ADMDialogSuite9::SetTrackProc(_handle, TrackProc);
    ADMDialogSuite9::SetNotifyProc(_handle, NotifyProc);
    ADMDialogSuite9::SetDestroyProc(_handle, DestroyProc);
    return 0;
}

void BaseADMDialog::Draw(IADMDrawer drawer) {
    ADMDialogSuite9::DefaultDraw(_handle, drawer);
}

bool BaseADMDialog::Track(IADMTracker tracker) {
    return ADMDialogSuite9::DefaultTrack(_handle, tracker) != 0;
}

void BaseADMDialog::Notify(IADMNotifier notifier) {
    ADMDialogSuite9::DefaultNotify(_handle, notifier);
}

void BaseADMDialog::Destroy() {}

_Opaque_ADMDialog* BaseADMDialog::Create(SPPlugin* plugin, char* name, int dialogID,
                                         ADMDialogStyle style, int options) {
    _handle = ADMDialogSuite9::Create(plugin, name, dialogID, style, InitProc, this, options);
    return _handle;
}

_Opaque_ADMDialog* BaseADMDialog::CreatePanel(SPPlugin* plugin, const char* name, int dialogID,
                                              AEGP_PanelSuite1* panelSuite, _AEGP_PanelH* panelH,
                                              NSView* container,
                                              AEGP_PanelFunctions1* panelFunctions,
                                              _AEGP_PanelRefcon** refcon) {
    _handle = ADMDialogSuite9::CreatePanel(plugin, name, dialogID, InitProc, this, panelSuite,
                                           panelH, container, panelFunctions, refcon);
    return _handle;
}

int BaseADMDialog::Modal(SPPlugin* plugin, char* name, int dialogID, ADMDialogStyle style,
                         int options) {
    _modal = true;
    return ADMDialogSuite9::Modal(plugin, name, dialogID, style, InitProc, this, options);
}

// Runs inside the creation, which has just stored the wrapper as user data.
int BaseADMDialog::InitProc(_Opaque_ADMDialog* dialog) {
    BaseADMDialog* self = wrapper_of(dialog);
    self->_handle = dialog;
    const int error = self->Init();
    if (error != 0) {
        // The toolkit will destroy the dialog. The caller of Create still holds the wrapper, so it
        // must not delete itself then.
        ADMDialogSuite9::SetDestroyProc(dialog, nullptr);
        self->Destroy();
    }
    return error;
}

void BaseADMDialog::DrawProc(_Opaque_ADMDialog* dialog, _Opaque_ADMDrawer* drawer) {
    if (BaseADMDialog* self = wrapper_of(dialog)) self->Draw(drawer);
}

unsigned char BaseADMDialog::TrackProc(_Opaque_ADMDialog* dialog, _Opaque_ADMTracker* tracker) {
    BaseADMDialog* self = wrapper_of(dialog);
    return self && self->Track(tracker);
}

void BaseADMDialog::NotifyProc(_Opaque_ADMDialog* dialog, _Opaque_ADMNotifier* notifier) {
    if (BaseADMDialog* self = wrapper_of(dialog)) self->Notify(notifier);
}

void BaseADMDialog::DestroyProc(_Opaque_ADMDialog* dialog) {
    BaseADMDialog* self = wrapper_of(dialog);
    if (!self) return;
    self->Destroy();
    // The wrapper's destructor asks the toolkit to destroy the dialog, which ignores that: it is
    // being destroyed already.
    if (!self->_modal && self->_delete_on_destroy)
        delete self;
    else
        self->_handle = nullptr;
}
