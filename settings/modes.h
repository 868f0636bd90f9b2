#pragma once

#include "base/text.h"

// The values of the setting "SettingButtonBar". Any other value dresses nothing.

namespace ornavel::settings::modes {

inline constexpr TextView automatic = u"auto"; ///< every message is dressed
inline constexpr TextView on = u"on";          ///< the user is asked for each message
inline constexpr TextView off = u"off";
inline constexpr TextView signature = u"eSignature"; ///< the mail client's own signatures are used

} // namespace ornavel::settings::modes
