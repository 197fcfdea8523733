// What is selected in the host: read anew at every idle call, menu update and Apply.

#include "ADMLibrary/HostPointers.h"
#include "common/adobe/AssistantDlg.h"
#include "common/adobe/item_ids.h"

#include <algorithm>
#include <cstdint>
#include <functional>

namespace {

// The area in pixels as the host's 32-bit numbers have it: an absurd size wraps.
std::int32_t area(A_long width, A_long height) {
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(width) *
                                     static_cast<std::uint32_t>(height));
}

// The bit of a selection mask that a layer of this kind matches, 0 for none.
unsigned int mask_bit(AEGP_ObjectType type, bool is_3d) {
    switch (type) {
    case AEGP_ObjectType_AV:
        return is_3d ? 1 : 0;
    case AEGP_ObjectType_LIGHT:
        return 2;
    case AEGP_ObjectType_CAMERA:
        return 4;
    case AEGP_ObjectType_TEXT:
        return is_3d ? 8 : 0;
    case AEGP_ObjectType_SHAPE:
        return is_3d ? 16 : 0;
    default:
        return 0;
    }
}

} // namespace

void AssistantDlg::release_selection() {
    if (!selection) return;
    AEGP_SuiteHandler suites(sSPBasic);
    suites.CollectionSuite1().AEGP_DisposeCollection(selection);
    selection = nullptr;
}

// Leaves `found` as it is when the active item is no composition, and tells so by a null item.
A_Err AssistantDlg::active_comp(AEGP_SuiteHandler& suites, AEGP_ItemH* item, AEGP_CompH* found) {
    const AEGP_ItemSuite3& items = suites.ItemSuite3();
    *item = nullptr;
    AEGP_ItemH active = nullptr;
    if (const A_Err err = items.AEGP_GetActiveItem(&active)) return err;
    if (!active) return A_Err_NONE;
    AEGP_ItemType type = AEGP_ItemType_NONE;
    if (const A_Err err = items.AEGP_GetItemType(active, &type)) return err;
    if (type != AEGP_ItemType_COMP) return A_Err_NONE;
    if (const A_Err err = suites.CompSuite4().AEGP_GetCompFromItem(active, found)) return err;
    *item = active;
    return A_Err_NONE;
}

A_Err AssistantDlg::save_selection() {
    release_selection();
    AEGP_SuiteHandler suites(sSPBasic);
    AEGP_ItemH item = nullptr;
    if (const A_Err err = active_comp(suites, &item, &comp)) return err;
    if (!item || !comp) return A_Err_NONE; // the composition of an earlier time stays known

    if (const A_Err err = suites.CompSuite4().AEGP_GetNewCollectionFromCompSelection(
            plugin_id, comp, &selection)) {
        selection = nullptr;
        return err;
    }
    // A composition of unknown size is no reason to give up the selection.
    suites.ItemSuite3().AEGP_GetItemDimensions(item, &comp_width, &comp_height);
    max_width = max_height = 0;
    if (!selection) return A_Err_NONE; // a null one given with success: nothing that could be asked
    std::vector<AEGP_LayerH> selected;
    if (const A_Err err = read_selection(&selected)) return err;
    return measure_largest_source(suites, selected);
}

// Of equal areas the first in the order of handles counts.
A_Err AssistantDlg::measure_largest_source(AEGP_SuiteHandler& suites,
                                           const std::vector<AEGP_LayerH>& selected) {
    for (AEGP_LayerH layer : selected) {
        A_Boolean is_3d = false;
        if (const A_Err err = suites.LayerSuite5().AEGP_IsLayer3D(layer, &is_3d)) return err;
        if (!is_3d) continue;
        AEGP_ItemH source = nullptr;
        if (const A_Err err = suites.LayerSuite5().AEGP_GetLayerSourceItem(layer, &source))
            return err;
        if (!source) continue;
        A_long width = 0, height = 0;
        if (const A_Err err = suites.ItemSuite3().AEGP_GetItemDimensions(source, &width, &height))
            return err;
        if (area(width, height) > area(max_width, max_height)) {
            max_width = width;
            max_height = height;
        }
    }
    return A_Err_NONE;
}

// The selected layers, each once, in the order of their handles; on an error those before it.
A_Err AssistantDlg::read_selection(std::vector<AEGP_LayerH>* selected) {
    selected->clear();
    const A_Err err = append_selection(selected);
    // Mostly they come in order, so that there is nothing to sort.
    const std::less<AEGP_LayerH> before;
    if (!std::is_sorted(selected->begin(), selected->end(), before))
        std::sort(selected->begin(), selected->end(), before);
    selected->erase(std::unique(selected->begin(), selected->end()), selected->end());
    return err;
}

A_Err AssistantDlg::append_selection(std::vector<AEGP_LayerH>* selected) {
    AEGP_SuiteHandler suites(sSPBasic);
    const AEGP_CollectionSuite1& collections = suites.CollectionSuite1();
    A_u_long count = 0;
    if (const A_Err err = collections.AEGP_GetCollectionNumItems(selection, &count)) return err;
    for (A_u_long i = 0; i < count; ++i) {
        AEGP_CollectionItem found{};
        if (const A_Err err = collections.AEGP_GetCollectionItemByIndex(selection, i, &found))
            return err;
        if (found.type == AEGP_CollectionItemType_LAYER && found.layerH)
            selected->push_back(found.layerH);
    }
    return A_Err_NONE;
}

bool AssistantDlg::snap_selection(LayerSet* set) {
    if (!selection || !set) return false;
    std::vector<AEGP_LayerH> selected;
    const A_Err err = read_selection(&selected);
    set->clear();
    set->insert(selected.begin(), selected.end());
    return err == A_Err_NONE;
}

// Every selected layer in the order of the handles, with what could be read of it. False when the
// selection could not be read, with the layers so far and nothing of them.
bool AssistantDlg::read_scales(std::vector<Snapshot>* snapshots) {
    snapshots->clear();
    if (!selection) return false;
    std::vector<AEGP_LayerH> selected;
    const bool is_whole = read_selection(&selected) == A_Err_NONE;
    snapshots->reserve(selected.size());
    for (AEGP_LayerH layer : selected) {
        LayerInfo info;
        const bool is_measured = is_whole && collect_info(layer, &info) == A_Err_NONE;
        snapshots->push_back({layer, is_measured, info.scale, info.scaled_size()});
    }
    return is_whole;
}

void AssistantDlg::keep(const std::vector<Snapshot>& snapshots, LayerSet* set, ScaleMap* scales,
                        SizeMap* sizes) {
    set->clear();
    scales->clear();
    if (sizes) sizes->clear();
    for (const Snapshot& it : snapshots) {
        set->insert(set->end(), it.layer);
        if (!it.is_measured) continue;
        scales->emplace_hint(scales->end(), it.layer, it.scale);
        if (sizes) sizes->emplace_hint(sizes->end(), it.layer, it.size);
    }
}

bool AssistantDlg::snap_selection(LayerSet* set, ScaleMap* scales, SizeMap* sizes) {
    if (!selection || !set || !scales) return false;
    std::vector<Snapshot> snapshots;
    if (read_scales(&snapshots)) {
        keep(snapshots, set, scales, sizes);
        return true;
    }
    set->clear();
    for (const Snapshot& it : snapshots) set->insert(set->end(), it.layer);
    return false;
}

bool AssistantDlg::snap_comp(LayerSet* set) {
    set->clear();
    AEGP_SuiteHandler suites(sSPBasic);
    AEGP_ItemH item = nullptr;
    AEGP_CompH active = nullptr;
    if (active_comp(suites, &item, &active) || !active) return false;
    const AEGP_LayerSuite5& layer_suite = suites.LayerSuite5();
    A_long count = 0;
    if (layer_suite.AEGP_GetCompNumLayers(active, &count) || count < 1) return false;
    for (A_long i = 0; i < count; ++i) {
        AEGP_LayerH layer = nullptr;
        if (layer_suite.AEGP_GetCompLayerByIndex(active, i, &layer) || !layer) return false;
        set->insert(layer);
    }
    return true;
}

bool AssistantDlg::isCurSelectionContains(unsigned int mask) {
    std::vector<AEGP_LayerH> selected;
    if (save_selection() || !selection || read_selection(&selected)) return false;
    AEGP_SuiteHandler suites(sSPBasic);
    bool contains = false;
    for (AEGP_LayerH layer : selected) {
        AEGP_ObjectType type = AEGP_ObjectType_AV;
        A_Boolean is_3d = false;
        if (suites.LayerSuite5().AEGP_GetLayerObjectType(layer, &type)) continue;
        if (suites.LayerSuite5().AEGP_IsLayer3D(layer, &is_3d)) continue;
        if (mask_bit(type, is_3d) & mask) contains = true;
    }
    return contains;
}

A_Err AssistantDlg::OnHostHasChanged() {
    return fill_combo_camera();
}

void AssistantDlg::constrain_layers() {
    if (!item(item_repeat) || !item(item_repeat_count) || !is_on(item_repeat)) return;
    std::list<LayerInfo> copies = layers;
    for (LayerInfo& copy : copies) copy.is_copy = true;
    const int repeats = sADMItem->GetIntValue(item(item_repeat_count));
    for (int i = 0; i < repeats; ++i) layers.insert(layers.end(), copies.begin(), copies.end());
}
