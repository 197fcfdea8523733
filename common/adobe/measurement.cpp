// What the placement needs to know of a layer, read from the host at the layer's current time.

#include "ADMLibrary/HostPointers.h"
#include "common/adobe/angles.h"
#include "common/adobe/AssistantDlg.h"
#include "core/truncated.h"

namespace {

using Vector = math::TGeomVector3D<double>;

// Reads streams of one layer at one time, as they are after expressions.
class LayerReader {
  public:
    LayerReader(AEGP_SuiteHandler& suites, AEGP_LayerH layer)
        : _streams(suites.StreamSuite4()), _layer_suite(suites.LayerSuite5()), _layer(layer) {}

    A_Err current_time(A_Time* time) const {
        return _layer_suite.AEGP_GetLayerCurrentTime(_layer, AEGP_LTimeMode_CompTime, time);
    }

    A_Err value(AEGP_LayerStream stream, const A_Time& time, AEGP_StreamVal* value) const {
        return _streams.AEGP_GetLayerStreamValue(_layer, stream, AEGP_LTimeMode_CompTime, &time,
                                                 false, value);
    }

    // Orientation with the three rotations added to it.
    A_Err whole_orientation(const A_Time& time, AEGP_StreamVal* orientation) const {
        AEGP_StreamVal sum{};
        if (const A_Err err = value(AEGP_LayerStream_ORIENTATION, time, &sum)) return err;
        const struct {
            AEGP_LayerStream stream;
            double& angle;
        } rotations[] = {{AEGP_LayerStream_ROTATE_X, sum.three_d.x},
                         {AEGP_LayerStream_ROTATE_Y, sum.three_d.y},
                         {AEGP_LayerStream_ROTATE_Z, sum.three_d.z}};
        for (const auto& rotation : rotations) {
            AEGP_StreamVal turned{};
            if (const A_Err err = value(rotation.stream, time, &turned)) return err;
            rotation.angle += turned.one_d;
        }
        *orientation = sum;
        return A_Err_NONE;
    }

  private:
    const AEGP_StreamSuite4& _streams;
    const AEGP_LayerSuite5& _layer_suite;
    AEGP_LayerH _layer;
};

} // namespace

A_Err AssistantDlg::get_layer_scale(AEGP_LayerH layer, AEGP_StreamValue* scale) const {
    AEGP_SuiteHandler suites(sSPBasic);
    const LayerReader reader(suites, layer);
    A_Time time{};
    AEGP_StreamVal value{};
    if (const A_Err err = reader.current_time(&time)) return err;
    if (const A_Err err = reader.value(AEGP_LayerStream_SCALE, time, &value)) return err;
    scale->val = value;
    return A_Err_NONE;
}

A_Err AssistantDlg::get_layer_dimensions(AEGP_LayerH layer, int* width, int* height) const {
    AEGP_SuiteHandler suites(sSPBasic);
    AEGP_ItemH source = nullptr;
    if (const A_Err err = suites.LayerSuite5().AEGP_GetLayerSourceItem(layer, &source)) return err;
    if (source) return suites.ItemSuite3().AEGP_GetItemDimensions(source, width, height);

    // Text and shapes have no size of their own: the largest neighbour's stands in, or all there
    // is.
    const bool crop = !is_text_layer_use_comp_size() && (max_width != 0 || max_height != 0);
    *width = crop ? max_width : comp_width;
    *height = crop ? max_height : comp_height;
    return A_Err_NONE;
}

A_Err AssistantDlg::collect_info(AEGP_LayerH layer, LayerInfo* out) const {
    AEGP_SuiteHandler suites(sSPBasic);
    const LayerReader reader(suites, layer);
    LayerInfo info;
    info.layer = layer;
    if (const A_Err err = reader.current_time(&info.time)) return err;
    if (const A_Err err = get_layer_scale(layer, &info.scale)) return err;
    if (const A_Err err = reader.value(AEGP_LayerStream_POSITION, info.time, &info.pos.val))
        return err;
    if (const A_Err err = suites.LayerSuite5().AEGP_GetLayerIndex(layer, &info.index)) return err;
    if (const A_Err err = suites.LayerSuite5().AEGP_GetLayerOffset(layer, &info.offset)) return err;
    if (const A_Err err = reader.whole_orientation(info.time, &info.orient.val)) return err;
    if (const A_Err err = get_layer_dimensions(layer, &info.width, &info.height)) return err;
    const AEGP_ThreeDVal& scale = info.scale.val.three_d;
    info.scaled_width = truncated(info.width * (scale.x / 100.0));
    info.scaled_height = truncated(info.height * (scale.y / 100.0));
    *out = info;
    return A_Err_NONE;
}

A_Err AssistantDlg::get_layer_orientation(AEGP_LayerH layer, AEGP_StreamValue* out) const {
    AEGP_SuiteHandler suites(sSPBasic);
    const LayerReader reader(suites, layer);
    A_Time time{};
    AEGP_StreamVal orientation{}, position{}, target{};
    if (const A_Err err = reader.current_time(&time)) return err;
    if (const A_Err err = reader.whole_orientation(time, &orientation)) return err;
    if (const A_Err err = reader.value(AEGP_LayerStream_POSITION, time, &position)) return err;
    if (const A_Err err = reader.value(AEGP_LayerStream_ANCHORPOINT, time, &target)) return err;

    const AEGP_ThreeDVal &p = position.three_d, &a = target.three_d;
    const Vector direction = Vector(p.x - a.x, p.y - a.y, p.z - a.z).Normalized();
    const FacingAngles facing = facing_angles(direction);
    const double x = facing.x * degrees_per_radian, y = facing.y * degrees_per_radian,
                 z = facing.z * degrees_per_radian;
    const bool looks_up = math::acos(direction.y) < quarter_turn;
    AEGP_ThreeDVal& angles = orientation.three_d;
    angles = {angles.x + (looks_up ? -x : x), angles.y + 180.0 - y, angles.z + z};
    out->val = orientation;
    return A_Err_NONE;
}
