#pragma once

#include "base/text.h"

#include <windows.h>

namespace ornavel::win32 {

/// The windows of forms and of their controls carry the name of the form or control, so that tools find them.
/// A name that was given must be taken again before the window goes.
void give_name(HWND window, TextView name);
void take_name(HWND window);
/// Empty where the window has none.
Text name_of(HWND window);

} // namespace ornavel::win32
