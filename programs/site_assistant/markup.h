#pragma once

#include "base/text.h"

namespace ornavel::programs {

/// Whether a reader of HTML would take a part of the text for markup: "<", ">", or a "&" that begins no
/// entity.
bool reads_as_markup(TextView text);

/// The text so that HTML shows it; entities stay.
Text as_HTML(TextView text);

} // namespace ornavel::programs
