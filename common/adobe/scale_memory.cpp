// The scales from before the first "Scale Layers To Fit": every fit starts from them, and the first
// Apply without a fit puts them back.

#include "common/adobe/AssistantDlg.h"

#include <algorithm>
#include <utility>
#include <vector>

void AssistantDlg::remember_scales() {
    const bool fit = is_scale_to_fit();
    if (scales_saved) {
        scales_saved = fit;
        restore_scale();
    } else if (fit) {
        snap_selection(&saved_layers, &saved_scales, &saved_sizes);
        scales_saved = true;
    }
}

void AssistantDlg::restore_scale() {
    LayerSet selected;
    ScaleMap scales;
    SizeMap sizes;
    if (!snap_selection(&selected, &scales, &sizes)) return;

    // In the order of the maps: searching them in a random order takes three times as long.
    using Record = std::pair<AEGP_LayerH, LayerInfo*>;
    std::vector<Record> records;
    records.reserve(layers.size());
    for (LayerInfo& record : layers) records.emplace_back(record.layer, &record);
    std::ranges::stable_sort(records, {}, &Record::first);
    auto scale = saved_scales.begin(); // every layer that has a size has a scale
    for (const auto& [layer, size] : saved_sizes) {
        const AEGP_StreamValue& saved_scale = (scale++)->second;
        const auto record = std::ranges::lower_bound(records, layer, {}, &Record::first);
        if (record == records.end() || record->first != layer) continue;
        record->second->scale = scales[layer] = saved_scale;
        record->second->set_scaled_size(sizes[layer] = size);
    }
    saved_layers = std::move(selected);
    saved_scales = std::move(scales);
    saved_sizes = std::move(sizes);
}
