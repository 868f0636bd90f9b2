#pragma once

#include "forms/form.h"

#include <span>

namespace ornavel::forms {

/// Controls that stay side by side: what the user works with, and its label where it has one.
struct Group {
    TextView control;
    TextView label{};
    bool begins_row = false;
};

/// Places the groups that are visible in rows, from left to right and from top to bottom, within the width of
/// the room; those that are hidden leave no gap. Gives back where the last row ends, in twips.
int flow(Form& form, std::span<const Group> groups);

/// The room's width that the widest group needs.
int widest(Form& form, std::span<const Group> groups);

} // namespace ornavel::forms
