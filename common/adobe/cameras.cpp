// The camera pop-up, and the orientation of the camera chosen in it.

#include "ADMLibrary/HostPointers.h"
#include "common/adobe/AssistantDlg.h"
#include "common/adobe/item_ids.h"

#include <algorithm>

// The cameras of the active composition, top first. Without an active composition, or in one
// without layers, `found` stays as it is and there is no error.
A_Err AssistantDlg::read_cameras(std::optional<CameraList>* found) const {
    AEGP_SuiteHandler suites(sSPBasic);
    AEGP_ItemH item = nullptr;
    AEGP_CompH active = nullptr;
    if (const A_Err err = active_comp(suites, &item, &active)) return err;
    if (!item || !active) return A_Err_NONE;
    const AEGP_LayerSuite5& layer_suite = suites.LayerSuite5();
    A_long count = 0;
    if (const A_Err err = layer_suite.AEGP_GetCompNumLayers(active, &count)) return err;
    if (count < 1) return A_Err_NONE;

    CameraList list;
    for (A_long i = 0; i < count; ++i) {
        AEGP_LayerH layer = nullptr;
        AEGP_ObjectType type = AEGP_ObjectType_AV;
        if (const A_Err err = layer_suite.AEGP_GetCompLayerByIndex(active, i, &layer)) return err;
        if (!layer) return A_Err_NONE;
        if (const A_Err err = layer_suite.AEGP_GetLayerObjectType(layer, &type)) return err;
        if (type != AEGP_ObjectType_CAMERA) continue;
        A_char name[AEGP_MAX_LAYER_NAME_SIZE] = {}, source_name[AEGP_MAX_LAYER_NAME_SIZE] = {};
        if (const A_Err err = layer_suite.AEGP_GetLayerName(layer, name, source_name)) return err;
        name[sizeof name - 1] = 0;
        list.layers.push_back(layer);
        list.names.emplace_back(name);
    }
    *found = std::move(list);
    return A_Err_NONE;
}

A_Err AssistantDlg::fill_combo_camera() {
    _Opaque_ADMItem* popup = item(item_camera);
    if (!popup) return A_Err_NONE;
    std::optional<CameraList> found;
    if (const A_Err err = read_cameras(&found)) return err;
    if (!found) return A_Err_NONE;

    // A panel that was opened anew has an empty pop-up while the cameras are still known.
    _Opaque_ADMList* list = sADMItem->GetList(popup);
    if (found->layers != cameras ||
        sADMList->NumberOfEntries(list) != static_cast<int>(cameras.size()))
        show_cameras(list, *found);

    if (IsEnabled()) enable_towards_camera();
    if (!offers_camera() && is_on(item_towards_camera)) {
        set_on(item_towards_camera, false);
        set_on(item_orient_none, true);
    }
    return A_Err_NONE;
}

bool AssistantDlg::offers_camera() const {
    return sADMList->NumberOfEntries(sADMItem->GetList(item(item_camera))) > 0;
}

void AssistantDlg::enable_towards_camera() {
    if (item(item_camera)) enable_item(item_towards_camera, offers_camera());
}

// The index of the chosen entry, as far as it names one of `cameras`; -1 otherwise.
int AssistantDlg::chosen_camera(_Opaque_ADMList* list) const {
    _Opaque_ADMEntry* active = sADMList->GetActiveEntry(list);
    const int index = active ? sADMEntry->GetIndex(active) : -1;
    return index >= 0 && index < static_cast<int>(cameras.size()) ? index : -1;
}

// Fills the pop-up anew; the camera that was chosen stays chosen if it is still there.
void AssistantDlg::show_cameras(_Opaque_ADMList* list, const CameraList& found) {
    const int chosen = chosen_camera(list);
    const AEGP_LayerH kept = chosen >= 0 ? cameras[chosen] : nullptr;
    for (int n = sADMList->NumberOfEntries(list); n > 0; --n) sADMList->RemoveEntry(list, 0);
    cameras = found.layers;
    for (std::size_t i = 0; i < found.names.size(); ++i)
        if (_Opaque_ADMEntry* entry = sADMList->InsertEntry(list, static_cast<int>(i)))
            sADMEntry->SetText(entry, found.names[i].c_str());
    if (cameras.empty()) return;
    const auto it = std::find(cameras.begin(), cameras.end(), kept);
    const auto index = it == cameras.end() ? 0 : it - cameras.begin();
    sADMEntry->Select(sADMList->IndexEntry(list, static_cast<int>(index)), true);
}

A_Err AssistantDlg::get_camera_orientation() {
    _Opaque_ADMItem* popup = item(item_camera);
    if (!popup) return A_Err_NONE;
    const int chosen = chosen_camera(sADMItem->GetList(popup));
    return chosen < 0 ? A_Err_NONE : get_layer_orientation(cameras[chosen], &camera_orient);
}
