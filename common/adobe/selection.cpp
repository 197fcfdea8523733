// What is selected in the host: read anew at every idle call, menu update and Apply.

#include "ADMLibrary/HostPointers.h"
#include "common/adobe/AssistantDlg.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <utility>

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
    const AEGP_CollectionSuite1& collections = suites.CollectionSuite1();
    collections.AEGP_DisposeCollection(std::exchange(selection, nullptr));
}

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

    AEGP_CollectionH found = nullptr;
    if (const A_Err err =
            suites.CompSuite4().AEGP_GetNewCollectionFromCompSelection(plugin_id, comp, &found))
        return err;
    release_selection(); // held again when the host has made an idle call inside one of ours
    selection = found;
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

A_Err AssistantDlg::read_selection(std::vector<AEGP_LayerH>* selected) const {
    selected->clear();
    AEGP_SuiteHandler suites(sSPBasic);
    const AEGP_CollectionSuite1& collections = suites.CollectionSuite1();
    A_u_long count = 0;
    A_Err err = collections.AEGP_GetCollectionNumItems(selection, &count);
    for (A_u_long i = 0; i < count && !err; ++i) {
        AEGP_CollectionItem found{};
        err = collections.AEGP_GetCollectionItemByIndex(selection, i, &found);
        if (!err && found.type == AEGP_CollectionItemType_LAYER && found.layerH)
            selected->push_back(found.layerH);
    }
    const std::less<AEGP_LayerH> before;
    if (!std::is_sorted(selected->begin(), selected->end(), before)) // mostly they are
        std::sort(selected->begin(), selected->end(), before);
    selected->erase(std::unique(selected->begin(), selected->end()), selected->end());
    return err;
}

bool AssistantDlg::snap_selection(LayerSet* set) const {
    if (!selection || !set) return false;
    std::vector<AEGP_LayerH> selected;
    const A_Err err = read_selection(&selected);
    *set = LayerSet(selected.begin(), selected.end());
    return err == A_Err_NONE;
}

bool AssistantDlg::snap_selection(LayerSet* set, ScaleMap* scales, SizeMap* sizes) const {
    if (!scales || !snap_selection(set)) return false;
    scales->clear();
    if (sizes) sizes->clear();
    LayerInfo info;
    for (AEGP_LayerH layer : *set) {
        if (collect_info(layer, &info)) continue;
        scales->emplace_hint(scales->end(), layer, info.scale);
        if (sizes) sizes->emplace_hint(sizes->end(), layer, info.scaled_size());
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
