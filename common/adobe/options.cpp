// What the user chose: each option is read from its item at the moment of the call.

#include "common/adobe/AssistantDlg.h"
#include "common/adobe/item_ids.h"

bool AssistantDlg::is_reverse_order() const {
    return is_on(item_reverse_order);
}
bool AssistantDlg::is_random_order() const {
    return is_on(item_random_order);
}
bool AssistantDlg::is_scale_to_fit() const {
    return is_on(item_scale_to_fit);
}
bool AssistantDlg::is_repeat_seq() const {
    return is_on(item_repeat_sequentially);
}
bool AssistantDlg::is_key_pos() const {
    return is_on(item_key_position);
}
bool AssistantDlg::is_key_orient() const {
    return is_on(item_key_orientation);
}
bool AssistantDlg::is_key_scale() const {
    return is_on(item_key_scale);
}
bool AssistantDlg::is_orient_changed() const {
    return !is_on(item_orient_none);
}
bool AssistantDlg::is_text_layer_use_comp_size() const {
    return !is_on(item_crop_text);
}
bool AssistantDlg::is_distributor() const {
    return false;
}

math::TGeomVector3D<double> AssistantDlg::start_value() const {
    return {number(item_start_x), number(item_start_y), number(item_start_z)};
}

math::TGeomVector3D<double> AssistantDlg::get_starting_point() const {
    return is_distributor() ? math::TGeomVector3D<double>() : start_value();
}

math::TGeomVector3D<double> AssistantDlg::get_offset() const {
    math::TGeomVector3D<double> offset;
    if (is_distributor()) offset = start_value();
    if (is_on(item_use_comp_center)) {
        offset.x += comp_width * 0.5;
        offset.y += comp_height * 0.5;
    }
    return offset;
}
