// The ids of the dialog items that every assistant has; a concrete dialog creates them.

#pragma once

enum AssistantItem : int {
    item_default = 1,
    item_apply = 3,
    item_towards_camera = 503,
    item_orient_none = 504,
    item_camera = 510,
    item_start_x = 515,
    item_start_y = 516,
    item_start_z = 517,
    item_reverse_order = 520,
    item_random_order = 521,
    item_use_comp_center = 522,
    item_repeat_sequentially = 523,
    item_key_position = 524,
    item_key_orientation = 525,
    item_key_scale = 526,
    item_scale_to_fit = 527,
    item_repeat = 528,
    item_repeat_count = 529,
    item_crop_text = 531,
};
