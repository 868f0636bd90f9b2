#pragma once

#include "forms/control.h"

namespace ornavel::forms {

// How far apart controls stand and how large they are, in twips: as users of Windows 2000 know it.
inline constexpr int window_margin = 165;
inline constexpr int control_gap = 105; ///< between related controls
inline constexpr int label_gap = 75;    ///< between a label and what it labels
inline constexpr Size button_size{1125, 345};
inline constexpr int box_height = 315; ///< of a text box, and of a closed combo box
inline constexpr int check_height = 255;
inline constexpr int label_height = 195;

} // namespace ornavel::forms
