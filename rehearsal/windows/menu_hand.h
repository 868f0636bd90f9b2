#pragma once

#include "rehearsal/tray_record.h"

#include <windows.h>

namespace ornavel::rehearsal {

/// The window of the menu that is open in this thread, or null.
HWND open_menu();

/// The captions of an open menu as a reader sees them; a line is "-".
std::vector<Text> captions_in_menu(HWND menu);

/// Chooses an entry of an open menu, counted from 0, or closes the menu, by the keys of a user. They are
/// still on their way when this returns.
void choose_in_menu(HWND menu, std::optional<std::size_t> entry);

} // namespace ornavel::rehearsal
