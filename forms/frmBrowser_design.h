#pragma once

#include "forms/flow.h"

namespace ornavel::forms::preview_design {

inline constexpr TextView options_folded = u"> &Options", options_shown = u"< &Options";

std::vector<Control> controls();

/// What stands above the page, in its order.
std::span<const Group> groups();

/// Only these stay away when the options are folded.
std::span<const TextView> options();

// The page stays large enough to read in; the size grip stands below it.
inline constexpr Size least_page{4500, 2250};
inline constexpr int grip_height = 255;

/// A background colour of messages: its name, and how HTML writes it.
struct Colour {
    TextView name, code;
};

/// Pale ones, on which dark text is read well; the first one is none.
std::span<const Colour> colours();

} // namespace ornavel::forms::preview_design
