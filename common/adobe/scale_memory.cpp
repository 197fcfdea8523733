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

    // Finding in the order of the handles takes a third of the time that it takes in a random
    // order.
    using Record = std::pair<AEGP_LayerH, LayerInfo*>;
    std::vector<Record> records;
    records.reserve(layers.size());
    for (LayerInfo& record : layers) records.emplace_back(record.layer, &record);
    std::ranges::stable_sort(records, {}, &Record::first);
    for (const auto& [layer, record] : records) {
        const auto scale = saved_scales.find(layer);
        const auto size = saved_sizes.find(layer);
        if (scale == saved_scales.end() || size == saved_sizes.end()) continue;
        record->scale = scales[layer] = scale->second;
        record->set_scaled_size(sizes[layer] = size->second);
        saved_scales.erase(scale); // another record of the same layer stays as it is
    }
    saved_layers = std::move(selected);
    saved_scales = std::move(scales);
    saved_sizes = std::move(sizes);
}
