#pragma once

#include "base/text.h"

#include <windows.h>

namespace ornavel::rehearsal {

/// Writes what the screen shows of this rectangle to a BMP file.
void write_picture(const RECT& on_screen, TextView path);

} // namespace ornavel::rehearsal
