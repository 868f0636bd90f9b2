#pragma once

#include <windows.h>

namespace ornavel::win32 {

/// Shows the program's icon in the window's title bar and where the user switches between windows. A module
/// without one in its resources leaves the window as it is.
void show_program_icon(HWND window);

/// The program's icon in the size of title bars; the system's own where the module has none. The system keeps
/// it.
HICON small_program_icon();

} // namespace ornavel::win32
