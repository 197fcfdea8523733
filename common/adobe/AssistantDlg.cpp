#include "common/adobe/AssistantDlg.h"

#include "ADMLibrary/HostPointers.h"
#include "common/adobe/item_ids.h"

namespace {

bool host_measures_text() {
    AEGP_SuiteHandler suites(sSPBasic);
    try {
        suites.LayerSuite8();
        return true;
    } catch (int) {
        return false;
    }
}

} // namespace

AssistantDlg::AssistantDlg(int id) : plugin_id(id) {}

int AssistantDlg::Init() {
    const int result = BaseADMDialog::Init();
    sADMDialog->SetText(*this, get_name().c_str());
    MoveToScreenCenter();
    return result;
}

void AssistantDlg::Notify(IADMNotifier notifier) {
    if (comp && sADMNotifier->IsNotifierType(notifier, kADMUserChangedNotifier)) {
        switch (sADMItem->GetID(sADMNotifier->GetItem(notifier))) {
        case item_repeat:
            enable_repeat_layers();
            break;
        case item_apply:
        case item_default:
            apply_without_throwing();
            break;
        }
    }
    BaseADMDialog::Notify(notifier);
}

// A control's action does not come through a hook, so nothing above catches an exception.
void AssistantDlg::apply_without_throwing() {
    try {
        apply_assistant();
    } catch (...) {
        // As with a host error, what is written stays written and the undo group is closed.
    }
}

// The last chance to dispose of the selection: a host that refuses its suite is asked once more,
// then the selection is given up.
void AssistantDlg::Destroy() {
    BaseDlg::Destroy();
    for (int tries = 0; selection && tries < 2; ++tries) {
        try {
            release_selection();
        } catch (int) {
        }
    }
    selection = nullptr;
}

void AssistantDlg::Enable(unsigned char enable) {
    BaseDlg::Enable(enable);
    if (enable) {
        enable_repeat_layers();
        enable_towards_camera();
    }
    if (item(item_crop_text))
        enable_item(item_crop_text, host_measures_text() && max_width != 0 && max_height != 0);
}

void AssistantDlg::enable_repeat_layers() {
    if (!item(item_repeat)) return;
    const bool repeat = is_on(item_repeat);
    enable_item(item_repeat_count, repeat);
    enable_item(item_repeat_sequentially, repeat);
}

A_Err AssistantDlg::OnHostHasChanged() {
    return fill_combo_camera();
}

void AssistantDlg::ErrorMessageBox(const std::string& text) {
    AEGP_SuiteHandler suites(sSPBasic);
    suites.UtilitySuite3().AEGP_ReportInfo(plugin_id, text.c_str());
}

_Opaque_ADMItem* AssistantDlg::item(int id) const {
    return sADMDialog->GetItem(*this, id);
}
bool AssistantDlg::is_on(int id) const {
    return sADMItem->GetBooleanValue(item(id));
}
float AssistantDlg::number(int id) const {
    return sADMItem->GetFloatValue(item(id));
}
void AssistantDlg::enable_item(int id, bool enable) {
    BaseDlg::enable_item(item(id), enable);
}
void AssistantDlg::set_on(int id, bool on) {
    sADMItem->SetBooleanValue(item(id), on);
}
