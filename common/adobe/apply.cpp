// One Apply: from the selection to the written layers, inside one undo group.

#include "ADMLibrary/HostPointers.h"
#include "common/adobe/AssistantDlg.h"
#include "common/adobe/item_ids.h"
#include "common/adobe/RemainingIndices.h"
#include "common/adobe/StreamValue.h"
#include "math/random.h"

#include <algorithm>
#include <ctime>
#include <functional>
#include <utility>
#include <vector>

namespace {

// Writes one stream of a layer, after a key at `key_time` if there is one. A stream that the host
// refuses is passed over: the others are still to be written.
void write(AEGP_PluginID plugin_id, AEGP_LayerH layer, AEGP_LayerStream stream,
           const AEGP_StreamValue& value, const A_Time* key_time) {
    StreamValue target(plugin_id, layer, stream);
    if (key_time) target.insert_key(*key_time, AEGP_LTimeMode_CompTime, nullptr);
    target.set_value(value);
}

// Finds layers that are asked for in rising order: walks once along a container in that order.
template <typename Container>
class Walk {
  public:
    explicit Walk(Container& container) : _at(container.begin()), _end(container.end()) {}

    // Null for a layer that is not there.
    auto* find(AEGP_LayerH layer) {
        while (_at != _end && std::less<AEGP_LayerH>()(layer_of(*_at), layer)) ++_at;
        return _at != _end && layer_of(*_at) == layer ? &*_at : nullptr;
    }

  private:
    static AEGP_LayerH layer_of(AEGP_LayerH layer) { return layer; }
    template <typename Value>
    static AEGP_LayerH layer_of(const std::pair<AEGP_LayerH, Value>& entry) {
        return entry.first;
    }
    template <typename Value>
    static AEGP_LayerH layer_of(const std::pair<const AEGP_LayerH, Value>& entry) {
        return entry.first;
    }

    typename Container::iterator _at, _end;
};

// Moves values among their places: the i-th gets what stood at the place drawn[i], a permutation.
void rearrange(const std::vector<LayerInfo*>& places, std::vector<std::size_t>& drawn) {
    for (std::size_t start = 0; start < drawn.size(); ++start) {
        if (drawn[start] == start) continue;
        const LayerInfo first = *places[start];
        std::size_t to = start;
        for (std::size_t from = drawn[to]; from != start; from = drawn[to]) {
            *places[to] = *places[from];
            drawn[to] = to;
            to = from;
        }
        *places[to] = first;
        drawn[to] = to;
    }
}

bool is_placeable(AEGP_ObjectType type) {
    return type == AEGP_ObjectType_AV || type == AEGP_ObjectType_TEXT ||
           type == AEGP_ObjectType_SHAPE;
}

} // namespace

A_Err AssistantDlg::apply_assistant() {
    const bool has_camera_popup = item(item_camera) != nullptr;
    math::SetRand(std::time(nullptr));
    if (const A_Err err = save_selection()) return err;

    AEGP_SuiteHandler suites(sSPBasic);
    const AEGP_UtilitySuite3& utility = suites.UtilitySuite3();
    if (const A_Err err = utility.AEGP_StartUndoGroup(get_name().c_str())) return err;
    struct UndoGroup { // closed also when a suite turns out to be missing
        const AEGP_UtilitySuite3& utility;
        ~UndoGroup() { utility.AEGP_EndUndoGroup(); }
    } const group{utility};
    return arrange_selection(has_camera_popup);
}

A_Err AssistantDlg::arrange_selection(bool has_camera_popup) {
    if (!selection) return A_Err_NONE; // the active item is no composition
    A_u_long count = 0;
    {
        AEGP_SuiteHandler suites(sSPBasic);
        if (const A_Err err =
                suites.CollectionSuite1().AEGP_GetCollectionNumItems(selection, &count))
            return err;
    }
    if (count == 0) return A_Err_NONE;
    if (const A_Err err = collect_selected_layers(count)) return err;
    if (has_camera_popup)
        if (const A_Err err = get_camera_orientation()) return err;
    sort_layers();
    if (is_reverse_order()) layers.reverse();
    if (is_random_order()) shuffle_layers();
    remember_scales();
    if (const A_Err err = get_layers_pos()) return err;
    return apply_to_layers();
}

// Records of the 3D layers among the `count` selected items, in the order of the selection.
A_Err AssistantDlg::collect_selected_layers(A_u_long count) {
    layers.clear();
    AEGP_SuiteHandler suites(sSPBasic);
    for (A_u_long i = 0; i < count; ++i) {
        AEGP_CollectionItem found{};
        if (const A_Err err =
                suites.CollectionSuite1().AEGP_GetCollectionItemByIndex(selection, i, &found))
            return err;
        if (found.type != AEGP_CollectionItemType_LAYER || !found.layerH) continue;
        AEGP_ObjectType type = AEGP_ObjectType_AV;
        if (const A_Err err = suites.LayerSuite5().AEGP_GetLayerObjectType(found.layerH, &type))
            return err;
        if (!is_placeable(type)) continue;
        A_Boolean is_3d = false;
        if (const A_Err err = suites.LayerSuite5().AEGP_IsLayer3D(found.layerH, &is_3d)) return err;
        if (!is_3d) continue;
        LayerInfo& info = layers.emplace_back();
        if (const A_Err err = collect_info(found.layerH, &info)) {
            layers.pop_back();
            return err;
        }
        info.sel_index = static_cast<A_long>(i);
    }
    return A_Err_NONE;
}

void AssistantDlg::sort_layers() {
    if (!std::is_sorted(layers.begin(), layers.end())) layers.sort();
}

// Draws the records one by one out of those that remain.
void AssistantDlg::shuffle_layers() {
    std::vector<LayerInfo*> places;
    places.reserve(layers.size());
    for (LayerInfo& record : layers) places.push_back(&record);
    RemainingIndices remaining(places.size());
    std::vector<std::size_t> drawn(places.size());
    for (std::size_t& index : drawn) {
        const auto number = static_cast<std::uint64_t>(math::LRand());
        index = remaining.take(number % remaining.size());
    }
    rearrange(places, drawn);
}

// Every fit starts from the scales that the layers had before the first one; the first Apply
// without a fit puts them back.
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
    std::vector<Snapshot> current;
    if (!read_scales(&current)) return;

    std::vector<std::pair<AEGP_LayerH, LayerInfo*>> records; // of a layer with several the first
    records.reserve(layers.size());
    for (LayerInfo& record : layers) records.emplace_back(record.layer, &record);
    std::stable_sort(records.begin(), records.end(), [](const auto& a, const auto& b) {
        return std::less<AEGP_LayerH>()(a.first, b.first);
    });
    Walk in_records(records);
    Walk in_layers(saved_layers);
    Walk in_scales(saved_scales);
    Walk in_sizes(saved_sizes);
    std::size_t restored = 0, measured = 0, known = 0;
    for (Snapshot& it : current) {
        const auto* record = in_records.find(it.layer);
        const auto* scale = in_scales.find(it.layer);
        const auto* size = in_sizes.find(it.layer);
        const bool is_saved = in_layers.find(it.layer);
        known += is_saved;
        if (is_saved && record && scale && size) {
            record->second->scale = it.scale = scale->second;
            record->second->set_scaled_size(it.size = size->second);
            it.is_measured = true;
            ++restored;
        }
        measured += it.is_measured;
    }
    // Mostly the same layers are selected as before: all that is remembered stays.
    const bool same_layers = known == current.size() && known == saved_layers.size();
    const bool same_scales =
        measured == restored && measured == saved_scales.size() && measured == saved_sizes.size();
    if (!same_layers || !same_scales) keep(current, &saved_layers, &saved_scales, &saved_sizes);
}

A_Err AssistantDlg::apply_to_layers() {
    const bool orient_changed = is_orient_changed();
    const bool key_orient = is_key_orient(), key_pos = is_key_pos(), key_scale = is_key_scale();
    const math::TGeomVector3D<double> offset = get_offset();
    AEGP_StreamValue zero{}; // not const: the stream writer notes the stream in it
    for (LayerInfo& record : layers) {
        if (record.is_copy && !(record.layer = clone(record.layer))) continue;
        const auto put = [&](AEGP_LayerStream stream, const AEGP_StreamValue& value, bool key) {
            write(plugin_id, record.layer, stream, value, key ? &record.time : nullptr);
        };
        if (orient_changed) {
            put(AEGP_LayerStream_ROTATE_X, zero, false);
            put(AEGP_LayerStream_ROTATE_Y, zero, false);
            put(AEGP_LayerStream_ROTATE_Z, zero, false);
            put(AEGP_LayerStream_ORIENTATION, record.orient, key_orient);
        }
        AEGP_StreamValue position = record.pos;
        position.val.three_d.x += offset.x;
        position.val.three_d.y += offset.y;
        position.val.three_d.z += offset.z;
        put(AEGP_LayerStream_POSITION, position, key_pos);
        put(AEGP_LayerStream_SCALE, record.scale, key_scale);
    }
    return A_Err_NONE;
}
