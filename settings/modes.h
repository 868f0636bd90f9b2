#pragma once

#include "settings/catalogue.h"

// The values of the setting "SettingButtonBar". Any other value dresses nothing.

namespace ornavel::settings::modes {

inline constexpr TextView automatic = u"auto"; ///< every message is dressed
inline constexpr TextView on = u"on";          ///< the user is asked for each message
inline constexpr TextView off = u"off";
inline constexpr TextView signature = u"eSignature"; ///< the mail client's own signatures are used

} // namespace ornavel::settings::modes

namespace ornavel::settings {

/// What a setting counts as while it is not stored: its default. A mode that is not stored dresses nothing,
/// whatever its default, so it is none.
inline TextView value_where_absent(const Key& key) {
    return key.name == user::SettingButtonBar.name ? TextView() : key.default_value;
}

} // namespace ornavel::settings
