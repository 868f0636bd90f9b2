#pragma once

#include "base/text.h"

// What the add-in writes on items, so that it knows them again. The texts are fixed, whatever the version.

namespace ornavel::host::stamps {

// In the billing information.
inline constexpr TextView dressed = u"Ornavel from Brevant";
inline constexpr TextView preview = u"Preview";
/// Passes every gate untouched: a preview's own send, and mails to support.
inline constexpr TextView preview_send = u"Preview Send";
inline constexpr TextView refused = u"DoNotSend"; ///< for its personal stationery

// The user property of a dressed item.
inline constexpr TextView property_name = u"BrevantOrnavel";
inline constexpr TextView property_value = u"Version 3.9.9";

} // namespace ornavel::host::stamps
