#include "cylinder/layout.h"

#include "ADMLibrary/BaseDlg.h"
#include "cylinder/control_ids.h"
#include "cylinder/version.h"

#include <cstdio>

namespace {

enum class Kind { button, popup, text, edit, check, radio, frame };

// Rectangles are in the builder's order: top, left, height, width. Texts, check boxes and radio
// buttons take the size of their words, so that only their corner counts.
struct Row {
    Kind kind;
    int id;
    const char* label;
    short top, left, height, width;
    float min = 0, max = 0, value = 0; // edits
    bool on = false;                   // check boxes and radio buttons
};

constexpr Row text(int id, const char* label, short top, short left) {
    return {Kind::text, id, label, top, left, 0, 0};
}
constexpr Row edit(int id, short top, short left, short height, short width, float min, float max,
                   float value) {
    return {Kind::edit, id, nullptr, top, left, height, width, min, max, value};
}
constexpr Row check(int id, const char* label, short top, short left, short height, short width,
                    bool on = false) {
    return {Kind::check, id, label, top, left, height, width, 0, 0, 0, on};
}
constexpr Row radio(int id, const char* label, short top, short left, short height, short width,
                    bool on = false) {
    return {Kind::radio, id, label, top, left, height, width, 0, 0, 0, on};
}
constexpr Row frame(int id, const char* label, short top, short left, short height, short width) {
    return {Kind::frame, id, label, top, left, height, width};
}

constexpr float any = 10000000; // the bound of what may be anything
constexpr int frame_style = 4;
constexpr int bold_system_font = 6;

constexpr Row rows[] = {
    {Kind::button, item_apply, "Apply", 420, 434, 20, 58},

    text(item_size_x_label, "X", 40, 14),
    edit(item_size_x, 38, 29, 20, 75, 0.1f, any, 1000),
    text(item_size_y_label, "Y", 40, 110),
    edit(item_size_y, 38, 125, 20, 75, 0.1f, any, 1000),
    text(item_size_z_label, "Z", 40, 205),
    edit(item_size_z, 38, 220, 20, 75, 0.1f, any, 1000),

    text(item_start_x_label, "X", 106, 14),
    edit(item_start_x, 104, 29, 20, 75, -any, any, 0),
    text(item_start_y_label, "Y", 106, 110),
    edit(item_start_y, 104, 125, 20, 75, -any, any, 0),
    text(item_start_z_label, "Z", 106, 205),
    edit(item_start_z, 104, 220, 20, 75, -any, any, 0),

    check(item_distribute_randomly, "Distribute Randomly", 125, 29, 18, 130),

    text(item_angle_label, "Angle", 183, 24),
    text(item_angle_min_label, "Min", 175, 90),
    text(item_angle_max_label, "Max", 195, 90),
    text(item_angle_increment_label, "Increment", 173, 220),
    edit(item_angle_min, 177, 120, 20, 75, -any, any, 50),
    edit(item_angle_max, 197, 120, 20, 75, -any, any, 50),
    edit(item_angle_increment, 186, 220, 20, 75, -any, any, 0),

    text(item_distance_label, "Distance", 227, 24),
    text(item_from_center_label, "From Center", 239, 24),
    text(item_distance_min_label, "Min", 225, 90),
    text(item_distance_max_label, "Max", 245, 90),
    text(item_distance_increment_label, "Increment", 223, 220),
    edit(item_distance_min, 223, 120, 20, 75, -any, any, 360),
    edit(item_distance_max, 243, 120, 20, 75, -any, any, 360),
    edit(item_distance_increment, 237, 220, 20, 75, -any, any, 0),

    text(item_height_label, "Y axis", 283, 24),
    text(item_height_min_label, "Min", 275, 90),
    text(item_height_max_label, "Max", 295, 90),
    text(item_height_increment_label, "Increment", 273, 220),
    edit(item_height_min, 270, 120, 20, 75, -any, any, 50),
    edit(item_height_max, 290, 120, 20, 75, -any, any, 50),
    edit(item_height_increment, 287, 220, 20, 75, -any, any, 0),

    radio(item_orient_none, "None", 26, 324, 17, 127, true),
    radio(item_towards_camera, "Towards Camera", 46, 324, 17, 127),
    radio(item_orient_random, "Random", 88, 324, 17, 127),
    radio(item_orient_xy, "XY", 108, 324, 17, 43),
    radio(item_orient_xz, "XZ", 128, 324, 17, 43),
    radio(item_orient_yz, "YZ", 148, 324, 17, 43),
    radio(item_orient_yz_outward, "Rotate YZ (Outward)", 168, 324, 17, 127),
    radio(item_orient_yz_inward, "Rotate YZ (Inward)", 188, 324, 17, 127),
    radio(item_orient_rotate_xy, "Rotate XY", 208, 324, 17, 127),
    radio(item_orient_rotate_xz, "Rotate XZ", 228, 324, 17, 127),
    {Kind::popup, item_camera, nullptr, 66, 342, 19, 140},

    check(item_key_position, "Position", 353, 25, 17, 70),
    check(item_key_orientation, "Orientation", 353, 100, 17, 100),
    check(item_key_scale, "Scale", 353, 200, 17, 50),

    check(item_reverse_order, "Reverse Layers Order", 271, 324, 18, 154),
    check(item_random_order, "Random Layer Selection", 291, 324, 18, 160),
    check(item_scale_to_fit, "Scale Layers To Fit", 311, 324, 18, 135),
    check(item_scale_to_size, "Scale Layer to", 331, 324, 18, 100),
    edit(item_target_size, 329, 424, 20, 55, 0, 10000, 100),
    check(item_use_comp_center, "Use Comp Center", 351, 324, 18, 135, true),
    check(item_repeat, "Repeat Layers", 371, 324, 18, 100),
    edit(item_repeat_count, 369, 424, 20, 50, 1, 10000, 1),
    check(item_repeat_sequentially, "Repeat Sequentially", 391, 324, 18, 135),

    check(item_crop_text, "Crop Text Layers To Size Of Other 3D Layers", 396, 25, 17, 320, true),

    frame(0, "Cylinder Size", 10, 7, 65, 299),
    frame(0, "Starting Value", 80, 7, 70, 299),
    frame(item_distance_frame, "Distance", 155, 7, 167, 299),
    frame(0, "Layer Orientation", 10, 315, 240, 177),
    frame(0, "Options", 255, 315, 157, 177),
    frame(0, "Insert Keys", 326, 7, 66, 299),
};

void build(BaseDlg& dialog, const Row& row) {
    const IASRect place{row.top, row.left, row.height, row.width};
    switch (row.kind) {
    case Kind::button:
        dialog.add_ctrl(kADMTextPushButtonType, place, row.label, row.id);
        break;
    case Kind::popup:
        dialog.add_ctrl(kADMPopupListType, place, row.label, row.id);
        break;
    case Kind::text:
        dialog.add_static({row.top, row.left}, row.label, row.id);
        break;
    case Kind::edit:
        dialog.add_edit(place, row.id, row.min, row.max, row.value);
        break;
    case Kind::check:
        dialog.add_checkbox(place, row.label, row.id, row.on);
        break;
    case Kind::radio:
        dialog.add_radio(place, row.label, row.id, row.on);
        break;
    case Kind::frame:
        dialog.add_frame(place, row.label, row.id, frame_style);
        break;
    }
}

} // namespace

void build_layout(BaseDlg& dialog) {
    for (const Row& row : rows) build(dialog, row);

    char label[64]; // the blanks make room for a longer version
    std::snprintf(label, sizeof label, "%s v%d.%d          ", product_name, product_version_major,
                  product_version_minor);
    sADMItem->SetFont(dialog.add_static({420, 8}, label, item_version_label), bold_system_font);
}
