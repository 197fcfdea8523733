// One Apply: from the selection to the written layers, inside one undo group.

#include "ADMLibrary/HostPointers.h"
#include "common/adobe/AssistantDlg.h"
#include "common/adobe/item_ids.h"
#include "common/adobe/RemainingIndices.h"
#include "common/adobe/StreamValue.h"
#include "math/random.h"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <vector>

namespace {

class UndoGroup {
  public:
    explicit UndoGroup(const AEGP_UtilitySuite3& utility) : _utility(utility) {}
    ~UndoGroup() { _utility.AEGP_EndUndoGroup(); }
    UndoGroup(const UndoGroup&) = delete;
    UndoGroup& operator=(const UndoGroup&) = delete;

  private:
    const AEGP_UtilitySuite3& _utility;
};

// Writes one stream of a layer, after a key at `key_time` if there is one. A stream that the host
// refuses is passed over: the others are still to be written.
void write(AEGP_PluginID plugin_id, AEGP_LayerH layer, AEGP_LayerStream stream,
           const AEGP_StreamValue& value, const A_Time* key_time) {
    StreamValue target(plugin_id, layer, stream);
    if (key_time) target.insert_key(*key_time, AEGP_LTimeMode_CompTime, nullptr);
    target.set_value(value);
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
    const UndoGroup undo_group(utility); // ends also when a suite is missing later on

    A_u_long count = 0;
    if (const A_Err err = count_selected_items(&count)) return err;
    if (count == 0) return A_Err_NONE;
    if (const A_Err err = collect_layers(count)) return err;
    if (has_camera_popup)
        if (const A_Err err = get_camera_orientation()) return err;
    sort_layers();
    if (is_reverse_order()) layers.reverse();
    if (is_random_order()) shuffle_layers();
    remember_scales();
    if (const A_Err err = get_layers_pos()) return err;
    return apply_to_layers();
}

// Counts nothing when the active item is no composition.
A_Err AssistantDlg::count_selected_items(A_u_long* count) const {
    if (!selection) return A_Err_NONE;
    AEGP_SuiteHandler suites(sSPBasic);
    return suites.CollectionSuite1().AEGP_GetCollectionNumItems(selection, count);
}

// Makes a record for each 3D layer among the `count` selected items, in the order of the selection.
A_Err AssistantDlg::collect_layers(A_u_long count) {
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
    const std::vector<LayerInfo> records(layers.begin(), layers.end());
    RemainingIndices remaining(records.size());
    for (LayerInfo& place : layers) {
        const auto number = static_cast<std::uint64_t>(math::LRand());
        place = records[remaining.take(number % remaining.size())];
    }
}

A_Err AssistantDlg::apply_to_layers() {
    const bool orient_changed = is_orient_changed();
    const bool key_orient = is_key_orient(), key_pos = is_key_pos(), key_scale = is_key_scale();
    const math::TGeomVector3D<double> offset = get_offset();
    AEGP_StreamValue zero{}; // not const: writing it fills its stream slot
    for (LayerInfo& record : layers) {
        if (record.is_copy) record.layer = clone(record.layer);
        if (!record.layer) continue; // no duplicate was made
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
