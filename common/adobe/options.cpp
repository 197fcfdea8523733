// The user's options, each read from its item at the moment of the call, and the state of the
// controls that depend on one another.

#include "ADMLibrary/HostPointers.h"
#include "common/adobe/AssistantDlg.h"
#include "common/adobe/item_ids.h"

#include <cmath>

AssistantDlg::AssistantDlg(int id) : plugin_id(id) {}

AssistantDlg::~AssistantDlg() = default;

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
            apply_quietly();
            break;
        }
    }
    BaseADMDialog::Notify(notifier);
}

// An action comes from a control, not through a hook: nothing above would catch what is thrown.
void AssistantDlg::apply_quietly() {
    try {
        apply_assistant();
    } catch (...) {
        // As with a host error, what is written stays written and the undo group is closed.
    }
}

// The last chance to give the selection back. A host that refuses its suite is asked once more;
// after that there is nothing left to do.
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

namespace {

// Whether the host measures text layers.
bool measures_text() {
    AEGP_SuiteHandler suites(sSPBasic);
    try {
        suites.LayerSuite8();
        return true;
    } catch (int) {
        return false;
    }
}

} // namespace

void AssistantDlg::Enable(unsigned char enable) {
    BaseDlg::Enable(enable);
    if (enable) enable_repeat_layers();
    if (item(item_crop_text))
        enable_item(item_crop_text, measures_text() && max_width != 0 && max_height != 0);
}

void AssistantDlg::enable_repeat_layers() {
    if (!item(item_repeat)) return;
    const bool repeat = is_on(item_repeat);
    enable_item(item_repeat_count, repeat);
    enable_item(item_repeat_sequentially, repeat);
}

bool AssistantDlg::is_reverse_order() {
    return is_on(item_reverse_order);
}
bool AssistantDlg::is_random_order() {
    return is_on(item_random_order);
}
bool AssistantDlg::is_scale_to_fit() {
    return is_on(item_scale_to_fit);
}
bool AssistantDlg::is_repeat_seq() {
    return is_on(item_repeat_sequentially);
}
bool AssistantDlg::is_key_pos() {
    return is_on(item_key_position);
}
bool AssistantDlg::is_key_orient() {
    return is_on(item_key_orientation);
}
bool AssistantDlg::is_key_scale() {
    return is_on(item_key_scale);
}
bool AssistantDlg::is_orient_changed() {
    return !is_on(item_orient_none);
}
bool AssistantDlg::is_text_layer_use_comp_size() {
    return !is_on(item_crop_text);
}
bool AssistantDlg::is_distributor() {
    return false;
}

math::TGeomVector3D<double> AssistantDlg::start_value() const {
    return {number(item_start_x), number(item_start_y), number(item_start_z)};
}

math::TGeomVector3D<double> AssistantDlg::get_starting_point() {
    return is_distributor() ? math::TGeomVector3D<double>() : start_value();
}

math::TGeomVector3D<double> AssistantDlg::get_offset() {
    math::TGeomVector3D<double> offset;
    if (is_distributor()) offset = start_value();
    if (is_on(item_use_comp_center)) {
        offset.x += comp_width * 0.5;
        offset.y += comp_height * 0.5;
    }
    return offset;
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
void AssistantDlg::enable_item(int id, bool enable) const {
    // What is so already is left alone: this happens at every idle call, and setting it asks the
    // host for colours and draws the item anew.
    _Opaque_ADMItem* const it = item(id);
    if (sADMItem->IsEnabled(it) != enable) sADMItem->Enable(it, enable);
}
void AssistantDlg::set_on(int id, bool on) const {
    sADMItem->SetBooleanValue(item(id), on);
}
