#pragma once

#include "base/text.h"

#include <vector>

namespace ornavel::rehearsal {

/// A group or a button that a customization adds. What it doesn't name is empty.
struct CustomControl {
    bool is_button = false;
    Text id, tag, picture, label, get_label, get_visible, on_action;
};

/// What an add-in puts on one ribbon: a group, the buttons in it, and so on, in their order.
struct CustomUI {
    Text on_load;
    std::vector<CustomControl> controls;
};

/// Reads markup that follows the customUI schema of 2006/01, as far as this program knows it: groups of
/// buttons on tabs. Throws Failure for elements and attributes that the schema doesn't have in their place,
/// for those that exclude each other, and for what is missing.
CustomUI read_custom_ui(TextView markup);

} // namespace ornavel::rehearsal
