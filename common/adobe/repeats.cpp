// "Repeat Layers": copies among the records, and a duplicate of the layer for each copy.

#include "ADMLibrary/HostPointers.h"
#include "common/adobe/AssistantDlg.h"
#include "common/adobe/item_ids.h"

#include <algorithm>

namespace {

const AEGP_LayerSuite10* layer_suite_10(AEGP_SuiteHandler& suites) {
    try {
        return &suites.LayerSuite10();
    } catch (int) {
        return nullptr;
    }
}

} // namespace

void AssistantDlg::constrain_layers() {
    if (!item(item_repeat) || !item(item_repeat_count) || !is_on(item_repeat)) return;
    std::list<LayerInfo> copies = layers;
    for (LayerInfo& copy : copies) copy.is_copy = true;
    const int repeats = sADMItem->GetIntValue(item(item_repeat_count));
    for (int i = 0; i < repeats; ++i) layers.insert(layers.end(), copies.begin(), copies.end());
}

AEGP_LayerH AssistantDlg::clone(AEGP_LayerH layer) {
    AEGP_SuiteHandler suites(sSPBasic);
    const AEGP_LayerSuite10* layer_suite = layer_suite_10(suites);
    if (!layer_suite) return clonePre65(layer);
    AEGP_LayerH duplicate = nullptr;
    return layer_suite->AEGP_DuplicateLayer(layer, &duplicate) ? nullptr : duplicate;
}

// Older hosts duplicate only what is selected, through their menu command, and do not return the
// duplicate: it is the layer that was not there before.
AEGP_LayerH AssistantDlg::clonePre65(AEGP_LayerH layer) {
    AEGP_SuiteHandler suites(sSPBasic);
    const AEGP_CollectionSuite1& collections = suites.CollectionSuite1();
    AEGP_CollectionH only = nullptr;
    if (collections.AEGP_NewCollection(plugin_id, &only) || !only) return nullptr;
    struct Disposer {
        const AEGP_CollectionSuite1& collections;
        AEGP_CollectionH collection;
        ~Disposer() { collections.AEGP_DisposeCollection(collection); }
    } const disposer{collections, only};

    const AEGP_CollectionItem entry{AEGP_CollectionItemType_LAYER, layer};
    if (collections.AEGP_CollectionPushBack(only, &entry)) return nullptr;
    if (suites.CompSuite4().AEGP_SetSelection(comp, only)) return nullptr;
    return duplicate_of_selected(suites);
}

AEGP_LayerH AssistantDlg::duplicate_of_selected(AEGP_SuiteHandler& suites) {
    LayerSet before, after;
    if (!snap_comp(&before)) return nullptr;
    if (suites.CommandSuite1().AEGP_DoCommand(AEGP_Command_DUPLICATE)) return nullptr;
    if (!snap_comp(&after)) return nullptr;
    const auto added = std::find_if(after.begin(), after.end(),
                                    [&](AEGP_LayerH found) { return !before.count(found); });
    if (added == after.end()) return nullptr;
    if (is_repeat_seq())
        suites.LayerSuite5().AEGP_ReorderLayer(*added, static_cast<A_long>(after.size()) - 1);
    return *added;
}

bool AssistantDlg::snap_comp(LayerSet* set) const {
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
