#pragma once

#include "base/file_error.h"

namespace ornavel::workbench {

/// Something about a place of a file, in words: "FILE:LINE:COLUMN: what".
Text at(TextView path, Place place, TextView what);

} // namespace ornavel::workbench
