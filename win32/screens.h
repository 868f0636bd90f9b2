#pragma once

#include "win32/twips.h"

#include <vector>

namespace ornavel::win32 {

/// The screens of the desktop without their taskbars, in twips.
std::vector<forms::Bounds> screens(const Scale& scale);

} // namespace ornavel::win32
