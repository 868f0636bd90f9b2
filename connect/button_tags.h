#pragma once

#include "base/text.h"

/// By these the add-in's buttons are found, on a toolbar and on the ribbon.
namespace ornavel::connect::button_tags {

inline constexpr TextView mode = u"EmailMonitor";
inline constexpr TextView setup = u"ButtonWiz";
inline constexpr TextView send_options = u"SendOptions";

} // namespace ornavel::connect::button_tags
