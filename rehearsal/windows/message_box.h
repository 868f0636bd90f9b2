#pragma once

#include "rehearsal/scripted_user.h"

#include <windows.h>

namespace ornavel::rehearsal {

/// Lets the user answer a message box of this thread. Gives the box's record, read from its window, with the
/// answer in it.
Json answer_box_window(ScriptedUser& user, HWND window);

} // namespace ornavel::rehearsal
