#pragma once

#include "base/files.h"

namespace ornavel::forms {

/// The templates or signatures of a folder that a user may choose from; the preview's work files are none.
std::vector<Text> stationery_in(const Files& files, TextView folder);

} // namespace ornavel::forms
