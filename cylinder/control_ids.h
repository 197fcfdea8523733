// The ids of the cylinder dialog's own controls; those that every assistant has are in
// common/adobe/item_ids.h.

#pragma once

#include "common/adobe/item_ids.h"

enum CylinderItem : int {
    item_size_x = 210,
    item_size_y = 211,
    item_size_z = 212,
    item_distribute_randomly = 216,
    item_start_x_label = 217,
    item_start_y_label = 218,
    item_start_z_label = 219,
    item_angle_min = 220,
    item_angle_max = 221,
    item_angle_increment = 222,
    item_angle_increment_label = 223,
    item_angle_min_label = 224,
    item_angle_max_label = 225,
    item_height_min = 226,
    item_height_max = 227,
    item_height_increment = 228,
    item_height_increment_label = 229,
    item_height_min_label = 230,
    item_height_max_label = 231,
    item_distance_min = 232,
    item_distance_max = 233,
    item_distance_increment = 234,
    item_distance_increment_label = 235,
    item_distance_min_label = 236,
    item_distance_max_label = 237,
    item_distance_frame = 238,
    item_angle_label = 239,
    item_height_label = 240,
    item_distance_label = 241,
    item_from_center_label = 242,
    item_scale_to_size = 263,
    item_target_size = 264,
    item_size_x_label = 272,
    item_size_y_label = 273,
    item_size_z_label = 274,
    item_orient_xy = 500,
    item_orient_xz = 501,
    item_orient_yz = 502,
    item_orient_random = 505,
    item_orient_yz_outward = 506,
    item_orient_yz_inward = 507,
    item_orient_rotate_xy = 508,
    item_orient_rotate_xz = 509,
    item_version_label = 530,
};

// All radio buttons of the orientation group, "Towards Camera" and "None" among them.
constexpr bool is_orientation_radio(int id) {
    return id >= 500 && id <= 509;
}
