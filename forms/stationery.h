#pragma once

#include "base/files.h"

namespace ornavel::forms {

/// A file's name as the user chooses it: what stands before the first ".htm".
Text display_name(TextView file);

/// The templates or signatures of a folder that a user may choose from; the preview's work files are none.
std::vector<Text> stationery_in(const Files& files, TextView folder);

} // namespace ornavel::forms
