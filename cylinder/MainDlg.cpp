#include "cylinder/MainDlg.h"

#include "cylinder/control_ids.h"
#include "cylinder/layout.h"
#include "cylinder/orientation.h"
#include "cylinder/placement.h"
#include "cylinder/scaling.h"
#include "cylinder/version.h"
#include "math/random.h"

#include <algorithm>
#include <ctime>

namespace {

// The orientation radios in the order in which they are looked at.
constexpr struct {
    int id;
    Orientation orientation;
} orientation_radios[] = {
    {item_orient_none, Orientation::unchanged},
    {item_orient_xy, Orientation::xy},
    {item_orient_xz, Orientation::xz},
    {item_orient_yz, Orientation::yz},
    {item_towards_camera, Orientation::towards_camera},
    {item_orient_random, Orientation::random},
    {item_orient_yz_outward, Orientation::yz_outward},
    {item_orient_yz_inward, Orientation::yz_inward},
    {item_orient_rotate_xy, Orientation::tangent_xy},
    {item_orient_rotate_xz, Orientation::flat_xz},
};

// What "Distribute Randomly" makes meaningless.
constexpr int regular_placement_items[] = {
    item_angle_min,
    item_angle_max,
    item_angle_increment,
    item_angle_min_label,
    item_angle_max_label,
    item_angle_increment_label,
    item_height_min,
    item_height_max,
    item_height_increment,
    item_height_min_label,
    item_height_max_label,
    item_height_increment_label,
    item_distance_min,
    item_distance_max,
    item_distance_increment,
    item_distance_min_label,
    item_distance_max_label,
    item_distance_increment_label,
    item_distance_frame,
    item_angle_label,
    item_height_label,
    item_distance_label,
    item_from_center_label,
    item_start_x,
    item_start_y,
    item_start_z,
    item_start_x_label,
    item_start_y_label,
    item_start_z_label,
};

} // namespace

MainDlg::MainDlg(int plugin_id) : AssistantDlg(plugin_id) {}

std::string MainDlg::get_name() const {
    return product_name;
}

bool MainDlg::is_distributor() const {
    return true;
}

int MainDlg::Init() {
    int result = 0;
    try {
        result = AssistantDlg::Init();
        SetLocalRect({0, 0, dialog_height, dialog_width});
        build_layout(*this);
        MoveToScreenCenter();
        sADMDialog->Show(*this, false);
    } catch (...) {
        // What has been laid out so far stays.
    }
    return result;
}

void MainDlg::Notify(IADMNotifier notifier) {
    if (sADMNotifier->IsNotifierType(notifier, kADMUserChangedNotifier)) {
        const int id = sADMItem->GetID(sADMNotifier->GetItem(notifier));
        if (id == item_scale_to_size) enable_conform();
        if (id == item_distribute_randomly) enable_distance();
        if (is_orientation_radio(id)) enable_camera();
    }
    AssistantDlg::Notify(notifier);
}

void MainDlg::Enable(unsigned char enable) {
    AssistantDlg::Enable(enable);
    if (!enable) return;
    enable_dim();
    enable_conform();
    enable_distance();
    enable_camera();
}

void MainDlg::enable_dim() {
    for (int id : {item_size_x_label, item_size_y_label, item_size_z_label, item_size_x,
                   item_size_y, item_size_z})
        enable_item(id, true);
}

void MainDlg::enable_conform() {
    enable_item(item_target_size, is_on(item_scale_to_size));
}

void MainDlg::enable_camera() {
    enable_item(item_camera, is_on(item_towards_camera));
}

void MainDlg::enable_distance() {
    const bool regular = !is_on(item_distribute_randomly);
    for (int id : regular_placement_items) enable_item(id, regular);
}

void MainDlg::get_dims(math::TGeomVector3D<double>* dims) const {
    constexpr double smallest = 9.999999974752427e-07; // the float nearest 1e-6: no divisor is 0
    dims->x = std::max<double>(smallest, number(item_size_x));
    dims->y = std::max<double>(smallest, number(item_size_y));
    dims->z = std::max<double>(smallest, number(item_size_z));
}

CylinderOptions MainDlg::read_options() const {
    const auto range = [&](int min, int max, int increment) {
        return CylinderOptions::Range{number(min), number(max), number(increment)};
    };
    CylinderOptions options;
    get_dims(&options.size);
    options.distribute_randomly = is_on(item_distribute_randomly);
    options.angle = range(item_angle_min, item_angle_max, item_angle_increment);
    options.distance = range(item_distance_min, item_distance_max, item_distance_increment);
    options.height = range(item_height_min, item_height_max, item_height_increment);
    const auto chosen = std::find_if(std::begin(orientation_radios), std::end(orientation_radios),
                                     [&](const auto& radio) { return is_on(radio.id); });
    options.orientation =
        chosen == std::end(orientation_radios) ? Orientation::unchanged : chosen->orientation;
    options.scale_to_fit = is_on(item_scale_to_fit);
    options.scale_to_size = is_on(item_scale_to_size);
    options.target_size = number(item_target_size);
    return options;
}

A_Err MainDlg::get_layers_pos() {
    if (layers.empty()) return A_Err_NONE;
    constrain_layers();
    const CylinderOptions options = read_options();
    if (options.distribute_randomly) {
        math::SetRand(std::time(nullptr));
        pos_randomly(layers, options);
    } else {
        pos_use_dist(layers, options);
    }
    orient_layers(layers, options, camera_orient);
    if (options.scale_to_fit) scale_layers_to_fit(layers, options);
    if (options.scale_to_size) scale_layers_conform(layers, options);
    return A_Err_NONE;
}
