#pragma once

#include "forms/form.h"

namespace ornavel::programs::options_design {

inline constexpr TextView title = u"Ornavel Options";
inline constexpr int all_index = 1; ///< among the groups, of that of all settings

std::vector<forms::Control> controls();
/// Places everything within the room of the form; the lists and the meaning take what is left.
void arrange(forms::Form& form);
/// The room in which nothing overlaps.
forms::Size least_room();

} // namespace ornavel::programs::options_design
